#include "core/monitor/Monitor.h"

#include "core/activity/RunningItem.h"
#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/scheduling/Catalogue.h"
#include "core/scheduling/WorkingHours.h"
#include "core/security/Lock.h"
#include "core/settings/Settings.h"

#include <cmath>
#include <functional>

namespace lullet {

namespace {

bool sameMinuteOfDay(Date a, Date b)
{
    return a.hour() == b.hour() && a.minute() == b.minute();
}

} // namespace

Monitor::Monitor(const Services& services, QObject* parent)
    : QObject(parent)
    , m_services(services)
{
}

void Monitor::later(std::function<void()> emitter)
{
    QMetaObject::invokeMethod(this, std::move(emitter), Qt::QueuedConnection);
}

void Monitor::tick()
{
    RunningItem& running = m_services.running;
    if (Item* item = running.item()) {
        const Date now = m_services.clock.now();
        const int limit = item->timeLimit().value_or(0);
        const int elapsed = running.countSecond();

        if (limit <= 0) {
            // An unlimited item asks again every period, counted from the last prompt. The
            // equality is deliberate: a period that went by unprompted raises nothing until the
            // idle clock moves.
            const Date last = running.lastPromptAt().value_or(now);
            const qint64 mins = now.secondsAfterDate(last) / 60;
            const int extendedBy = item->timeLimitExtendedBy().value_or(0);
            const qint64 period = extendedBy > 0 ? extendedBy / 60 : running.promptPeriod();
            if (mins == period && elapsed > period * 60) {
                running.stampPrompt(now);
                if (period > 0)
                    later([this, item] { Q_EMIT timeOver(item); });
                return;
            }
        }
        // A limited item's time is over exactly once, on the tick that reaches the limit.
        const int left = limit > 0 ? limit - elapsed : elapsed;
        if (left == 0) {
            running.stampPrompt(now);
            later([this, item] { Q_EMIT timeOver(item); });
            return;
        }
    }
    Q_EMIT ticked();
    minutePass();
}

void Monitor::minutePass()
{
    const Date now = m_services.clock.now();
    if (now.seconds() != 0)
        return;
    // The timer may fire twice within second 0: the minute is passed once.
    const qint64 minute = qint64(std::floor(now.timeIntervalSince1970() / 60));
    if (minute == m_lastMinutePassed)
        return;
    m_lastMinutePassed = minute;
    m_services.catalogue.refreshActiveRows();
    later([this] { Q_EMIT minutePassed(); });
    // A minute with reminders asks no idle question.
    if (raiseDueItems(now))
        return;

    RunningItem& running = m_services.running;
    const int period = running.promptPeriod();
    if (!idleQuestionsAllowed() || period < 1 || running.item() || !running.lastPromptAt())
        return;
    const Date since = *running.lastPromptAt();
    // The second test fires up to 29 seconds before the full period is over.
    if (now.minutesAfterDate(since) >= period ||
        now.secondsAfterDate(since) > qint64(period - 1) * 60 + 30) {
        running.stampPrompt(now);
        later([this, since] { Q_EMIT idleQuestionDue(since, false); });
    }
}

bool Monitor::raiseDueItems(Date now)
{
    const Clock& clock = m_services.clock;
    const std::vector<Item*> snapshot = m_services.library.items();
    bool raised = false;
    for (std::size_t i = 0; i < snapshot.size(); ++i) {
        Item* item = snapshot[i];
        if (item->isFinished())
            continue;
        const std::optional<Date> due = item->effectiveDate();
        if (!due)
            continue;
        if (item->isToDo()) {
            // A to-do fires at its time of day on every day, past dates included, until it is
            // finished; it is no prompt for the idle clock.
            if (sameMinuteOfDay(*due, now))
                later([this, item] { Q_EMIT toDoDue(item); });
            continue;
        }
        if (!item->shouldRemind().value_or(false) || item->isStarted() || !due->isToday(clock) ||
            !sameMinuteOfDay(*due, now))
            continue;
        // The item still running, if any, is asked about in the same prompt.
        Item* previous = nullptr;
        for (std::size_t j = i; j-- > 0;) {
            if (snapshot[j]->isStarted()) {
                previous = snapshot[j];
                break;
            }
        }
        m_services.running.stampPrompt(now);
        later([this, item, previous] { Q_EMIT reminderDue(item, previous); });
        // Every item due this minute is asked about: the prompts wait their turn.
        raised = true;
    }
    return raised;
}

bool Monitor::idleQuestionsAllowed() const
{
    const Settings& settings = m_services.settings;
    return settings.welcomeDone() && !settings.idleQuestionsOff() && !m_services.lock.isLocked() &&
           m_services.hours.isWorkingTime(m_services.clock.now());
}

void Monitor::askWhatNow()
{
    if (!idleQuestionsAllowed())
        return;
    RunningItem& running = m_services.running;
    const Date now = m_services.clock.now();
    const Date since = running.lastPromptAt().value_or(now);
    running.stampPrompt(now);
    later([this, since] { Q_EMIT idleQuestionDue(since, true); });
}

} // namespace lullet
