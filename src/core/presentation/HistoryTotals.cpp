#include "core/presentation/HistoryTotals.h"

#include "core/library/Library.h"
#include "core/model/Item.h"

#include <unordered_map>

namespace lullet {

void HistoryTotals::update(Library& library, const Clock& clock, const RunningItem& running)
{
    if (m_version == library.historyVersion())
        return;
    m_version = library.historyVersion();
    m_finished = 0;
    m_projects.clear();
    // One tally per project, fed item by item as the rows go by.
    std::unordered_map<const Project*, TaskStats::Tally> tallies;
    library.scanHistory([&](const Item& item) {
        m_finished += item.isFinished() ? 1 : 0;
        if (const Project* project = item.toProject())
            tallies.try_emplace(project, clock, running).first->second.add(item);
    });
    for (const auto& [project, tally] : tallies)
        m_projects.insert(project, tally.sums());
}

TaskStats HistoryTotals::sumsOf(const Project& project) const
{
    return m_projects.value(&project);
}

} // namespace lullet
