#include "core/presentation/HistoryTotals.h"

#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/presentation/DashboardSummary.h"

namespace lullet {

HistoryTotals::HistoryTotals(Library& library, const Clock& clock, const RunningItem& running,
                             QObject* parent)
    : QObject(parent)
    , m_library(library)
    , m_clock(clock)
    , m_running(running)
{
    // Once counted, an item brought into memory is counted where it is now, not here.
    connect(&m_library, &Library::broughtIn, this, [this](const Item& item) {
        if (m_version)
            count(item, -1);
    });
}

void HistoryTotals::count(const Item& item, int sign)
{
    TaskStats::Tally one(m_clock, m_running);
    one.add(item);
    m_finished += item.isFinished() ? sign : 0;
    m_all.add(one.sums(), sign);
    const Project* project = item.toProject();
    (project ? m_projects[project] : m_noProject).add(one.sums(), sign);
    DashboardSummary::Months(m_clock.now()).count(m_months, item, sign);
}

HistoryTotals& HistoryTotals::fresh()
{
    const int year = m_clock.now().year();
    if (m_version == m_library.historyVersion() && m_year == year)
        return *this;
    m_version = m_library.historyVersion();
    m_year = year;
    m_finished = 0;
    m_all = m_noProject = TaskStats();
    m_projects.clear();
    m_months.fill(0);
    // Summed by SQLite, project by project; every item of the history is finished and long past.
    std::vector<HistoryOnDisk::Sums> sums;
    m_library.historySums(sums);
    QHash<qint64, const Project*> projects;
    for (const Project* project : m_library.projects())
        projects.insert(project->rowId(), project);
    for (const HistoryOnDisk::Sums& part : sums) {
        TaskStats stats;
        stats.totalCount = stats.completedCount = part.count;
        stats.timeCompleted = stats.timeCompletedRunning = part.used;
        stats.totalTimeAllotted = part.planned;
        m_finished += part.count;
        m_all.add(stats);
        // A project that is gone counts as none, as its items read.
        const Project* project = projects.value(part.projectRowId);
        (project ? m_projects[project] : m_noProject).add(stats);
    }
    // This year's months, counted as DashboardSummary::Months counts an item.
    std::vector<int> months;
    m_library.historyByMonth(DashboardSummary::Months(m_clock.now()).starts(), months);
    std::copy_n(months.begin(), std::min(months.size(), m_months.size()), m_months.begin());
    return *this;
}

} // namespace lullet
