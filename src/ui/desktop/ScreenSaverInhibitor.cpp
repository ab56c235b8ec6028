#include "ui/desktop/ScreenSaverInhibitor.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace lullet {

namespace {
const QString service = QStringLiteral("org.freedesktop.ScreenSaver");
const QString path = QStringLiteral("/org/freedesktop/ScreenSaver");
const QString interface = QStringLiteral("org.freedesktop.ScreenSaver");
} // namespace

ScreenSaverInhibitor::ScreenSaverInhibitor(QObject* parent)
    : QObject(parent)
{
}

void ScreenSaverInhibitor::inhibit(const QString& reason,
                                   std::function<void(std::optional<quint32>)> done)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        done(std::nullopt);
        return;
    }
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Inhibit"));
    call << QCoreApplication::applicationName() << reason;
    // Never wait for the desktop at start: the answer arrives when it arrives.
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, 5000), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [done = std::move(done)](QDBusPendingCallWatcher* w) {
                const QDBusPendingReply<quint32> reply = *w;
                done(reply.isError() ? std::nullopt : std::optional<quint32>(reply.value()));
                w->deleteLater();
            });
}

void ScreenSaverInhibitor::release(quint32 cookie)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("UnInhibit"));
    call << cookie;
    // Sent before the program ends; the bus would drop the inhibit with us anyway.
    QDBusConnection::sessionBus().call(call, QDBus::Block, 1000);
}

} // namespace lullet
