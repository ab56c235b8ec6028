#include "lists/Segments.h"

#include "core/app/AppDelegate.h"
#include "core/dates/Clock.h"
#include "core/text/LocalizedText.h"
#include "lists/LulletListBuilder.h"
#include "lists/TaskStats.h"
#include "scheduling/CatalogueRow.h"
#include "scheduling/DefaultCatalogue.h"

#include <QSet>

namespace lullet {

const QStringList& Segments::arrayTypes()
{
    static const QStringList types = {QStringLiteral("Dashboard"), QStringLiteral("Lullets"),
                                      QStringLiteral("Today"),     QStringLiteral("Upcoming"),
                                      QStringLiteral("Anytime"),   QStringLiteral("Completed")};
    return types;
}

QString Segments::viewFor(const QString& selection)
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

Segments::Counts Segments::Counts::compute(AppDelegate& app)
{
    Counts c;
    const Date now = app.clock().now();
    const LulletListBuilder::Filter today({}, now);
    for (const ReminderInfo* item : app.getAllLulletLists()) {
        const bool finished = item->hasFinished().value_or(false);
        const std::optional<Date> due = item->effectiveDate();
        c.completed += finished ? 1 : 0;
        c.anytime += !due ? 1 : 0;
        c.upcoming += !finished && due && *due > now ? 1 : 0;
        c.today += today.accepts(*item) ? 1 : 0;
    }
    for (const CatalogueRowPtr& row : app.catalogue().mArrDefaultRepeats)
        c.lullets += row->type == CatalogueRow::Item ? 1 : 0;
    return c;
}

std::optional<int> Segments::countFor(const SidebarRow& row, const Counts& counts)
{
    if (row.type == SidebarRow::ProjectRow)
        return row.project ? std::optional<int>(int(row.project->toReminders().size()))
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

std::vector<SidebarRow> Segments::prepareSegments(AppDelegate& app)
{
    const Counts counts = Counts::compute(app);
    std::vector<SidebarRow> rows;
    for (const QString& name : arrayTypes()) {
        SidebarRow row{name, SidebarRow::Segment, nullptr, nullptr, std::nullopt, std::nullopt};
        row.count = countFor(row, counts);
        rows.push_back(row);
    }
    rows.push_back(
        {QString(), SidebarRow::Separator, nullptr, nullptr, std::nullopt, std::nullopt});
    for (Project* project : app.getAllProjectsLists()) {
        SidebarRow row{project->name().value_or(QString()),
                       SidebarRow::ProjectRow,
                       project,
                       nullptr,
                       std::nullopt,
                       std::nullopt};
        row.count = countFor(row, counts);
        row.progress = projectProgress(*project, app);
        rows.push_back(row);
    }
    return rows;
}

double Segments::projectProgress(const Project& project, AppDelegate& app)
{
    const TaskStats stats = TaskStats::getTaskStats(project.toReminders(), app);
    return stats.totalTimeAllotted > 0
               ? double(stats.timeCompletedRunning) / double(stats.totalTimeAllotted)
               : 0.0;
}

QString Segments::segmentFor(const ReminderInfo& item, AppDelegate& app)
{
    if (item.toProject())
        return QStringLiteral("Project");
    if (item.hasFinished().value_or(false))
        return QStringLiteral("Completed");
    const std::optional<Date> due = item.effectiveDate();
    if (!due)
        return QStringLiteral("Anytime");
    const LulletListBuilder::Today today(app.clock().now());
    return today.daysTo(*due) <= LulletListBuilder::reminderWindowDays(item)
               ? QStringLiteral("Today")
               : QStringLiteral("Upcoming");
}

std::vector<SidebarRow> Segments::search(const QString& text, const std::vector<SidebarRow>& rows,
                                         AppDelegate& app)
{
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
            for (const ReminderInfo* item : row.project->toReminders())
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
    const LulletListBuilder::Today todayBounds(app.clock().now());
    const Date endOfToday = app.clock().now().dateAtEndOfDay();
    QSet<const ReminderInfo*> listed;
    for (ReminderInfo* item : app.getAllLulletLists()) {
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
