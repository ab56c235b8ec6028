#include "core/presentation/HistoryTotals.h"

#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/presentation/DashboardSummary.h"

#include <unordered_map>

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
    // One tally for all, one per project, fed item by item as the rows go by.
    TaskStats::Tally all(m_clock, m_running);
    TaskStats::Tally loose(m_clock, m_running);
    std::unordered_map<const Project*, TaskStats::Tally> tallies;
    const DashboardSummary::Months months(m_clock.now());
    m_library.scanHistory([&](const Item& item) {
        m_finished += item.isFinished() ? 1 : 0;
        all.add(item);
        if (const Project* project = item.toProject())
            tallies.try_emplace(project, m_clock, m_running).first->second.add(item);
        else
            loose.add(item);
        months.count(m_months, item);
    });
    m_all = all.sums();
    m_noProject = loose.sums();
    for (const auto& [project, tally] : tallies)
        m_projects.insert(project, tally.sums());
    return *this;
}

} // namespace lullet
