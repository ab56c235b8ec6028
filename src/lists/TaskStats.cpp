#include "lists/TaskStats.h"

#include "core/app/AppDelegate.h"
#include "core/dates/Clock.h"
#include "scheduling/RepeatTypes.h"

#include <algorithm>

namespace lullet {

TaskStats TaskStats::getTaskStats(const std::vector<LulletRow>& rows, AppDelegate& app)
{
    std::vector<ReminderInfo*> items;
    items.reserve(rows.size());
    for (const LulletRow& row : rows) {
        if (row.representedObject)
            items.push_back(row.representedObject);
    }
    return getTaskStats(items, app);
}

TaskStats TaskStats::getTaskStats(const std::vector<ReminderInfo*>& items, AppDelegate& app)
{
    TaskStats s;
    const Date now = app.clock().now();
    const qint64 secondsNow =
        app.dtLastAnyALertOn ? now.secondsAfterDate(*app.dtLastAnyALertOn) : 0;
    for (const ReminderInfo* item : items) {
        s.totalCount += 1;
        const bool isToDo = item->repeatOption() == std::optional<int>(RepeatOptionsToDo::TODO_VAL);
        const bool started = item->hasStarted().value_or(false);
        const bool finished = item->hasFinished().value_or(false);

        qint64 limit = item->timeLimit().value_or(0);
        bool limitSet = true;
        if (limit <= 0) {
            limitSet = false;
            qint64 planned = 0;
            if (item->durationHr().value_or(0) > 0) {
                planned = qint64(*item->durationHr()) * 3600;
                limitSet = true;
            }
            if (item->durationMin().value_or(0) > 0) {
                planned += qint64(*item->durationMin()) * 60;
                limitSet = true;
            }
            limit = std::max<qint64>(0, started ? planned - secondsNow : planned);
        }
        const qint64 elapsed = item->elapsedTime().value_or(0);
        if (!limitSet) {
            const int extendedBy = item->timeLimitExtendedBy().value_or(0);
            const qint64 extended =
                extendedBy > 0 ? extendedBy : qint64(app.intNoTaskDuration) * 60;
            const qint64 covered = item->runningTimeCovered().value_or(0);
            limit = started ? extended + covered : covered;
        }
        const std::optional<Date> date = item->effectiveDate();
        const bool inToday = date && date->isToday(app.clock());

        if (finished) {
            s.completedCount += 1;
            if (!isToDo) {
                s.timeCompleted += elapsed;
                if (!limitSet)
                    limit = 0;
                limit = std::min(limit, elapsed);
                if (inToday) {
                    s.countInToday += 1;
                    s.timeCompletedToday += elapsed;
                }
                s.timeCompletedRunning += elapsed;
            }
        }
        if (isToDo)
            continue;
        // Running time counts as today's, whatever the item's date.
        if (!finished && started) {
            s.timeCompletedToday += elapsed;
            s.timeCompletedRunning += elapsed;
        }
        s.totalTimeAllotted += limit > 0 ? limit : elapsed;
    }
    s.totalTimeAllotted = std::max(s.totalTimeAllotted, s.timeCompletedRunning);
    return s;
}

} // namespace lullet
