#pragma once

#include "core/dates/Date.h"

#include <optional>
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

    // The head's "Due": what is not complete.
    int dueCount() const { return totalCount - completedCount; }
    // Sums of other items added, or taken out.
    void add(const TaskStats& other, int sign = 1);

    // Counts, planned and spent time of the items. The planned total is never below the time
    // spent, so the progress never passes 100 %.
    static TaskStats of(const std::vector<Item*>& items, const Clock& clock,
                        const RunningItem& running);

    // Adds items one by one, for totals gathered from more than one place.
    class Tally;
};

class TaskStats::Tally {
public:
    Tally(const Clock& clock, const RunningItem& running);
    void add(const Item& item) { add(contributionOf(item)); }
    // Takes out what add() put in for the item as it was then.
    void remove(const Item& item) { add(contributionOf(item), -1); }
    // Sums gathered elsewhere by another tally, added or taken out.
    void add(const TaskStats& sums, int sign = 1);
    // The sums as they stand, the planned total not yet raised to the time spent.
    const TaskStats& sums() const { return m_sums; }
    TaskStats stats() const;

private:
    TaskStats contributionOf(const Item& item) const;

    const RunningItem& m_running;
    Date m_todayStart;
    Date m_todayEnd;
    qint64 m_secondsSincePrompt;
    TaskStats m_sums;
};

} // namespace lullet
