#include "lists/LulletListBuilder.h"

#include "core/app/AppDelegate.h"
#include "core/dates/Clock.h"
#include "lists/RowValues.h"
#include "scheduling/RepeatTypes.h"

#include <algorithm>

namespace lullet {

int LulletListBuilder::reminderWindowDays(const ReminderInfo& item)
{
    return remindBeforeDays(item.remindBefore().value_or(0));
}

LulletListBuilder::Today::Today(Date now)
    : start(now.dateAtStartOfDay())
    , end(now.dateByAddingDays(1).dateAtStartOfDay())
{
}

qint64 LulletListBuilder::Today::daysTo(Date d) const
{
    // Rounded, since a day across a change of the clocks is not 24 hours long.
    return qRound64((d.dateAtStartOfDay().timeIntervalSince1970() - start.timeIntervalSince1970()) /
                    86400.0);
}

bool LulletListBuilder::belongs(const ReminderInfo& item, const Scope& scope, AppDelegate& app)
{
    return Filter(scope, app.clock().now()).accepts(item);
}

bool LulletListBuilder::belongs(const ReminderInfo& item, const Scope& scope, const Today& today)
{
    return Filter(scope, today.start).accepts(item);
}

LulletListBuilder::Filter::Filter(const Scope& scope, Date now)
    : m_today(now)
    , m_project(scope.project)
    , m_anytime(scope.isAnytime())
    , m_todayWithoutProject(scope.isToday() && !scope.project)
    , m_runningOnly(scope.showRunningOnly)
{
}

bool LulletListBuilder::Filter::accepts(const ReminderInfo& item) const
{
    if (!item.hasContext())
        return false;
    if (m_project && item.toProject() != m_project)
        return false;
    if (m_anytime && item.dtReminder())
        return false;
    if (m_runningOnly && !item.hasStarted().value_or(false))
        return false;
    const bool finished = item.hasFinished().value_or(false);
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

void LulletListBuilder::getSortedArray(std::vector<ReminderInfo*>& items)
{
    std::stable_sort(items.begin(), items.end(), [](const ReminderInfo* a, const ReminderInfo* b) {
        const bool aDone = a->hasFinished().value_or(false);
        const bool bDone = b->hasFinished().value_or(false);
        if (aDone != bDone)
            return !aDone;
        const std::optional<Date> da = a->effectiveDate();
        const std::optional<Date> db = b->effectiveDate();
        if (!da || !db)
            return da.has_value() && !db.has_value();
        return *da < *db;
    });
}

QString LulletListBuilder::dayHeading(Date day)
{
    QString weekday = day.shortWeekdayToString();
    QString month = day.shortMonthToString();
    if (!weekday.isEmpty())
        weekday[0] = weekday[0].toUpper();
    if (!month.isEmpty())
        month[0] = month[0].toUpper();
    return weekday + u' ' + QString::number(day.day()) + QStringLiteral(", ") + month + u' ' +
           QString::number(day.year());
}

std::vector<LulletRow> LulletListBuilder::groupByDay(const std::vector<ReminderInfo*>& items,
                                                     AppDelegate& app, bool withProjectName)
{
    std::vector<ReminderInfo*> dated;
    std::vector<ReminderInfo*> undated;
    for (ReminderInfo* item : items)
        (item->effectiveDate() ? dated : undated).push_back(item);
    std::stable_sort(dated.begin(), dated.end(), [](const ReminderInfo* a, const ReminderInfo* b) {
        return *a->effectiveDate() < *b->effectiveDate();
    });
    std::vector<LulletRow> rows;
    std::optional<Date> currentDay;
    const auto heading = [&rows](const QString& text) {
        LulletRow row;
        row.type = LulletRow::DayHeading;
        row.title = text;
        rows.push_back(row);
    };
    for (ReminderInfo* item : dated) {
        const Date day = item->effectiveDate()->dateAtStartOfDay();
        if (!currentDay || *currentDay != day) {
            currentDay = day;
            heading(dayHeading(day));
        }
        rows.push_back(RowValues::makeRow(item, app, withProjectName));
    }
    if (!undated.empty()) {
        heading(QStringLiteral("AnyTime"));
        for (ReminderInfo* item : undated)
            rows.push_back(RowValues::makeRow(item, app, withProjectName));
    }
    return rows;
}

std::vector<LulletRow> LulletListBuilder::customListing(const QString& segment, AppDelegate& app)
{
    const bool upcoming = segment == QStringLiteral("Upcoming");
    const Date now = app.clock().now();
    std::vector<ReminderInfo*> items;
    for (ReminderInfo* item : app.getAllLulletLists()) {
        const bool finished = item->hasFinished().value_or(false);
        const std::optional<Date> due = item->effectiveDate();
        if (!due || finished == upcoming || (upcoming && !(*due > now)))
            continue;
        items.push_back(item);
    }
    // The later first; the days are then put in the segment's order.
    std::stable_sort(items.begin(), items.end(), [](const ReminderInfo* a, const ReminderInfo* b) {
        return *a->effectiveDate() > *b->effectiveDate();
    });
    std::vector<std::pair<Date, std::vector<ReminderInfo*>>> days;
    for (ReminderInfo* item : items) {
        const Date day = item->effectiveDate()->dateAtStartOfDay();
        if (days.empty() || days.back().first != day)
            days.push_back({day, {}});
        days.back().second.push_back(item);
    }
    if (upcoming)
        std::reverse(days.begin(), days.end());

    std::vector<LulletRow> rows;
    for (const auto& [day, dayItems] : days) {
        LulletRow heading;
        heading.type = LulletRow::DayHeading;
        heading.title = dayHeading(day);
        heading.countOnDay = int(dayItems.size());
        const std::size_t headingAt = rows.size();
        rows.push_back(heading);
        int used = 0;
        for (ReminderInfo* item : dayItems) {
            rows.push_back(RowValues::makeRow(item, app, true));
            used += rows.back().timeUsedInSeconds;
        }
        rows[headingAt].timeUsedInSeconds = used;
        rows[headingAt].timeUsed = RowValues::getStringFromSeconds(used);
    }
    return rows;
}

std::vector<std::pair<Date, int>>
LulletListBuilder::timeUsedByDay(const std::vector<LulletRow>& rows)
{
    std::vector<std::pair<Date, int>> days;
    for (const LulletRow& row : rows) {
        if (row.type != LulletRow::Item || !row.representedObject)
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

std::vector<ReminderInfo*> LulletListBuilder::prepareLulletListArray(const Scope& scope,
                                                                     AppDelegate& app)
{
    const Filter filter(scope, app.clock().now());
    std::vector<ReminderInfo*> items;
    for (ReminderInfo* item : app.getAllLulletLists()) {
        if (filter.accepts(*item))
            items.push_back(item);
    }
    getSortedArray(items);
    return items;
}

} // namespace lullet
