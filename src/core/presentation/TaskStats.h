#pragma once

#include "core/presentation/ListRow.h"

#include <vector>

namespace lullet {

class Clock;
class Item;
class RunningItem;

// The totals of a list's header; durations in seconds.
struct TaskStats {
    int totalCount = 0;
    qint64 totalTimeAllotted = 0;
    int completedCount = 0;
    qint64 timeCompleted = 0;
    qint64 timeCompletedRunning = 0;
    int countInToday = 0;
    qint64 timeCompletedToday = 0;

    // Counts, planned and spent time of the rows' items. The planned total is never below the
    // time spent, so the progress never passes 100 %.
    static TaskStats of(const std::vector<ListRow>& rows, const Clock& clock,
                        const RunningItem& running);
    static TaskStats of(const std::vector<Item*>& items, const Clock& clock,
                        const RunningItem& running);
};

} // namespace lullet
