#pragma once

#include "core/dates/Date.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>
#include <vector>

namespace lullet {

class Clock;
class HistoryTotals;
class Item;
class Project;
class RunningItem;

// What the dashboard shows, worked out in one pass over the items: the three circles' counts,
// the items of each month of this year, and a row for each project that has items.
struct DashboardSummary {
    Q_DECLARE_TR_FUNCTIONS(DashboardSummary)

public:
    struct ProjectRow {
        QString title;
        int count = 0;
        qint64 plannedSeconds = 0;
        // None for the row of items in no project.
        Project* project = nullptr;
    };

    // An item comes due later: upcoming. Due today, or ahead within its advance notice: current
    // (so an item inside its notice counts twice). Past its day and unfinished: overdue, but
    // only with an advance notice set. An item with no date counts in no circle.
    int overdue = 0;
    int current = 0;
    int upcoming = 0;
    // January to December of this year. An item counts once in a month if its own date or its
    // postponed one falls in it.
    std::array<int, 12> months{};
    // "Not in Project" first, when any item has no project; then the projects, in their order.
    std::vector<ProjectRow> rows;

    // The items in memory, and what the history on disk adds to them.
    static DashboardSummary of(const std::vector<Item*>& items,
                               const std::vector<Project*>& projects, HistoryTotals& history,
                               const Clock& clock, const RunningItem& running);
    // The months of this year in which an item counts: its own date's, and its postponed one's
    // where that is another.
    class Months {
    public:
        explicit Months(Date now);
        int year() const { return m_year; }
        // The start of each month, and the end of December.
        std::vector<Date> starts() const { return {m_starts.begin(), m_starts.end()}; }
        void count(std::array<int, 12>& tally, const Item& item, int sign = 1) const;

    private:
        std::optional<int> monthOf(Date date) const;
        int m_year;
        std::array<Date, 13> m_starts;
    };
    // "JAN" … "DEC".
    static QStringList monthLabels();
    static QString notInProjectTitle() { return tr("Not in Project"); }
};

} // namespace lullet
