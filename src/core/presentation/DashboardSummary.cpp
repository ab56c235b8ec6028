#include "core/presentation/DashboardSummary.h"

#include "core/dates/Clock.h"
#include "core/model/Item.h"
#include "core/model/Project.h"
#include "core/model/RepeatCodes.h"
#include "core/presentation/HistoryTotals.h"
#include "core/presentation/TaskStats.h"

#include <algorithm>
#include <map>
#include <optional>

namespace lullet {

namespace {

// The day boundaries the circles need, worked out once: today's, and the end of each advance
// notice.
class Boundaries {
public:
    explicit Boundaries(Date now)
        : m_now(now)
        , m_todayStart(now.dateAtStartOfDay())
        , m_todayEnd(now.dateByAddingDays(1).dateAtStartOfDay())
    {
    }

    Date now() const { return m_now; }
    Date todayStart() const { return m_todayStart; }
    Date todayEnd() const { return m_todayEnd; }

    // The start of the day after the last day of a notice of `days` days.
    Date noticeEnd(int days)
    {
        auto found = m_noticeEnds.find(days);
        if (found == m_noticeEnds.end())
            found = m_noticeEnds.emplace(days, m_now.dateByAddingDays(days + 1).dateAtStartOfDay())
                        .first;
        return found->second;
    }

private:
    Date m_now;
    Date m_todayStart;
    Date m_todayEnd;
    std::map<int, Date> m_noticeEnds;
};

void countCircles(DashboardSummary& summary, const Item& item, Boundaries& bounds)
{
    const std::optional<Date> due =
        item.dtReminderPostponed() ? item.dtReminderPostponed() : item.dtReminder();
    if (!due)
        return;
    if (*due > bounds.now() && !item.isFinished())
        ++summary.upcoming;
    const int notice = RemindBefore::days(item.remindBefore().value_or(0));
    // Beyond its notice the item is not yet in view.
    if (*due >= bounds.noticeEnd(notice))
        return;
    if (*due >= bounds.todayStart() && *due < bounds.todayEnd()) {
        ++summary.current;
        return;
    }
    if (!item.remindBefore())
        return;
    if (*due >= bounds.todayEnd())
        ++summary.current;
    else if (!item.isFinished())
        ++summary.overdue;
}

} // namespace

DashboardSummary::Months::Months(Date now)
    : m_year(now.year())
{
    const Date yearStart = Date::dateFromComponents(m_year, 1, 1);
    for (int month = 0; month <= 12; ++month)
        m_starts[std::size_t(month)] = yearStart.dateByAddingMonths(month);
}

std::optional<int> DashboardSummary::Months::monthOf(Date date) const
{
    if (date < m_starts.front() || date >= m_starts.back())
        return std::nullopt;
    const auto after = std::upper_bound(m_starts.begin(), m_starts.end(), date);
    return int(after - m_starts.begin()) - 1;
}

void DashboardSummary::Months::count(std::array<int, 12>& tally, const Item& item, int sign) const
{
    std::optional<int> postponed;
    if (item.dtReminderPostponed())
        postponed = monthOf(*item.dtReminderPostponed());
    std::optional<int> own;
    if (item.dtReminder())
        own = monthOf(*item.dtReminder());
    if (postponed)
        tally[std::size_t(*postponed)] += sign;
    if (own && own != postponed)
        tally[std::size_t(*own)] += sign;
}

DashboardSummary DashboardSummary::of(const std::vector<Item*>& items,
                                      const std::vector<Project*>& projects, HistoryTotals& history,
                                      const Clock& clock, const RunningItem& running)
{
    DashboardSummary summary;
    Boundaries bounds(clock.now());
    const Months months(clock.now());
    std::vector<Item*> inNoProject;
    for (Item* item : items) {
        countCircles(summary, *item, bounds);
        months.count(summary.months, *item);
        if (!item->toProject())
            inNoProject.push_back(item);
    }
    // The history on disk is finished and long past: it counts in months and rows, no circle.
    for (std::size_t month = 0; month < summary.months.size(); ++month)
        summary.months[month] += history.months()[month];
    const auto addRow = [&](const QString& title, const std::vector<Item*>& of,
                            const TaskStats& onDisk, Project* project) {
        TaskStats::Tally tally(clock, running);
        for (const Item* item : of)
            tally.add(*item);
        tally.add(onDisk);
        const TaskStats stats = tally.stats();
        summary.rows.push_back({title, stats.totalCount, stats.totalTimeAllotted, project});
    };
    const TaskStats looseOnDisk = history.sumsInNoProject();
    if (!inNoProject.empty() || looseOnDisk.totalCount > 0)
        addRow(notInProjectTitle(), inNoProject, looseOnDisk, nullptr);
    for (Project* project : projects) {
        const TaskStats onDisk = history.sumsOf(*project);
        if (!project->toReminders().empty() || onDisk.totalCount > 0)
            addRow(project->name().value_or(QString()), project->toReminders(), onDisk, project);
    }
    return summary;
}

QStringList DashboardSummary::monthLabels()
{
    return {tr("JAN"), tr("FEB"), tr("MAR"), tr("APR"), tr("MAY"), tr("JUN"),
            tr("JUL"), tr("AUG"), tr("SEP"), tr("OCT"), tr("NOV"), tr("DEC")};
}

} // namespace lullet
