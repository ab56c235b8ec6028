#pragma once

#include "core/dates/Date.h"
#include "core/presentation/ListBuilder.h"
#include "core/presentation/TaskStats.h"
#include "core/store/HistoryOnDisk.h"

#include <utility>
#include <vector>

namespace lullet {

class Clock;
class HistoryTotals;
class Item;
class Library;
class RunningItem;

// The rows of a list without their texts: its items in the list's order, under their days'
// headings where the list has days. An item of the history on disk is only its row there, its
// date and its time used, so the whole history lists in a few bytes a row; texts are made for the
// rows on screen only (ListTexts), and a record is read in only to be acted on. The counts, the
// hours by day and the head's totals come from the lines and the history's sums, not from texts.
class ListLines {
public:
    struct Line {
        // An item in memory, or else one on disk by its row.
        Item* item = nullptr;
        qint64 rowId = 0;
        // An item's effective date, a heading's day; none for undated items and their heading.
        std::optional<Date> date;
        // Seconds used: an item's, or all its day's for a heading.
        qint32 used = 0;
        // A heading's items, where the list counts them.
        qint32 count = 0;
        bool heading = false;
    };

    ListLines(const Clock& clock, Library& library, HistoryTotals& history,
              const RunningItem& running);

    // The lines of the scope, as they stand now.
    void build(const ListBuilder::Scope& scope);
    // Every item of the project, or of no project, by day as a project's list shows them.
    void buildGrouped(Project* project);
    // No lines, and none of the memory they took.
    void clear();

    const std::vector<Line>& lines() const { return m_lines; }
    std::size_t size() const { return m_lines.size(); }
    const Line& at(std::size_t index) const { return m_lines[index]; }
    // Whether the headings carry their day's count and time ("Upcoming", "Completed").
    bool headingsCounted() const { return m_counted; }

    // The row of the item, whether its line holds it or its row on disk; -1 if not listed.
    int indexOf(const Item* item) const;
    // The row of a line as it stood before the lines were built again.
    int indexOf(const Line& line) const;
    // The item of a line, read into memory when it is on disk; none for a heading.
    Item* itemAt(std::size_t index);

    // The head's totals over every item listed, those on disk included.
    TaskStats stats() const;
    // Seconds used by day, the days in time order: the hours chart.
    std::vector<std::pair<Date, int>> usedByDay() const;

private:
    // An item listed, in memory or on disk, before it is placed.
    using Entry = Line;
    void buildFlat(const ListBuilder::Scope& scope);
    void buildProject(const ListBuilder::Scope& scope);
    void buildCustomListing(Segment segment);
    std::vector<Entry> historyEntries(HistoryOnDisk::Part part);
    // The dated ones by day, the earlier first, open before finished on the same moment; the
    // undated last.
    void groupByDayAscending(std::vector<Entry> dated, const std::vector<Entry>& undated);
    // The dated entries under a heading per day, in the order given; days whose items are all
    // undated come last under "Anytime".
    void groupByDay(const std::vector<Entry>& dated, const std::vector<Entry>& undated);

    const Clock& m_clock;
    Library& m_library;
    HistoryTotals& m_history;
    const RunningItem& m_running;
    ListBuilder::Scope m_scope;
    std::vector<Line> m_lines;
    bool m_counted = false;
    // Which history on disk the list holds: none, all of it, one project's or no project's.
    enum class OnDisk { None, All, Project, NoProject } m_onDisk = OnDisk::None;
};

} // namespace lullet
