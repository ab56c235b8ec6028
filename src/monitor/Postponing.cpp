#include "monitor/Postponing.h"

#include "core/app/AppDelegate.h"
#include "core/dates/Clock.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"

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

void announce(AppDelegate& app, ReminderInfo* item, bool resort)
{
    app.saveAction();
    if (resort)
        app.reSortLulletObjects();
    app.notifCenter().post(notification::onReminderPostponed, QVariant::fromValue(item));
}

} // namespace

Date Postponing::panelBase(const ReminderInfo& item, const Clock& clock)
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
        return base.isToday(clock) ? QStringLiteral("Tomorrow eve")
                                   : QStringLiteral("Next evening");
    return QStringLiteral("This evening");
}

QString Postponing::nextDayLabel(Date base, const Clock& clock)
{
    return base.isToday(clock) ? QStringLiteral("Tomorrow") : QStringLiteral("Next day");
}

QString Postponing::inTwoDaysLabel(Date base)
{
    return base.dateByAddingDays(2).weekdayToString();
}

QString Postponing::weekendLabel(Date base)
{
    return base.dateAtEndOfWeek().dateByAddingHours(10).daysAfterDate(base) > 0
               ? QStringLiteral("This weekend")
               : QStringLiteral("Next weekend");
}

bool Postponing::chooseInPanel(AppDelegate& app, ReminderInfo* item, int choice)
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
                   dateFor(choice, panelBase(*item, app.clock()), app.clock())) {
        item->setDtReminderPostponed(date);
    } else {
        return true;
    }
    announce(app, item, true);
    return true;
}

void Postponing::chooseInMenu(AppDelegate& app, ReminderInfo* item, int choice)
{
    if (!item)
        return;
    const std::optional<Date> date = dateFor(choice, app.clock().now(), app.clock());
    if (!date)
        return;
    item->setDtReminderPostponed(date);
    announce(app, item, false);
}

void Postponing::postponeToCustom(AppDelegate& app, ReminderInfo* item, Date date)
{
    if (!item)
        return;
    item->setDtReminderPostponed(date);
    announce(app, item, true);
}

} // namespace lullet
