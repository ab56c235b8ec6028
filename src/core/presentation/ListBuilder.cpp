#include "core/presentation/ListBuilder.h"

#include "core/dates/Clock.h"
#include "core/library/ItemOrder.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/model/Project.h"
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
    // Weekday, day, month and year, as "Mon 3, Jan 2025"; a long history has thousands.
    static const QString heading = tr("%1 %2, %3 %4");
    return heading.arg(weekday, QString::number(day.day()), month, QString::number(day.year()));
}

std::vector<Item*> ListBuilder::itemsFor(const Scope& scope, Library& library, Date now)
{
    const Filter filter(scope, now);
    std::vector<Item*> items;
    for (Item* item : library.items()) {
        if (filter.accepts(*item))
            items.push_back(item);
    }
    ItemOrder::sortForList(items);
    return items;
}

} // namespace lullet
