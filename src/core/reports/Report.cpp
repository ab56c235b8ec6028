#include "core/reports/Report.h"

#include "core/backup/BackupList.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/model/Project.h"
#include "core/presentation/DashboardSummary.h"
#include "core/presentation/ListBuilder.h"
#include "core/presentation/RowTexts.h"

#include <algorithm>
#include <iterator>

namespace lullet {

Report Report::ofRows(const QString& title, std::vector<ListRow> rows, const Clock& clock,
                      const RunningItem& running)
{
    Report report;
    report.title = title;
    report.stats = TaskStats::of(rows, clock, running);
    report.rows = std::move(rows);
    return report;
}

Report Report::ofProject(Library& library, Project& project, const Clock& clock,
                         const RunningItem& running)
{
    library.loadHistory(project);
    return ofRows(project.name().value_or(QString()),
                  ListBuilder::groupByDay(project.toReminders(), clock, true), clock, running);
}

Report Report::ofNoProject(Library& library, const Clock& clock, const RunningItem& running)
{
    const std::vector<Item*>& items = library.allItems();
    std::vector<Item*> loose;
    std::copy_if(items.begin(), items.end(), std::back_inserter(loose),
                 [](const Item* item) { return !item->toProject(); });
    return ofRows(DashboardSummary::notInProjectTitle(),
                  ListBuilder::groupByDay(loose, clock, true), clock, running);
}

QStringList Report::headCounts() const
{
    return {QStringLiteral("Tasks: ") + QString::number(stats.totalCount),
            QStringLiteral("Complete: ") + QString::number(stats.completedCount),
            QStringLiteral("Due: ") + QString::number(stats.totalCount - stats.completedCount),
            QStringLiteral("Today: ") + QString::number(stats.countInToday)};
}

QString Report::headTimes() const
{
    return RowTexts::getStringFromSeconds(int(stats.timeCompletedRunning)) +
           QStringLiteral(" of ") + RowTexts::getStringFromSeconds(int(stats.totalTimeAllotted));
}

QString Report::proposedFileName(Date now)
{
    return QStringLiteral("Lullet -") + BackupList::timestampText(now) + QStringLiteral(".pdf");
}

} // namespace lullet
