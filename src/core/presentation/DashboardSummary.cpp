#include "core/presentation/DashboardSummary.h"

#include "core/dates/Clock.h"
#include "core/model/Item.h"
#include "core/model/Project.h"
#include "core/model/RepeatCodes.h"
#include "core/presentation/TaskStats.h"

#include <algorithm>
#include <map>
#include <optional>

namespace lullet {

namespace {

// The day boundaries the counting needs, worked out once: today's, the end of each advance
// notice, and the months of this year.
class Boundaries {
public:
    explicit Boundaries(Date now)
        : m_now(now)
        , m_todayStart(now.dateAtStartOfDay())
        , m_todayEnd(now.dateByAddingDays(1).dateAtStartOfDay())
    {
        const Date yearStart = Date::dateFromComponents(now.year(), 1, 1);
        for (int month = 0; month <= 12; ++month)
            m_months[std::size_t(month)] = yearStart.dateByAddingMonths(month);
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

    // 0 to 11 for a date in this year, else none.
    std::optional<int> monthOf(Date date) const
    {
        if (date < m_months.front() || date >= m_months.back())
            return std::nullopt;
        const auto after = std::upper_bound(m_months.begin(), m_months.end(), date);
        return int(after - m_months.begin()) - 1;
    }

private:
    Date m_now;
    Date m_todayStart;
    Date m_todayEnd;
    std::array<Date, 13> m_months;
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

void countMonths(DashboardSummary& summary, const Item& item, const Boundaries& bounds)
{
    std::optional<int> postponed;
    if (item.dtReminderPostponed())
        postponed = bounds.monthOf(*item.dtReminderPostponed());
    std::optional<int> own;
    if (item.dtReminder())
        own = bounds.monthOf(*item.dtReminder());
    if (postponed)
        ++summary.months[std::size_t(*postponed)];
    if (own && own != postponed)
        ++summary.months[std::size_t(*own)];
}

} // namespace

DashboardSummary DashboardSummary::of(const std::vector<Item*>& items,
                                      const std::vector<Project*>& projects, const Clock& clock,
                                      const RunningItem& running)
{
    DashboardSummary summary;
    Boundaries bounds(clock.now());
    std::vector<Item*> inNoProject;
    for (Item* item : items) {
        countCircles(summary, *item, bounds);
        countMonths(summary, *item, bounds);
        if (!item->toProject())
            inNoProject.push_back(item);
    }
    const auto addRow = [&](const QString& title, const std::vector<Item*>& of, Project* project) {
        const TaskStats stats = TaskStats::of(of, clock, running);
        summary.rows.push_back({title, int(of.size()), stats.totalTimeAllotted, project});
    };
    if (!inNoProject.empty())
        addRow(notInProjectTitle(), inNoProject, nullptr);
    for (Project* project : projects) {
        if (!project->toReminders().empty())
            addRow(project->name().value_or(QString()), project->toReminders(), project);
    }
    return summary;
}

QStringList DashboardSummary::monthLabels()
{
    return {QStringLiteral("JAN"), QStringLiteral("FEB"), QStringLiteral("MAR"),
            QStringLiteral("APR"), QStringLiteral("MAY"), QStringLiteral("JUN"),
            QStringLiteral("JUL"), QStringLiteral("AUG"), QStringLiteral("SEP"),
            QStringLiteral("OCT"), QStringLiteral("NOV"), QStringLiteral("DEC")};
}

} // namespace lullet
