#include "core/monitor/ReminderPause.h"

#include "core/dates/Clock.h"
#include "core/settings/Settings.h"

namespace lullet {

ReminderPause::ReminderPause(const Clock& clock, Settings& settings, QObject* parent)
    : QObject(parent)
    , m_clock(clock)
    , m_settings(settings)
{
}

bool ReminderPause::isPaused() const
{
    switch (m_settings.remindersPause()) {
    case Settings::Pause::None:
        return false;
    case Settings::Pause::UntilResumed:
        return true;
    case Settings::Pause::Until:
        return m_clock.now() < m_settings.remindersPausedUntil();
    }
    return false;
}

std::optional<Date> ReminderPause::until() const
{
    if (!isPaused() || m_settings.remindersPause() != Settings::Pause::Until)
        return std::nullopt;
    return m_settings.remindersPausedUntil();
}

QString ReminderPause::description() const
{
    if (!isPaused())
        return {};
    const std::optional<Date> end = until();
    if (!end)
        return tr("Reminders paused until you resume them");
    // A pause that ends on another day says which.
    const DateStyle day = end->isToday(m_clock) ? DateStyle::None : DateStyle::Medium;
    return tr("Reminders paused until %1").arg(end->toString(day, DateStyle::Short, &m_clock));
}

void ReminderPause::pauseFor(int minutes)
{
    pauseUntil(m_clock.now().dateByAddingMinutes(std::max(1, minutes)));
}

void ReminderPause::pauseUntilTomorrow()
{
    pauseUntil(m_clock.now().dateAtStartOfDay().dateByAddingDays(1));
}

void ReminderPause::pauseUntilResumed()
{
    pauseUntil(std::nullopt);
}

void ReminderPause::pauseUntil(std::optional<Date> end)
{
    if (end)
        m_settings.setRemindersPause(Settings::Pause::Until, *end);
    else
        m_settings.setRemindersPause(Settings::Pause::UntilResumed);
    Q_EMIT changed();
}

void ReminderPause::resume()
{
    if (m_settings.remindersPause() == Settings::Pause::None)
        return;
    m_settings.setRemindersPause(Settings::Pause::None);
    Q_EMIT changed();
}

void ReminderPause::endIfOver()
{
    if (m_settings.remindersPause() == Settings::Pause::Until && !isPaused())
        resume();
}

} // namespace lullet
