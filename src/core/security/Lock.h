#pragma once

#include <QObject>

namespace lullet {

// Whether the user is in. With password protection on, the program starts locked and the login
// page unlocks it once per run; nothing locks it again until the next launch. While locked the
// idle questions wait.
class Lock final : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    bool isLocked() const { return m_locked; }
    void lock();
    void unlock();

Q_SIGNALS:
    void locked();
    void unlocked();

private:
    bool m_locked = false;
};

} // namespace lullet
