#include "core/presentation/ListBuilder.h"

#include "core/dates/Clock.h"
#include "core/library/ItemOrder.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/model/Project.h"
#include "core/presentation/RowTexts.h"
#include "core/text/LocalizedText.h"

#include <algorithm>

namespace lullet {

QString ListBuilder::Scope::title() const
{
    return project ? project->name().value_or(QString()) : Segments::text(segment);
}

int ListBuilder::reminderWindowDays(const Item& item)
{
    return RemindBefore::days(item.remindBefore().value_or(0));
}

ListBuilder::Today::Today(Date now)
    : start(now.dateAtStartOfDay())
    , end(now.dateByAddingDays(1).dateAtStartOfDay())
{
}

qint64 ListBuilder::Today::daysTo(Date d) const
{
    // Rounded, since a day across a change of the clocks is not 24 hours long.
    return qRound64((d.dateAtStartOfDay().timeIntervalSince1970() - start.timeIntervalSince1970()) /
                    86400.0);
}

bool ListBuilder::belongs(const Item& item, const Scope& scope, Date now)
{
    return Filter(scope, now).accepts(item);
}

ListBuilder::Filter::Filter(const Scope& scope, Date now)
    : m_today(now)
    , m_project(scope.project)
    , m_anytime(scope.isAnytime())
    , m_todayWithoutProject(scope.isToday() && !scope.project)
    , m_runningOnly(scope.showRunningOnly)
{
}

bool ListBuilder::Filter::accepts(const Item& item) const
{
    if (!item.hasContext())
        return false;
    if (m_project && item.toProject() != m_project)
        return false;
    if (m_anytime && item.dtReminder())
        return false;
    if (m_runningOnly && !item.isStarted())
        return false;
    const bool finished = item.isFinished();
    if (m_anytime && finished)
        return false;
    const std::optional<Date> due = item.effectiveDate();
    if (!due)
        return m_anytime || m_project;
    if (m_todayWithoutProject) {
        if (finished)
            return m_today.contains(*due);
        // Overdue items (a negative count) and those within the window stay.
        return m_today.daysTo(*due) <= reminderWindowDays(item);
    }
    return true;
}

QString ListBuilder::dayHeading(Date day)
{
    const QString weekday = LocalizedText::capitalizeFirst(day.shortWeekdayToString());
    const QString month = LocalizedText::capitalizeFirst(day.shortMonthToString());
    return weekday + u' ' + QString::number(day.day()) + QStringLiteral(", ") + month + u' ' +
           QString::number(day.year());
}

std::vector<ListRow> ListBuilder::groupByDay(const std::vector<Item*>& items, const Clock& clock,
                                             bool withProjectName)
{
    std::vector<Item*> dated;
    std::vector<Item*> undated;
    for (Item* item : items)
        (item->effectiveDate() ? dated : undated).push_back(item);
    std::stable_sort(dated.begin(), dated.end(), [](const Item* a, const Item* b) {
        return *a->effectiveDate() < *b->effectiveDate();
    });
    std::vector<ListRow> rows;
    std::optional<Date> currentDay;
    const auto heading = [&rows](const QString& text) {
        ListRow row;
        row.type = ListRow::DayHeading;
        row.title = text;
        rows.push_back(row);
    };
    for (Item* item : dated) {
        const Date day = item->effectiveDate()->dateAtStartOfDay();
        if (!currentDay || *currentDay != day) {
            currentDay = day;
            heading(dayHeading(day));
        }
        rows.push_back(RowTexts::makeRow(item, clock, withProjectName));
    }
    if (!undated.empty()) {
        heading(Segments::text(Segment::Anytime));
        for (Item* item : undated)
            rows.push_back(RowTexts::makeRow(item, clock, withProjectName));
    }
    return rows;
}

std::vector<ListRow> ListBuilder::customListing(Segment segment, Library& library,
                                                const Clock& clock)
{
    const bool upcoming = segment == Segment::Upcoming;
    if (!upcoming)
        library.loadHistory();
    const Date now = clock.now();
    std::vector<Item*> items;
    for (Item* item : library.items()) {
        const bool finished = item->isFinished();
        const std::optional<Date> due = item->effectiveDate();
        if (!due || finished == upcoming || (upcoming && !(*due > now)))
            continue;
        items.push_back(item);
    }
    // The later first; the days are then put in the segment's order.
    std::stable_sort(items.begin(), items.end(), [](const Item* a, const Item* b) {
        return *a->effectiveDate() > *b->effectiveDate();
    });
    std::vector<std::pair<Date, std::vector<Item*>>> days;
    for (Item* item : items) {
        const Date day = item->effectiveDate()->dateAtStartOfDay();
        if (days.empty() || days.back().first != day)
            days.push_back({day, {}});
        days.back().second.push_back(item);
    }
    if (upcoming)
        std::reverse(days.begin(), days.end());

    std::vector<ListRow> rows;
    for (const auto& [day, dayItems] : days) {
        ListRow heading;
        heading.type = ListRow::DayHeading;
        heading.title = dayHeading(day);
        heading.countOnDay = int(dayItems.size());
        const std::size_t headingAt = rows.size();
        rows.push_back(heading);
        int used = 0;
        for (Item* item : dayItems) {
            rows.push_back(RowTexts::makeRow(item, clock, true));
            used += rows.back().timeUsedInSeconds;
        }
        rows[headingAt].timeUsedInSeconds = used;
        rows[headingAt].timeUsed = RowTexts::getStringFromSeconds(used);
    }
    return rows;
}

std::vector<std::pair<Date, int>> ListBuilder::timeUsedByDay(const std::vector<ListRow>& rows)
{
    std::vector<std::pair<Date, int>> days;
    for (const ListRow& row : rows) {
        if (row.type != ListRow::ItemRow || !row.representedObject)
            continue;
        const Date day = row.representedObject->effectiveDate()->dateAtStartOfDay();
        auto it =
            std::find_if(days.begin(), days.end(), [day](const auto& d) { return d.first == day; });
        if (it == days.end())
            days.push_back({day, row.timeUsedInSeconds});
        else
            it->second += row.timeUsedInSeconds;
    }
    std::sort(days.begin(), days.end(),
              [](const auto& a, const auto& b) { return a.first < b.first; });
    return days;
}

std::vector<Item*> ListBuilder::itemsFor(const Scope& scope, Library& library, Date now)
{
    const Filter filter(scope, now);
    if (scope.project)
        library.loadHistory(*scope.project);
    else if (filter.wantsHistory())
        library.loadHistory();
    std::vector<Item*> items;
    for (Item* item : library.items()) {
        if (filter.accepts(*item))
            items.push_back(item);
    }
    ItemOrder::sortForList(items);
    return items;
}

} // namespace lullet
