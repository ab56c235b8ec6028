#pragma once

#include "lists/LulletRow.h"

#include <vector>

namespace lullet {

class AppDelegate;

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
    static TaskStats getTaskStats(const std::vector<LulletRow>& rows, AppDelegate& app);
    static TaskStats getTaskStats(const std::vector<ReminderInfo*>& items, AppDelegate& app);
};

} // namespace lullet
