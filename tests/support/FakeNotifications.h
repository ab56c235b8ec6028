#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <vector>

namespace lullet::test {

// The desktop's notification server, played on the test's session bus: it keeps what it is
// asked and answers actions as a click on a notification would.
class FakeNotifications final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    struct Shown {
        uint id;
        uint replaces;
        QString summary;
        QString body;
        QStringList actions;
        QVariantMap hints;
    };

    bool registerOnBus()
    {
        QDBusConnection bus = QDBusConnection::sessionBus();
        return bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                                  QDBusConnection::ExportAllSlots |
                                      QDBusConnection::ExportAllSignals) &&
               bus.registerService(QStringLiteral("org.freedesktop.Notifications"));
    }

    ~FakeNotifications() override
    {
        QDBusConnection bus = QDBusConnection::sessionBus();
        bus.unregisterService(QStringLiteral("org.freedesktop.Notifications"));
        bus.unregisterObject(QStringLiteral("/org/freedesktop/Notifications"));
    }

    std::vector<Shown> shown;
    std::vector<uint> closed;

public Q_SLOTS:
    uint Notify(const QString&, uint replaces, const QString&, const QString& summary,
                const QString& body, const QStringList& actions, const QVariantMap& hints, int)
    {
        const uint id = replaces ? replaces : uint(shown.size() + 1);
        shown.push_back({id, replaces, summary, body, actions, hints});
        return id;
    }
    void CloseNotification(uint id) { closed.push_back(id); }

Q_SIGNALS:
    void ActionInvoked(uint id, const QString& key);
    void NotificationClosed(uint id, uint reason);
};

} // namespace lullet::test
