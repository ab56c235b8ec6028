#include "core/monitor/ReminderPrompt.h"

#include "core/activity/Postponing.h"
#include "core/activity/RunningItem.h"
#include "core/model/Item.h"
#include "core/monitor/TimeOverPrompt.h"
#include "core/scheduling/CatalogueEntries.h"

namespace lullet {

ReminderPrompt::ReminderPrompt(Postponing& postponing, RunningItem& running, Item* due,
                               Item* previous)
    : m_postponing(postponing)
    , m_running(running)
    , m_due(due)
    , m_previous(previous)
{
}

QString ReminderPrompt::reminderText() const
{
    if (!m_due)
        return tr("None");
    const std::optional<Date> due = m_due->effectiveDate();
    return tr("Time for : %1, at :%2")
        .arg(CatalogueEntries::shown(m_due->title().value_or(QString())),
             due ? due->toString(DateStyle::None, DateStyle::Short) : QString());
}

QString ReminderPrompt::previousText() const
{
    return TimeOverPrompt::question(m_previous);
}

PromptOutcome ReminderPrompt::start()
{
    if (m_due)
        m_running.start(*m_due);
    return PromptOutcome::Close;
}

PromptOutcome ReminderPrompt::postpone10()
{
    if (m_due)
        m_postponing.postponeBy(*m_due, 10, false);
    return PromptOutcome::Close;
}

PromptOutcome ReminderPrompt::postpone30()
{
    if (m_due)
        m_postponing.postponeBy(*m_due, 30);
    return PromptOutcome::Close;
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
    if (m_due)
        m_postponing.postponeBy(*m_due, minutes);
    m_running.stampPromptNow();
    return PromptOutcome::Close;
}

} // namespace lullet
