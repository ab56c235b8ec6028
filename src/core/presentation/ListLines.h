#pragma once

#include "core/dates/Date.h"
#include "core/presentation/ListBuilder.h"
#include "core/presentation/TaskStats.h"
#include "core/store/HistoryOnDisk.h"

#include <cmath>
#include <limits>
#include <optional>
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
    // One row, packed into 24 bytes: a long history lists hundreds of thousands of them.
    class Line {
    public:
        // An item in memory, with its effective date and its time used.
        static Line ofItem(Item* item, std::optional<Date> date, qint32 used);
        // An item of the history on disk, by its row.
        static Line onDisk(qint64 rowId, Date date, qint32 used);
        // A day's heading; none for the heading of undated items.
        static Line headingOf(std::optional<Date> day);

        bool isHeading() const { return m_heading != 0; }
        // The item in memory; none for a heading or an item still on disk.
        Item* item() const { return m_onDisk ? nullptr : m_held.item; }
        // The item's row in the store: the one on disk, or the item's own; 0 for a heading.
        qint64 rowId() const;
        // Whether the item is finished: one on disk is history, and history is finished.
        bool isFinished() const;
        // An item's effective date, a heading's day; none for undated items and their heading.
        std::optional<Date> date() const
        {
            return std::isnan(m_date.timeIntervalSince1970()) ? std::nullopt
                                                              : std::optional(m_date);
        }
        // The order of two dated lines, without unpacking their dates: a long sort's inner loop.
        bool isEarlierThan(const Line& other) const { return m_date < other.m_date; }
        // Seconds used: an item's, or all its day's for a heading.
        qint32 used() const { return m_used; }
        // A heading's items, where the list counts them.
        qint32 count() const { return qint32(m_count); }

        // The item of a line on disk, now read into memory.
        void setItem(Item* item)
        {
            m_held.item = item;
            m_onDisk = 0;
        }
        // Adds an item's line to this heading's count and time used.
        void addItem(const Line& line)
        {
            m_count += 1;
            m_used += line.m_used;
        }

    private:
        Line() = default;

        // The item in memory (none for a heading), or the row of one on disk.
        union Held {
            Item* item;
            qint64 rowId;
        } m_held{nullptr};
        // NaN for none.
        Date m_date{std::numeric_limits<double>::quiet_NaN()};
        qint32 m_used = 0;
        quint32 m_count : 30 = 0;
        quint32 m_onDisk : 1 = 0;
        quint32 m_heading : 1 = 0;
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

static_assert(sizeof(ListLines::Line) <= 24);

} // namespace lullet
