#pragma once

#include "core/dates/Date.h"

#include <QObject>

#include <optional>

namespace lullet {

class Clock;
class Settings;

// The user's pause of the reminders: for some minutes, until tomorrow, or until resumed. It is
// kept in the settings, so that it outlives a restart until its end. While paused no prompt
// shows; what fell due meanwhile shows when the pause ends.
class ReminderPause final : public QObject {
    Q_OBJECT
public:
    ReminderPause(const Clock& clock, Settings& settings, QObject* parent = nullptr);

    bool isPaused() const;
    // The end of the pause; none while it lasts until resumed, or when not paused.
    std::optional<Date> until() const;

    // "Reminders paused until 10:30 AM", "… until you resume them", or nothing when not paused.
    QString description() const;

    void pauseFor(int minutes);
    // Until the start of tomorrow.
    void pauseUntilTomorrow();
    void pauseUntilResumed();
    void resume();
    // Ends a pause whose time is over; called at the minute's pass.
    void endIfOver();

Q_SIGNALS:
    void changed();

private:
    void pauseUntil(std::optional<Date> end);

    const Clock& m_clock;
    Settings& m_settings;
};

} // namespace lullet
