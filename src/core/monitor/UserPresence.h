#pragma once

#include <QObject>

#include <optional>

namespace lullet {

// What the desktop says of the user: whether the session is locked, how long since the last key
// or mouse input, whether another program is full screen, and whether the desktop holds back
// notifications ("do not disturb"). Each source may be missing; a missing one says nothing. The
// desktop's sources in the program, a fake in tests.
class UserPresence : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    virtual bool isLocked() const = 0;
    // Milliseconds since the last input, as last read; none where no source can tell.
    virtual std::optional<qint64> idleMilliseconds() const = 0;
    virtual bool isOtherProgramFullScreen() const = 0;
    virtual bool notificationsInhibited() const = 0;
    // Reads again what can only be asked for, not heard (the idle time, full screen); called at
    // the minute's pass, so that the program still sleeps between minutes. What changes is told
    // by changed(), now or when the answer comes.
    virtual void refresh() = 0;

Q_SIGNALS:
    void changed();
};

} // namespace lullet
