#include "core/notify/NotificationCenter.h"

#include <algorithm>

namespace lullet {

NotificationCenter::NotificationCenter(QObject* parent)
    : QObject(parent)
{
}

NotificationCenter::~NotificationCenter()
{
    for (const auto& connection : std::as_const(m_ownerWatch))
        disconnect(connection);
}

void NotificationCenter::addObserver(QObject* owner, QLatin1String name, Handler handler)
{
    Q_ASSERT(owner);
    m_observers[QString(name)].push_back(
        {owner, std::make_shared<const Handler>(std::move(handler)), std::make_shared<bool>(true)});
    if (!m_ownerWatch.contains(owner)) {
        m_ownerWatch.insert(
            owner, connect(owner, &QObject::destroyed, this, [this, owner] { forget(owner); }));
    }
}

void NotificationCenter::removeObserver(QObject* owner)
{
    if (const auto connection = m_ownerWatch.take(owner))
        disconnect(connection);
    forget(owner);
}

void NotificationCenter::forget(QObject* owner)
{
    m_ownerWatch.remove(owner);
    for (auto it = m_observers.begin(); it != m_observers.end();) {
        auto& entries = it.value();
        for (auto& e : entries) {
            if (e.owner == owner)
                *e.active = false;
        }
        entries.erase(std::remove_if(entries.begin(), entries.end(),
                                     [owner](const Entry& e) { return e.owner == owner; }),
                      entries.end());
        it = entries.empty() ? m_observers.erase(it) : std::next(it);
    }
}

void NotificationCenter::post(QLatin1String name, const QVariant& object)
{
    const auto it = m_observers.constFind(QString(name));
    if (it == m_observers.constEnd())
        return;
    const std::vector<Entry> snapshot = it.value();
    for (const Entry& e : snapshot) {
        if (*e.active)
            (*e.handler)(object);
    }
}

int NotificationCenter::observerCount(QLatin1String name) const
{
    const auto it = m_observers.constFind(QString(name));
    return it == m_observers.constEnd() ? 0 : int(it->size());
}

} // namespace lullet
