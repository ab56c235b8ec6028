#include "ui/desktop/DesktopNotifier.h"

#include "ui/desktop/AppId.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>
#include <QVariantMap>

namespace lullet {

namespace {
const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString interface = QStringLiteral("org.freedesktop.Notifications");

void sendClose(uint id)
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface,
                                                       QStringLiteral("CloseNotification"));
    call << id;
    QDBusConnection::sessionBus().asyncCall(call);
}
} // namespace

DesktopNotifier::DesktopNotifier(QObject* parent)
    : QObject(parent)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(service, path, interface, QStringLiteral("ActionInvoked"), this,
                SLOT(onActionInvoked(uint, QString)));
    bus.connect(service, path, interface, QStringLiteral("NotificationClosed"), this,
                SLOT(onClosed(uint, uint)));
}

DesktopNotifier::~DesktopNotifier()
{
    close();
}

void DesktopNotifier::show(const QString& summary, const QString& body,
                           const std::vector<Action>& actions)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    QStringList flatActions;
    for (const auto& [key, label] : actions)
        flatActions << key << label;
    QVariantMap hints;
    hints.insert(QStringLiteral("desktop-entry"), QLatin1String(appId));
    hints.insert(QStringLiteral("category"), QStringLiteral("im.received"));
    hints.insert(QStringLiteral("urgency"), QVariant::fromValue(uchar(1)));
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Notify"));
    // The server's default timeout: a reminder the user misses is still in the prompt.
    call << QCoreApplication::applicationName() << m_id << QLatin1String(appId) << summary << body
         << flatActions << hints << -1;
    const quint64 generation = ++m_generation;
    // Never wait for the desktop: a missing server can take the bus's whole timeout to answer.
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, 5000), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, generation](QDBusPendingCallWatcher* w) {
                const QDBusPendingReply<uint> reply = *w;
                w->deleteLater();
                if (reply.isError())
                    return;
                if (generation == m_generation)
                    m_id = reply.value();
                else if (reply.value() != m_id)
                    sendClose(reply.value());
            });
}

void DesktopNotifier::close()
{
    ++m_generation;
    if (m_id == 0)
        return;
    sendClose(std::exchange(m_id, 0));
}

void DesktopNotifier::onActionInvoked(uint id, const QString& key)
{
    if (id != 0 && id == m_id)
        Q_EMIT actionInvoked(key);
}

void DesktopNotifier::onClosed(uint id, uint)
{
    if (id == m_id)
        m_id = 0;
}

} // namespace lullet
