#pragma once

#include "core/dates/Date.h"
#include "core/presentation/ChartBar.h"
#include "core/presentation/ListRow.h"
#include "core/presentation/TaskStats.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace lullet {

class Clock;
class Item;
class Library;
class Project;
class RunningItem;

// What a printed or PDF report holds: a list's own rows, day headings included, under a head of
// totals. It is made from the rows a list shows, or from a project's items as its list groups
// them.
struct Report {
    QString title;
    std::vector<ListRow> rows;
    TaskStats stats;
    // Hours used by day, drawn under the head as the list's chart shows them; Upcoming and
    // Completed have one, other reports none.
    std::vector<ChartBar> hoursByDay;

    static Report ofRows(const QString& title, std::vector<ListRow> rows, const Clock& clock,
                         const RunningItem& running);
    // Every item of the project, its history read in first.
    static Report ofProject(Library& library, Project& project, const Clock& clock,
                            const RunningItem& running);
    // Every item in no project, grouped as a project's list groups them.
    static Report ofNoProject(Library& library, const Clock& clock, const RunningItem& running);

    bool hasItems() const { return stats.totalCount > 0; }
    // "Tasks: 4", "Complete: 1", "Due: 3", "Today: 2": the head's counts, due being what is not
    // complete.
    QStringList headCounts() const;
    // "00:30:00 of 02:00:00": time completed, the running item's included, of time planned.
    QString headTimes() const;
    // "Lullet -" and the moment as a file name may hold it.
    static QString proposedFileName(Date now);
    // For mail: one file, replaced each time.
    static QString mailFileName() { return QStringLiteral("LulletReport.pdf"); }
};

} // namespace lullet
