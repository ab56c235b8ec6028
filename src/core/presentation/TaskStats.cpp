#include "core/presentation/TaskStats.h"

#include "core/activity/RunningItem.h"
#include "core/dates/Clock.h"
#include "core/model/Item.h"
#include "core/presentation/ListBuilder.h"

#include <algorithm>

namespace lullet {

TaskStats TaskStats::of(const std::vector<Item*>& items, const Clock& clock,
                        const RunningItem& running)
{
    Tally tally(clock, running);
    for (const Item* item : items)
        tally.add(*item);
    return tally.stats();
}

TaskStats::Tally::Tally(const Clock& clock, const RunningItem& running)
    : m_running(running)
{
    const Date now = clock.now();
    const std::optional<Date> lastPrompt = running.lastPromptAt();
    m_secondsSincePrompt = lastPrompt ? now.secondsAfterDate(*lastPrompt) : 0;
    // Today's bounds once, rather than a calendar's answer for every item.
    const ListBuilder::Today today(now);
    m_todayStart = today.start;
    m_todayEnd = today.end;
}

TaskStats TaskStats::Tally::contributionOf(const Item& item) const
{
    TaskStats s;
    s.totalCount = 1;
    const bool isToDo = item.isToDo();
    const bool started = item.isStarted();
    const bool finished = item.isFinished();

    qint64 limit = item.timeLimit().value_or(0);
    bool limitSet = true;
    if (limit <= 0) {
        const qint64 planned = item.plannedSeconds();
        limitSet = planned > 0;
        limit = std::max<qint64>(0, started ? planned - m_secondsSincePrompt : planned);
    }
    const qint64 elapsed = item.elapsedTime().value_or(0);
    if (!limitSet) {
        const int extendedBy = item.timeLimitExtendedBy().value_or(0);
        const qint64 extended = extendedBy > 0 ? extendedBy : qint64(m_running.promptPeriod()) * 60;
        const qint64 covered = item.runningTimeCovered().value_or(0);
        limit = started ? extended + covered : covered;
    }
    const std::optional<Date> date = item.effectiveDate();
    const bool inToday = date && *date >= m_todayStart && *date < m_todayEnd;

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
        return s;
    // Running time counts as today's, whatever the item's date.
    if (!finished && started) {
        s.timeCompletedToday += elapsed;
        s.timeCompletedRunning += elapsed;
    }
    s.totalTimeAllotted += limit > 0 ? limit : elapsed;
    return s;
}

void TaskStats::add(const TaskStats& other, int sign)
{
    totalCount += sign * other.totalCount;
    totalTimeAllotted += sign * other.totalTimeAllotted;
    completedCount += sign * other.completedCount;
    timeCompleted += sign * other.timeCompleted;
    timeCompletedRunning += sign * other.timeCompletedRunning;
    countInToday += sign * other.countInToday;
    timeCompletedToday += sign * other.timeCompletedToday;
}

void TaskStats::Tally::add(const TaskStats& sums, int sign)
{
    m_sums.add(sums, sign);
}

TaskStats TaskStats::Tally::stats() const
{
    TaskStats s = m_sums;
    s.totalTimeAllotted = std::max(s.totalTimeAllotted, s.timeCompletedRunning);
    return s;
}

} // namespace lullet
