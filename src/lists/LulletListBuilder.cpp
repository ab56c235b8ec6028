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
