#include "core/reports/Report.h"

#include "core/backup/BackupList.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/model/Project.h"
#include "core/presentation/DashboardSummary.h"
#include "core/presentation/ListLines.h"
#include "core/presentation/ListTexts.h"
#include "core/presentation/RowTexts.h"

#include <QCoreApplication>

namespace lullet {

Report Report::ofLines(const QString& title, const ListLines& lines, Library& library,
                       const Clock& clock)
{
    Report report;
    report.title = title;
    report.stats = lines.stats();
    report.rows = ListTexts(lines, library, clock, RowTexts::ProjectName::InReport).allRows();
    return report;
}

Report Report::ofProject(Library& library, HistoryTotals& history, Project* project,
                         const Clock& clock, const RunningItem& running)
{
    ListLines lines(clock, library, history, running);
    lines.buildGrouped(project);
    return ofLines(project ? project->name().value_or(QString())
                           : DashboardSummary::notInProjectTitle(),
                   lines, library, clock);
}

QStringList Report::headCounts(const TaskStats& stats)
{
    return {QCoreApplication::translate("Report", "Tasks: %1").arg(stats.totalCount),
            QCoreApplication::translate("Report", "Complete: %1").arg(stats.completedCount),
            QCoreApplication::translate("Report", "Due: %1").arg(stats.dueCount()),
            QCoreApplication::translate("Report", "Today: %1").arg(stats.countInToday)};
}

QString Report::headTimes(const TaskStats& stats)
{
    return QCoreApplication::translate("Report", "%1 of %2")
        .arg(RowTexts::getStringFromSeconds(int(stats.timeCompletedRunning)),
             RowTexts::getStringFromSeconds(int(stats.totalTimeAllotted)));
}

QString Report::todayTime(const TaskStats& stats)
{
    return QCoreApplication::translate("Report", "Today %1")
        .arg(RowTexts::getStringFromSeconds(int(stats.timeCompletedToday)));
}

QString Report::proposedFileName(Date now)
{
    return QStringLiteral("Lullet -") + BackupList::timestampText(now) + QStringLiteral(".pdf");
}

} // namespace lullet
