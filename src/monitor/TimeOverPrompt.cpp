#include "monitor/TimeOverPrompt.h"

#include "core/app/AppDelegate.h"
#include "core/app/PromptHost.h"
#include "core/dates/Clock.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "monitor/Monitor.h"

namespace lullet {

TimeOverPrompt::TimeOverPrompt(AppDelegate& app, ReminderInfo* previous)
    : objReminderPrev(previous)
    , m_app(app)
{
}

QString TimeOverPrompt::previousText() const
{
    if (!objReminderPrev)
        return {};
    return QStringLiteral("Have you finished : ") + objReminderPrev->title().value_or(QString()) +
           QStringLiteral(" ?");
}

void TimeOverPrompt::extend(AppDelegate& app, ReminderInfo& item, int minutes)
{
    const int limit = item.timeLimit().value_or(0);
    if (limit > 0) {
        const int newLimit = limit + minutes * 60;
        item.setTimeLimit(newLimit);
        const int hours = newLimit / 60 / 60;
        const int rest = (newLimit - hours * 60 * 60) / 60;
        if (item.durationHr().value_or(0) * 3600 + item.durationMin().value_or(0) * 60 > 0) {
            item.setDurationHr(hours);
            item.setDurationMin(rest);
        }
        app.saveAction();
        app.notifCenter().post(notification::onReminderExtended, QVariant::fromValue(&item));
    } else {
        item.setTimeLimitExtendedBy(minutes * 60);
        item.setRunningTimeCovered(item.elapsedTime());
        app.saveAction();
    }
}

void TimeOverPrompt::finishedPrevious()
{
    if (ReminderInfo* item = objReminderPrev) {
        const Date now = m_app.clock().now();
        item->setHasStarted(false);
        m_app.objReminderRunningNow = nullptr;
        m_app.dtLastAnyALertOn = now;
        item->setRunningTimeCovered(std::nullopt);
        item->setHasFinished(true);
        // Filed at the moment it was finished.
        item->setDtReminder(now);
        item->setDtReminderPostponed(now);
        m_app.saveAction();
        m_app.reSortLulletObjects();
        m_app.notifCenter().post(notification::onReminderFinished, QVariant::fromValue(item));
        m_app.notifCenter().post(notification::onItemAddedOrEdited);
    }
    m_app.host().closePopover();
    if (objReminderPrev)
        m_app.monitor().doPromptExternally();
}

void TimeOverPrompt::onNeedMoreTimeOptionSelected(int minutes)
{
    if (objReminderPrev)
        extend(m_app, *objReminderPrev, minutes);
    m_app.dtLastAnyALertOn = m_app.clock().now();
    m_app.host().closePopover();
}

} // namespace lullet
