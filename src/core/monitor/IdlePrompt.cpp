#include "core/monitor/IdlePrompt.h"

#include "core/activity/RunningItem.h"
#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/model/RepeatCodes.h"
#include "core/text/CountedText.h"

namespace lullet {

namespace {

QString shortTime(Date d)
{
    return d.toString(DateStyle::None, DateStyle::Short);
}

} // namespace

IdlePrompt::IdlePrompt(const Clock& clock, Library& library, RunningItem& running, Date since,
                       bool askNow)
    : m_clock(clock)
    , m_library(library)
    , m_running(running)
    , m_since(since)
    , m_askNow(askNow)
    , m_askedAt(clock.now())
{
    if (const std::optional<Date> unanswered = m_running.unansweredGapStart()) {
        m_since = *unanswered;
        m_running.setUnansweredGapStart(std::nullopt);
    }
}

QString IdlePrompt::rangeText() const
{
    const Date now = m_clock.now();
    if (m_askNow)
        return tr("(%1)").arg(shortTime(now));
    return tr("(%1 - %2)").arg(shortTime(m_since), shortTime(now));
}

QString IdlePrompt::questionText() const
{
    if (m_askNow)
        return tr("What are you doing now ?");
    const qint64 minutes = m_clock.now().minutesAfterDate(m_since);
    return CountedText::text(
        "IdlePrompt",
        QT_TRANSLATE_N_NOOP("IdlePrompt", "What were you doing for last %n minutes ?"), minutes);
}

void IdlePrompt::extend(bool askNow)
{
    m_askNow = askNow;
    if (m_askNow)
        m_askedAt = m_clock.now();
}

void IdlePrompt::leaveUnanswered()
{
    if (!m_answered)
        m_running.setUnansweredGapStart(m_since);
}

void IdlePrompt::putOff()
{
    if (m_answered)
        return;
    leaveUnanswered();
    m_running.stampPromptNow();
}

PromptOutcome IdlePrompt::answer(const QString& text, Project* project, bool alreadyDone)
{
    const QString title = text.trimmed();
    if (title.isEmpty() || m_answered)
        return PromptOutcome::Stay;
    m_answered = true;
    m_running.setUnansweredGapStart(std::nullopt);
    const Date now = m_clock.now();

    Item* item = m_library.newTask(title);
    item->setDurationHr(0);
    item->setDurationMin(0);
    item->setRemindBefore(int(RemindBefore::OnTheDay));
    item->setShouldRemind(false);
    item->setDtReminder(m_since);
    item->setRepeatInterval(0);
    item->setRepeatIntervalType(0);
    item->setRepeatOption(0);
    item->setDtRepeatUpto(now);
    item->setNotes(QString());
    item->setToProject(project);
    m_library.addItem(item);

    // An answer in the "now" mode counts from the moment of asking, any other from the start of
    // the gap.
    const Date from = m_askNow ? m_askedAt : m_since;
    item->setElapsedTime(int(now.secondsAfterDate(from)));
    const int period = m_running.promptPeriod();
    const int sinceAsked = int(now.minutesAfterDate(m_askedAt));
    item->setTimeLimitExtendedBy(period > sinceAsked ? 60 * period : 60 * (period + sinceAsked));
    // Either way the running item tells the views: the new item is one change, not two.
    if (alreadyDone) {
        m_running.finish(*item);
        return PromptOutcome::CloseAtOnceAndAsk;
    }
    m_running.start(*item, RunningItem::Start::AsRecorded);
    m_library.save();
    m_running.stampPrompt(m_askedAt);
    return PromptOutcome::Close;
}

} // namespace lullet
