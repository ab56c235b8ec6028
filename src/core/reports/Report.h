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
class HistoryTotals;
class Item;
class Library;
class ListLines;
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

    // A list's lines, every row with its texts, the history's read page by page, under the
    // list's totals: the same head as the list shows.
    static Report ofLines(const QString& title, const ListLines& lines, Library& library,
                          const Clock& clock);
    // Every item of the project, or every item in no project, grouped by day as a project's list
    // groups them.
    static Report ofProject(Library& library, HistoryTotals& history, Project* project,
                            const Clock& clock, const RunningItem& running);

    bool hasItems() const { return stats.totalCount > 0; }
    // "Tasks: 4", "Complete: 1", "Due: 3", "Today: 2": the head's counts, due being what is not
    // complete. The list's head and the report's read alike.
    static QStringList headCounts(const TaskStats& stats);
    QStringList headCounts() const { return headCounts(stats); }
    // "00:30:00 of 02:00:00": time completed, the running item's included, of time planned.
    static QString headTimes(const TaskStats& stats);
    QString headTimes() const { return headTimes(stats); }
    // "Today 00:20:00": time spent today.
    static QString todayTime(const TaskStats& stats);
    // "Lullet -" and the moment as a file name may hold it.
    static QString proposedFileName(Date now);
    // For mail: one file, replaced each time.
    static QString mailFileName() { return QStringLiteral("LulletReport.pdf"); }
};

} // namespace lullet
