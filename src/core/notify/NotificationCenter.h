#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>

#include <functional>
#include <memory>
#include <vector>

namespace lullet {

// Synchronous publish and subscribe by name, with one optional object per notification. An
// observer belongs to an owner object and is removed when that owner is destroyed, so a handler
// never runs on a dead view. Main thread only.
class NotificationCenter final : public QObject {
    Q_OBJECT
public:
    using Handler = std::function<void(const QVariant& object)>;

    explicit NotificationCenter(QObject* parent = nullptr);
    ~NotificationCenter() override;

    void addObserver(QObject* owner, QLatin1String name, Handler handler);
    // Removes every observer of the owner.
    void removeObserver(QObject* owner);
    // Calls every observer of the name now, in the order they were added. Observers added while
    // it runs hear the next post; observers removed while it runs are not called.
    void post(QLatin1String name, const QVariant& object = {});

    int observerCount(QLatin1String name) const;

private:
    struct Entry {
        QObject* owner;
        // Shared with any post in progress, which keeps the handler alive while it runs and
        // skips it once the flag is cleared.
        std::shared_ptr<const Handler> handler;
        std::shared_ptr<bool> active;
    };
    void forget(QObject* owner);

    QHash<QString, std::vector<Entry>> m_observers;
    QHash<QObject*, QMetaObject::Connection> m_ownerWatch;
};

} // namespace lullet
