#include "core/presentation/Sidebar.h"

#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/presentation/ListBuilder.h"
#include "core/presentation/TaskStats.h"
#include "core/scheduling/Catalogue.h"
#include "core/scheduling/CatalogueRow.h"
#include "core/text/LocalizedText.h"

#include <QSet>

namespace lullet {

Sidebar::Sidebar(const Clock& clock, Library& library, const Catalogue& catalogue,
                 const RunningItem& running)
    : m_clock(clock)
    , m_library(library)
    , m_catalogue(catalogue)
    , m_running(running)
{
}

const QStringList& Sidebar::segmentNames()
{
    static const QStringList types = {QStringLiteral("Dashboard"), QStringLiteral("Lullets"),
                                      QStringLiteral("Today"),     QStringLiteral("Upcoming"),
                                      QStringLiteral("Anytime"),   QStringLiteral("Completed")};
    return types;
}

QString Sidebar::viewFor(const QString& selection)
{
    const QString s = selection.toLower();
    if (s == u"dashboard")
        return QStringLiteral("Chart");
    if (s == u"lullets")
        return QStringLiteral("RepeatList");
    if (s == u"today" || s == u"anytime")
        return QStringLiteral("LulletList");
    if (s == u"upcoming" || s == u"completed")
        return QStringLiteral("CustomList");
    if (s == u"project")
        return QStringLiteral("ProjectList");
    return {};
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
    c.completed += history().finishedCount();
    for (const CatalogueRowPtr& row : m_catalogue.rows())
        c.lullets += row->type == CatalogueRow::ItemRow ? 1 : 0;
    return c;
}

const HistoryTotals& Sidebar::history() const
{
    m_history.update(m_library, m_clock, m_running);
    return m_history;
}

std::optional<int> Sidebar::countFor(const SidebarRow& row, const Counts& counts) const
{
    if (row.type == SidebarRow::ProjectRow)
        return row.project ? std::optional<int>(int(row.project->toReminders().size()) +
                                                history().countIn(*row.project))
                           : std::nullopt;
    if (row.type != SidebarRow::Segment)
        return std::nullopt;
    const QString name = row.name.toLower();
    if (name == u"anytime")
        return counts.anytime;
    if (name == u"lullets")
        return counts.lullets;
    if (name == u"completed")
        return counts.completed;
    if (name == u"upcoming")
        return counts.upcoming;
    if (name == u"today")
        return counts.today;
    return std::nullopt;
}

std::vector<SidebarRow> Sidebar::rows() const
{
    const Counts all = counts();
    std::vector<SidebarRow> rows;
    for (const QString& name : segmentNames()) {
        SidebarRow row{name, SidebarRow::Segment, nullptr, nullptr, std::nullopt, std::nullopt};
        row.count = countFor(row, all);
        rows.push_back(row);
    }
    rows.push_back(
        {QString(), SidebarRow::Separator, nullptr, nullptr, std::nullopt, std::nullopt});
    for (Project* project : m_library.projects()) {
        SidebarRow row{project->name().value_or(QString()),
                       SidebarRow::ProjectRow,
                       project,
                       nullptr,
                       std::nullopt,
                       std::nullopt};
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
    tally.add(history().sumsOf(project));
    const TaskStats stats = tally.stats();
    return stats.totalTimeAllotted > 0
               ? double(stats.timeCompletedRunning) / double(stats.totalTimeAllotted)
               : 0.0;
}

QString Sidebar::segmentFor(const Item& item) const
{
    if (item.toProject())
        return QStringLiteral("Project");
    if (item.isFinished())
        return QStringLiteral("Completed");
    const std::optional<Date> due = item.effectiveDate();
    if (!due)
        return QStringLiteral("Anytime");
    const ListBuilder::Today today(m_clock.now());
    return today.daysTo(*due) <= ListBuilder::reminderWindowDays(item) ? QStringLiteral("Today")
                                                                       : QStringLiteral("Upcoming");
}

std::vector<SidebarRow> Sidebar::search(const QString& text,
                                        const std::vector<SidebarRow>& rows) const
{
    m_library.loadHistory();
    std::vector<SidebarRow> found;
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
    const auto matchesAny = [&terms](const QString& s) {
        for (const QString& term : terms) {
            if (LocalizedText::containsCD(s, term))
                return true;
        }
        return false;
    };

    // Sidebar rows: by name, and projects also by the titles of their items.
    for (const SidebarRow& row : rows) {
        if (row.type == SidebarRow::Separator)
            continue;
        bool hit = matchesAny(row.name);
        if (!hit && row.project) {
            for (const Item* item : row.project->toReminders())
                hit = hit || matchesAny(item->title().value_or(QString()));
        }
        const QString lower = row.name.toLower();
        if ((today && lower == u"today") || (anytime && lower == u"anytime"))
            hit = true;
        if (hit)
            found.push_back(row);
    }

    // Items: by title (with or without a project), today's and the anytime ones for the special
    // terms.
    const ListBuilder::Today todayBounds(m_clock.now());
    const Date endOfToday = m_clock.now().dateAtEndOfDay();
    QSet<const Item*> listed;
    for (Item* item : m_library.items()) {
        const QString title = item->title().value_or(QString());
        const std::optional<Date> due = item->dtReminder();
        const bool byTitle = matchesAny(title);
        const bool isToday = today && due && *due >= todayBounds.start && *due <= endOfToday;
        const bool isAnytime = anytime && !due;
        if ((byTitle || isToday || isAnytime) && !listed.contains(item)) {
            listed.insert(item);
            found.push_back(
                {title, SidebarRow::Segment, nullptr, item, std::nullopt, std::nullopt});
        }
    }
    return found;
}

} // namespace lullet
