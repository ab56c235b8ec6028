#include "core/activity/RunningItem.h"

#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"

#include <utility>

namespace lullet {

RunningItem::RunningItem(const Clock& clock, Library& library, QObject* parent)
    : QObject(parent)
    , m_clock(clock)
    , m_library(library)
{
    connect(&m_library, &Library::itemRemoved, this, &RunningItem::onItemRemoved);
}

void RunningItem::stampPromptNow()
{
    m_lastPromptAt = m_clock.now();
}

void RunningItem::onItemRemoved(Item* item)
{
    // A running item taken out of the list stops running, and that counts as an event.
    if (item != m_item)
        return;
    stampPromptNow();
    forget();
}

void RunningItem::start(Item& item, Start how)
{
    item.setHasStarted(true);
    m_item = &item;
    // The time with nothing running ends here: an idle question left unanswered before does not
    // cover what this item times.
    m_unansweredGapStart.reset();
    if (how == Start::Now) {
        const Date now = m_clock.now();
        // Deliberately the scheduled date first here, unlike the display: the item keeps its own
        // day.
        const Date day = item.dtReminder().value_or(item.dtReminderPostponed().value_or(now));
        const qint64 intoToday = now.secondsAfterDate(now.dateAtStartOfDay());
        item.setDtReminderPostponed(day.dateAtStartOfDay().dateByAddingSeconds(int(intoToday)));
        item.setTimeLimit(item.plannedSeconds());
        item.setElapsedTime(0);
    }
    Q_EMIT started(&item);
}

int RunningItem::countSecond()
{
    if (!m_item)
        return 0;
    const int elapsed = m_item->elapsedTime().value_or(0) + 1;
    m_item->setElapsedTime(elapsed);
    return elapsed;
}

void RunningItem::forget()
{
    Item* was = std::exchange(m_item, nullptr);
    if (was)
        Q_EMIT finished(was);
}

void RunningItem::finish(Item& item, Finish how)
{
    item.setHasStarted(false);
    item.setHasFinished(true);
    if (m_item == &item)
        m_item = nullptr;
    if (how == Finish::Quietly) {
        Q_EMIT finished(&item);
        return;
    }
    const Date now = m_clock.now();
    if (how != Finish::ToDoDone && how != Finish::TakenWhileAway) {
        m_lastPromptAt = now;
        m_unansweredGapStart.reset();
    }
    if (how == Finish::TakenWhileAway) {
        item.setTimeLimit(item.plannedSeconds());
        item.setElapsedTime(item.plannedSeconds());
    }
    item.setRunningTimeCovered(std::nullopt);
    if (how == Finish::FileNow || how == Finish::ToDoDone) {
        item.setDtReminder(now);
        item.setDtReminderPostponed(now);
    }
    m_library.save();
    m_library.resortItems();
    Q_EMIT finished(&item);
}

void RunningItem::extend(Item& item, int minutes)
{
    const int limit = item.timeLimit().value_or(0);
    if (limit <= 0) {
        item.setTimeLimitExtendedBy(minutes * 60);
        item.setRunningTimeCovered(item.elapsedTime());
        m_library.save();
        Q_EMIT extended(&item);
        return;
    }
    const int newLimit = limit + minutes * 60;
    item.setTimeLimit(newLimit);
    if (item.plannedSeconds() > 0) {
        item.setDurationHr(newLimit / 3600);
        item.setDurationMin(newLimit % 3600 / 60);
    }
    m_library.save();
    Q_EMIT extended(&item);
}

} // namespace lullet
