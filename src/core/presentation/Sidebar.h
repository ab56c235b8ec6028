#pragma once

#include "core/presentation/HistorySearch.h"
#include "core/presentation/HistoryTotals.h"
#include "core/presentation/Segment.h"

#include <QSet>
#include <QString>

#include <optional>
#include <vector>

namespace lullet {

class Catalogue;
class Clock;
class Item;
class Library;
class Project;
class RunningItem;
class TextSearch;

// The sidebar of the main window: the six segments, a separator, then the projects.
struct SidebarRow {
    enum Type { SegmentRow = 0, ProjectRow = 1, Separator = 3 };

    // What the row reads: the segment's text, the project's or the item's name.
    QString name;
    int type = SegmentRow;
    // Of a segment's row.
    Segment segment = Segment::Today;
    Project* project = nullptr;
    // Search results may also be items: in memory, or of the history on disk by their row.
    Item* item = nullptr;
    qint64 rowId = 0;
    std::optional<int> count;
    // A project's progress: time spent against time planned, 0 to 1.
    std::optional<double> progress;
};

class Sidebar {
public:
    Sidebar(const Clock& clock, Library& library, const Catalogue& catalogue,
            const RunningItem& running, HistoryTotals& history);

    // The six segments with their counts, the separator, and a row for each project.
    std::vector<SidebarRow> rows() const;
    // The segments' counts, from one pass over the items in memory and the history's totals.
    struct Counts {
        int today = 0;
        int upcoming = 0;
        int anytime = 0;
        int completed = 0;
        int lullets = 0;
    };
    Counts counts() const;
    // The count of a row, as the sidebar shows it; none for the dashboard.
    std::optional<int> countFor(const SidebarRow& row, const Counts& counts) const;

    // A project's progress, as its header's statistics reckon it.
    double projectProgress(const Project& project) const;

    // Where a search result leads: the project's own list, or the segment that lists the item.
    static Segment segmentFor(const Item& item, Date now);

    // Comma-separated terms; "today" and "anytime" stand for those items. Matching ignores case
    // and diacritics: rows by name, projects also by the titles of their items, items by title,
    // those of the history on disk among them. A search that narrows the last one looks again
    // only at the history's items that one found.
    std::vector<SidebarRow> search(const QString& text, const std::vector<SidebarRow>& rows);
    // The search ended: what it remembered is given back.
    void endSearch();

private:
    static std::vector<SidebarRow> searchRows(const std::vector<SidebarRow>& rows,
                                              const TextSearch& search,
                                              const QSet<const Project*>& projectsHit, bool today,
                                              bool anytime);
    std::vector<SidebarRow> searchItems(const TextSearch& search, bool today, bool anytime) const;

    const Clock& m_clock;
    Library& m_library;
    const Catalogue& m_catalogue;
    const RunningItem& m_running;
    HistoryTotals& m_history;
    HistorySearch m_historySearch;
};

} // namespace lullet
