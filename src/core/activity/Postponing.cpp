#include "core/activity/Postponing.h"

#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"

namespace lullet {

namespace {

// 19:00 of the base's day, or of the next day once that has passed. "Passed" is strict here: at
// 19:00 exactly the evening is now.
Date evening(Date base)
{
    const Date e = base.dateAtStartOfDay().dateByAddingHours(19);
    return e < base ? e.dateByAddingDays(1) : e;
}

Date weekend(Date base)
{
    const Date w = base.dateAtEndOfWeek().dateByAddingHours(10);
    return w.daysAfterDate(base) <= 0 ? w.dateByAddingWeeks(1) : w;
}

} // namespace

Postponing::Postponing(const Clock& clock, Library& library)
    : m_clock(clock)
    , m_library(library)
{
}

void Postponing::announce(Item* item, bool resort)
{
    m_library.save();
    if (resort)
        m_library.resortItems();
    m_library.announcePostponed(item);
}

Date Postponing::panelBase(const Item& item, const Clock& clock)
{
    const std::optional<Date> postponed = item.dtReminderPostponed();
    return postponed && postponed->isToday(clock) ? *postponed : clock.now();
}

std::optional<Date> Postponing::dateFor(int choice, Date base, const Clock& clock)
{
    const Date now = clock.now();
    switch (choice) {
    case InThreeHours:
        return base.dateAtStartOfDay()
            .setTimeOfDate(now.hour(), now.minute(), 0)
            .dateByAddingHours(3);
    case ThisEvening:
        return evening(base);
    case Tomorrow:
        return base.dateByAddingDays(1).dateAtStartOfDay().dateByAddingHours(9);
    case InTwoDays:
        return base.dateByAddingDays(2).dateAtStartOfDay().dateByAddingHours(9);
    case ThisWeekend:
        return weekend(base);
    case NextWeek:
        return base.dateAtEndOfWeek().dateByAddingDays(2).dateAtStartOfDay().dateByAddingHours(9);
    case NextMonth:
        return base.dateByAddingMonths(1);
    default:
        return std::nullopt;
    }
}

QString Postponing::eveningLabel(Date base, const Clock& clock)
{
    if (base.dateAtStartOfDay().dateByAddingHours(19) < base)
        return base.isToday(clock) ? tr("Tomorrow eve") : tr("Next evening");
    return tr("This evening");
}

QString Postponing::nextDayLabel(Date base, const Clock& clock)
{
    return base.isToday(clock) ? tr("Tomorrow") : tr("Next day");
}

QString Postponing::inTwoDaysLabel(Date base)
{
    return base.dateByAddingDays(2).weekdayToString();
}

QString Postponing::weekendLabel(Date base)
{
    return base.dateAtEndOfWeek().dateByAddingHours(10).daysAfterDate(base) > 0
               ? tr("This weekend")
               : tr("Next weekend");
}

bool Postponing::chooseInPanel(Item* item, int choice)
{
    if (choice == Cancel || choice == PickDate)
        return false;
    if (!item)
        return true;
    if (choice == NoDate) {
        // The item loses its date and becomes an anytime item.
        item->setDtReminderPostponed(std::nullopt);
        item->setDtReminder(std::nullopt);
    } else if (const std::optional<Date> date =
                   dateFor(choice, panelBase(*item, m_clock), m_clock)) {
        item->setDtReminderPostponed(date);
    } else {
        return true;
    }
    announce(item, true);
    return true;
}

void Postponing::chooseInMenu(Item* item, int choice)
{
    if (!item)
        return;
    const std::optional<Date> date = dateFor(choice, m_clock.now(), m_clock);
    if (!date)
        return;
    item->setDtReminderPostponed(date);
    announce(item, false);
}

void Postponing::postponeTo(Item* item, Date date)
{
    if (!item)
        return;
    item->setDtReminderPostponed(date);
    announce(item, true);
}

void Postponing::postponeBy(Item& item, int minutes, bool save)
{
    const std::optional<Date> date = item.effectiveDate();
    if (!date)
        return;
    item.setDtReminderPostponed(date->dateByAddingMinutes(minutes));
    if (save)
        m_library.save();
    m_library.announcePostponed(&item);
}

} // namespace lullet
