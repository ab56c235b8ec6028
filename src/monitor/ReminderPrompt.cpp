#include "monitor/ReminderPrompt.h"

#include "core/app/AppDelegate.h"
#include "core/app/PromptHost.h"
#include "core/dates/Clock.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "monitor/TimeOverPrompt.h"

namespace lullet {

ReminderPrompt::ReminderPrompt(AppDelegate& app, ReminderInfo* due, ReminderInfo* previous)
    : objReminder(due)
    , objReminderPrev(previous)
    , m_app(app)
{
}

QString ReminderPrompt::reminderText() const
{
    if (!objReminder)
        return QStringLiteral("None");
    QString text = QStringLiteral("Time for : ") + objReminder->title().value_or(QString()) +
                   QStringLiteral(", at :");
    if (const std::optional<Date> due = objReminder->effectiveDate())
        text += due->toString(DateStyle::none, DateStyle::shortStyle);
    return text;
}

QString ReminderPrompt::previousText() const
{
    return TimeOverPrompt(m_app, objReminderPrev).previousText();
}

void ReminderPrompt::onStart()
{
    if (ReminderInfo* item = objReminder) {
        item->setHasStarted(true);
        // Deliberately the scheduled date first here, unlike the display.
        const std::optional<Date> date =
            item->dtReminder() ? item->dtReminder() : item->dtReminderPostponed();
        if (date) {
            const Date now = m_app.clock().now();
            const qint64 intoToday = now.secondsAfterDate(now.dateAtStartOfDay());
            item->setDtReminderPostponed(
                date->dateAtStartOfDay().dateByAddingSeconds(int(intoToday)));
        }
        m_app.objReminderRunningNow = item;
        item->setTimeLimit(item->durationHr().value_or(0) * 60 * 60 +
                           item->durationMin().value_or(0) * 60);
        item->setElapsedTime(0);
        m_app.notifCenter().post(notification::onReminderStarted, QVariant::fromValue(item));
    }
    m_app.host().closePopover();
    if (objReminder)
        m_app.notifCenter().post(notification::onItemAddedOrEdited);
}

void ReminderPrompt::postpone(int minutes, bool save)
{
    if (ReminderInfo* item = objReminder) {
        if (const std::optional<Date> date = item->effectiveDate()) {
            item->setDtReminderPostponed(date->dateByAddingMinutes(minutes));
            if (save)
                m_app.saveAction();
            m_app.notifCenter().post(notification::onReminderPostponed, QVariant::fromValue(item));
        }
    }
    m_app.host().closePopover();
}

void ReminderPrompt::onPostpone10()
{
    postpone(10, false);
}

void ReminderPrompt::onPostpone30()
{
    postpone(30, true);
}

void ReminderPrompt::finishedPrevious()
{
    if (ReminderInfo* previous = objReminderPrev) {
        previous->setHasStarted(false);
        m_app.objReminderRunningNow = nullptr;
        m_app.dtLastAnyALertOn = m_app.clock().now();
        previous->setRunningTimeCovered(std::nullopt);
        previous->setHasFinished(true);
        m_app.saveAction();
        m_app.notifCenter().post(notification::onReminderFinished, QVariant::fromValue(previous));
    }
    // Answering cannot leave the due item waiting.
    onStart();
}

void ReminderPrompt::onNeedMoreTimeOptionSelected(int minutes)
{
    if (objReminderPrev)
        TimeOverPrompt::extend(m_app, *objReminderPrev, minutes);
    if (ReminderInfo* item = objReminder) {
        if (const std::optional<Date> date = item->effectiveDate()) {
            item->setDtReminderPostponed(date->dateByAddingMinutes(minutes));
            m_app.saveAction();
            m_app.notifCenter().post(notification::onReminderPostponed, QVariant::fromValue(item));
        }
    }
    m_app.dtLastAnyALertOn = m_app.clock().now();
    m_app.host().closePopover();
}

} // namespace lullet
