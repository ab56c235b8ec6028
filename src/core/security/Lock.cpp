#include "core/security/Lock.h"

namespace lullet {

void Lock::lock()
{
    if (m_locked)
        return;
    m_locked = true;
    Q_EMIT locked();
}

void Lock::unlock()
{
    if (!m_locked)
        return;
    m_locked = false;
    Q_EMIT unlocked();
}

} // namespace lullet
