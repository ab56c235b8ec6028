#include "monitor/Monitor.h"

#include "core/app/AppDelegate.h"
#include "core/app/PromptHost.h"
#include "core/dates/Clock.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "core/settings/SettingsKeys.h"
#include "core/settings/UserDefaults.h"
#include "scheduling/DefaultCatalogue.h"
#include "scheduling/LulletGenerator.h"
#include "scheduling/RepeatTypes.h"
#include "scheduling/WorkingHours.h"

#include <QPointer>

namespace lullet {

namespace {

bool isTrue(const std::optional<bool>& value)
{
    return value.value_or(false);
}

bool sameMinuteOfDay(Date a, Date b)
{
    return a.hour() == b.hour() && a.minute() == b.minute();
}

} // namespace

Monitor::Monitor(AppDelegate& app, PromptHost& host, QObject* parent)
    : QObject(parent)
    , m_app(app)
    , m_host(host)
{
}

void Monitor::raiseTimeOver(ReminderInfo* item)
{
    QPointer<Monitor> self(this);
    QMetaObject::invokeMethod(
        this,
        [self, item] {
            if (self)
                self->m_host.makeTimeOverPopOver(item);
        },
        Qt::QueuedConnection);
}

void Monitor::doMonitorTime()
{
    if (ReminderInfo* running = m_app.objReminderRunningNow) {
        const Date now = m_app.clock().now();
        const int limit = running->timeLimit().value_or(0);
        const int elapsed = running->elapsedTime().value_or(0) + 1;
        running->setElapsedTime(elapsed);

        if (limit <= 0) {
            // An unlimited item asks again every period, counted from the last prompt. The
            // equality is deliberate: a period that went by unprompted raises nothing until
            // dtLastAnyALertOn moves.
            const Date last = m_app.dtLastAnyALertOn.value_or(now);
            const qint64 mins = now.secondsAfterDate(last) / 60;
            const int extendedBy = running->timeLimitExtendedBy().value_or(0);
            const qint64 period = extendedBy > 0 ? extendedBy / 60 : m_app.intNoTaskDuration;
            if (mins == period && elapsed > period * 60) {
                m_app.dtLastAnyALertOn = now;
                if (period > 0)
                    raiseTimeOver(running);
                return;
            }
        }
        // A limited item's time is over exactly once, on the tick that reaches the limit.
        const int left = limit > 0 ? limit - elapsed : elapsed;
        if (left == 0) {
            m_app.dtLastAnyALertOn = now;
            raiseTimeOver(running);
            return;
        }
    }
    m_app.notifCenter().post(notification::onMonitoringDone);
    onDoMonitoring();
}

void Monitor::onDoMonitoring()
{
    const Date now = m_app.clock().now();
    if (now.seconds() != 0)
        return;

    // Every switched-on rule moves its next occurrence forward: the only way a new day is
    // noticed.
    {
        const LulletGenerator::Batch batch(m_app.generator());
        const std::vector<CatalogueRowPtr> rows = m_app.catalogue().mArrDefaultRepeats;
        for (const CatalogueRowPtr& row : rows) {
            if (row->representedObject && row->nextRepeatOn)
                m_app.catalogue().updateRepeatDictionary(*row);
        }
    }
    m_app.postQueued(notification::updateNextReminderDisplay);
    m_app.postQueued(notification::updateDueStatusDisplay);

    QPointer<Monitor> self(this);
    const std::vector<ReminderInfo*> snapshot = m_app.mArrAllLullets;
    for (std::size_t i = 0; i < snapshot.size(); ++i) {
        ReminderInfo* item = snapshot[i];
        if (isTrue(item->hasFinished()))
            continue;
        const std::optional<Date> due = item->effectiveDate();
        if (!due)
            continue;
        if (item->repeatOption() == std::optional<int>(RepeatOptionsToDo::TODO_VAL)) {
            // A to-do fires at its time of day on every day, past dates included, until it is
            // finished; it is no prompt for the idle clock.
            if (sameMinuteOfDay(*due, now)) {
                QMetaObject::invokeMethod(
                    this,
                    [self, item] {
                        if (self)
                            self->m_host.makeTODOPopOver(item);
                    },
                    Qt::QueuedConnection);
            }
            continue;
        }
        if (!isTrue(item->shouldRemind()) || isTrue(item->hasStarted()) ||
            !due->isToday(m_app.clock()) || !sameMinuteOfDay(*due, now))
            continue;
        // The item still running, if any, is asked about in the same prompt.
        ReminderInfo* previous = nullptr;
        for (std::size_t j = i; j-- > 0;) {
            if (isTrue(snapshot[j]->hasStarted())) {
                previous = snapshot[j];
                break;
            }
        }
        m_app.dtLastAnyALertOn = now;
        QMetaObject::invokeMethod(
            this,
            [self, item, previous] {
                if (self)
                    self->m_host.makeReminderPopOver(item, previous);
            },
            Qt::QueuedConnection);
        // One reminder a minute, and no idle question in it.
        return;
    }

    if (!idlePromptsAllowed() || m_app.intNoTaskDuration < 1 || m_app.objReminderRunningNow ||
        !m_app.dtLastAnyALertOn)
        return;
    const Date since = *m_app.dtLastAnyALertOn;
    // The second test fires up to 29 seconds before the full period is over.
    if (now.minutesAfterDate(since) >= m_app.intNoTaskDuration ||
        now.secondsAfterDate(since) > qint64(m_app.intNoTaskDuration - 1) * 60 + 30) {
        m_app.dtLastAnyALertOn = now;
        QMetaObject::invokeMethod(
            this,
            [self, since] {
                if (self)
                    self->m_host.makeIdleAlertPopOver(since, false);
            },
            Qt::QueuedConnection);
    }
}

bool Monitor::idlePromptsAllowed() const
{
    UserDefaults& defaults = m_app.defaults();
    const bool welcomeDone =
        defaults.hasValue(SettingsKeys::isShowFirst) && defaults.boolean(SettingsKeys::isShowFirst);
    return welcomeDone && defaults.integer(SettingsKeys::disableAutoPrompt) <= 0 && m_app.isLogin &&
           m_app.workingHours().checkIsTimeInSchedule(m_app.clock().now());
}

void Monitor::doPromptExternally()
{
    if (!idlePromptsAllowed())
        return;
    const Date since = m_app.dtLastAnyALertOn.value_or(m_app.clock().now());
    m_app.dtLastAnyALertOn = m_app.clock().now();
    QPointer<Monitor> self(this);
    QMetaObject::invokeMethod(
        this,
        [self, since] {
            if (self)
                self->m_host.makeIdleAlertPopOver(since, true);
        },
        Qt::QueuedConnection);
}

} // namespace lullet
