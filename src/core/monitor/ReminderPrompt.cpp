#include "core/monitor/ReminderPrompt.h"

#include "core/activity/RunningItem.h"
#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/monitor/TimeOverPrompt.h"

namespace lullet {

ReminderPrompt::ReminderPrompt(const Clock& clock, Library& library, RunningItem& running,
                               Item* due, Item* previous)
    : m_clock(clock)
    , m_library(library)
    , m_running(running)
    , m_due(due)
    , m_previous(previous)
{
}

QString ReminderPrompt::reminderText() const
{
    if (!m_due)
        return QStringLiteral("None");
    QString text = QStringLiteral("Time for : ") + m_due->title().value_or(QString()) +
                   QStringLiteral(", at :");
    if (const std::optional<Date> due = m_due->effectiveDate())
        text += due->toString(DateStyle::None, DateStyle::Short);
    return text;
}

QString ReminderPrompt::previousText() const
{
    return TimeOverPrompt::question(m_previous);
}

PromptOutcome ReminderPrompt::start()
{
    if (m_due) {
        m_running.start(*m_due);
        m_library.announceItemChanged();
    }
    return PromptOutcome::Close;
}

PromptOutcome ReminderPrompt::postpone(int minutes, bool save)
{
    if (m_due) {
        if (const std::optional<Date> date = m_due->effectiveDate()) {
            m_due->setDtReminderPostponed(date->dateByAddingMinutes(minutes));
            if (save)
                m_library.save();
            m_library.announcePostponed(m_due);
        }
    }
    return PromptOutcome::Close;
}

PromptOutcome ReminderPrompt::postpone10()
{
    return postpone(10, false);
}

PromptOutcome ReminderPrompt::postpone30()
{
    return postpone(30, true);
}

PromptOutcome ReminderPrompt::finishPrevious()
{
    if (m_previous)
        m_running.finish(*m_previous);
    // Answering cannot leave the due item waiting.
    return start();
}

PromptOutcome ReminderPrompt::moreTime(int minutes)
{
    if (m_previous)
        m_running.extend(*m_previous, minutes);
    if (m_due) {
        if (const std::optional<Date> date = m_due->effectiveDate()) {
            m_due->setDtReminderPostponed(date->dateByAddingMinutes(minutes));
            m_library.save();
            m_library.announcePostponed(m_due);
        }
    }
    m_running.stampPrompt(m_clock.now());
    return PromptOutcome::Close;
}

} // namespace lullet
