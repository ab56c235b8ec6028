#include "core/presentation/Sidebar.h"

#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/presentation/ListBuilder.h"
#include "core/presentation/TaskStats.h"
#include "core/scheduling/Catalogue.h"
#include "core/scheduling/CatalogueEntries.h"
#include "core/scheduling/CatalogueRow.h"
#include "core/text/LocalizedText.h"
#include "core/text/TextSearch.h"

#include <QSet>

namespace lullet {

Sidebar::Sidebar(const Clock& clock, Library& library, const Catalogue& catalogue,
                 const RunningItem& running, HistoryTotals& history)
    : m_clock(clock)
    , m_library(library)
    , m_catalogue(catalogue)
    , m_running(running)
    , m_history(history)
    , m_historySearch(library)
{
}

Sidebar::Counts Sidebar::counts() const
{
    Counts c;
    const Date now = m_clock.now();
    const ListBuilder::Filter today({}, now);
    for (const Item* item : m_library.items()) {
        const bool finished = item->isFinished();
        const std::optional<Date> due = item->effectiveDate();
        c.completed += finished ? 1 : 0;
        c.anytime += !due ? 1 : 0;
        c.upcoming += !finished && due && *due > now ? 1 : 0;
        c.today += today.accepts(*item) ? 1 : 0;
    }
    // The history on disk is finished and dated long before today: it is only completed.
    c.completed += m_history.finishedCount();
    for (const CatalogueRowPtr& row : m_catalogue.rows())
        c.lullets += row->type == CatalogueRow::ItemRow ? 1 : 0;
    return c;
}

std::optional<int> Sidebar::countFor(const SidebarRow& row, const Counts& counts) const
{
    if (row.type == SidebarRow::ProjectRow)
        return row.project ? std::optional<int>(int(row.project->toReminders().size()) +
                                                m_history.countIn(*row.project))
                           : std::nullopt;
    if (row.type != SidebarRow::SegmentRow)
        return std::nullopt;
    switch (row.segment) {
    case Segment::Anytime:
        return counts.anytime;
    case Segment::Lullets:
        return counts.lullets;
    case Segment::Completed:
        return counts.completed;
    case Segment::Upcoming:
        return counts.upcoming;
    case Segment::Today:
        return counts.today;
    case Segment::Dashboard:
    case Segment::Project:
        break;
    }
    return std::nullopt;
}

std::vector<SidebarRow> Sidebar::rows() const
{
    const Counts all = counts();
    std::vector<SidebarRow> rows;
    for (const Segment segment : Segments::sidebar) {
        SidebarRow row;
        row.name = Segments::text(segment);
        row.segment = segment;
        row.count = countFor(row, all);
        rows.push_back(row);
    }
    SidebarRow separator;
    separator.type = SidebarRow::Separator;
    rows.push_back(separator);
    for (Project* project : m_library.projects()) {
        SidebarRow row;
        row.name = project->name().value_or(QString());
        row.type = SidebarRow::ProjectRow;
        row.segment = Segment::Project;
        row.project = project;
        row.count = countFor(row, all);
        row.progress = projectProgress(*project);
        rows.push_back(row);
    }
    return rows;
}

double Sidebar::projectProgress(const Project& project) const
{
    TaskStats::Tally tally(m_clock, m_running);
    for (const Item* item : project.toReminders())
        tally.add(*item);
    tally.add(m_history.sumsOf(project));
    const TaskStats stats = tally.stats();
    return stats.totalTimeAllotted > 0
               ? double(stats.timeCompletedRunning) / double(stats.totalTimeAllotted)
               : 0.0;
}

Segment Sidebar::segmentFor(const Item& item, Date now)
{
    if (item.toProject())
        return Segment::Project;
    if (item.isFinished())
        return Segment::Completed;
    const std::optional<Date> due = item.effectiveDate();
    if (!due)
        return Segment::Anytime;
    const ListBuilder::Today today(now);
    return today.daysTo(*due) <= ListBuilder::reminderWindowDays(item) ? Segment::Today
                                                                       : Segment::Upcoming;
}

std::vector<SidebarRow> Sidebar::search(const QString& text, const std::vector<SidebarRow>& rows)
{
    QStringList terms;
    bool today = false;
    bool anytime = false;
    for (const QString& part : text.trimmed().split(u',')) {
        const QString term = part.trimmed();
        if (term.isEmpty())
            continue;
        if (term.toLower() == u"today")
            today = true;
        else if (term.toLower() == u"anytime")
            anytime = true;
        else
            terms << term;
    }
    const TextSearch search(terms);
    // The history on disk, read once: its items by title, and the projects whose items match.
    std::vector<SidebarRow> onDisk;
    QSet<const Project*> projectsHit;
    m_historySearch.find(terms, search, [&](qint64 rowId, QByteArrayView title, const Project* of) {
        SidebarRow result;
        result.name = QString::fromUtf8(title);
        result.rowId = rowId;
        onDisk.push_back(result);
        if (of)
            projectsHit.insert(of);
    });
    std::vector<SidebarRow> found = searchRows(rows, search, projectsHit, today, anytime);
    std::vector<SidebarRow> items = searchItems(search, today, anytime);
    found.insert(found.end(), items.begin(), items.end());
    found.insert(found.end(), onDisk.begin(), onDisk.end());
    return found;
}

void Sidebar::endSearch()
{
    m_historySearch.forget();
}

// Sidebar rows: by name, projects also by the titles of their items, and the segments of the
// special terms.
std::vector<SidebarRow> Sidebar::searchRows(const std::vector<SidebarRow>& rows,
                                            const TextSearch& search,
                                            const QSet<const Project*>& projectsHit, bool today,
                                            bool anytime)
{
    std::vector<SidebarRow> found;
    for (const SidebarRow& row : rows) {
        if (row.type == SidebarRow::Separator)
            continue;
        bool hit = search.matches(row.name) || projectsHit.contains(row.project);
        if (!hit && row.project) {
            const std::vector<Item*>& items = row.project->toReminders();
            hit = std::any_of(items.begin(), items.end(), [&search](const Item* item) {
                return search.matches(item->title().value_or(QString()));
            });
        }
        if (row.type == SidebarRow::SegmentRow && ((today && row.segment == Segment::Today) ||
                                                   (anytime && row.segment == Segment::Anytime)))
            hit = true;
        if (hit)
            found.push_back(row);
    }
    return found;
}

// Items in memory: by title (with or without a project), today's and the anytime ones for the
// special terms.
std::vector<SidebarRow> Sidebar::searchItems(const TextSearch& search, bool today,
                                             bool anytime) const
{
    const ListBuilder::Today todayBounds(m_clock.now());
    const Date endOfToday = m_clock.now().dateAtEndOfDay();
    std::vector<SidebarRow> found;
    for (Item* item : m_library.items()) {
        const QString title = item->title().value_or(QString());
        const std::optional<Date> due = item->dtReminder();
        const bool isToday = today && due && *due >= todayBounds.start && *due <= endOfToday;
        const bool isAnytime = anytime && !due;
        // A suggestion's title is found as the user reads it, and as the record keeps it.
        const QString shown = CatalogueEntries::shown(title);
        if (isToday || isAnytime || search.matches(title) || search.matches(shown)) {
            SidebarRow result;
            result.name = shown;
            result.item = item;
            found.push_back(result);
        }
    }
    return found;
}

} // namespace lullet
