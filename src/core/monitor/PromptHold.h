#pragma once

#include "core/dates/Date.h"

#include <QObject>

#include <optional>

namespace lullet {

class Clock;
class Item;
class PromptQueue;
class ReminderPause;
class RunningItem;
class Settings;
class UserPresence;

// Whether prompts may show now. They wait while the user paused the reminders, while the
// session is locked, while the user is away (no input for the minutes the preferences say),
// while another program is full screen (by preference) and while the desktop holds notifications
// back. When that ends, what fell due meanwhile shows, in order. A break that fell due while the
// user was away, for at least its length, may count as taken.
class PromptHold final : public QObject {
    Q_OBJECT
public:
    enum class Reason { None, Paused, Locked, Away, FullScreen, DoNotDisturb };

    struct Services {
        const Clock& clock;
        Settings& settings;
        ReminderPause& pause;
        // None: no desktop to ask, as in most tests.
        UserPresence* presence;
        PromptQueue& queue;
        RunningItem& running;
    };
    explicit PromptHold(const Services& services, QObject* parent = nullptr);

    Reason reason() const { return m_reason; }
    bool isHeld() const { return m_reason != Reason::None; }

    // The minute's pass: a pause whose time is over ends, and the desktop is asked again.
    void refresh();

Q_SIGNALS:
    void changed();

private:
    void update();
    bool isAway();
    Reason currentReason();
    // The breaks waiting to be shown that fell due while the user was away, for at least their
    // length, were taken.
    void takeNaturalBreaks(Date awaySince, Date back);

    Services m_services;
    Reason m_reason = Reason::None;
    std::optional<Date> m_awaySince;
};

} // namespace lullet
