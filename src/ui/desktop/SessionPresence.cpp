#include "ui/desktop/SessionPresence.h"

#include "ui/desktop/ActiveWindow.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QtGui/qguiapplication_platform.h>

#include <cstdlib>
#include <functional>
#include <memory>
#include <unistd.h>
#include <xcb/screensaver.h>

namespace lullet {

namespace {

struct ScreenSaver {
    const char* service;
    const char* path;
    const char* interface;
};

// GNOME's, and the freedesktop one at both the paths that desktops serve it at.
constexpr ScreenSaver screenSavers[] = {
    {"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver", "org.freedesktop.ScreenSaver"},
    {"org.freedesktop.ScreenSaver", "/ScreenSaver", "org.freedesktop.ScreenSaver"},
    {"org.gnome.ScreenSaver", "/org/gnome/ScreenSaver", "org.gnome.ScreenSaver"},
};

const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString login = QStringLiteral("org.freedesktop.login1");
const QString loginSession = QStringLiteral("org.freedesktop.login1.Session");
const QString notifications = QStringLiteral("org.freedesktop.Notifications");
const QString notificationsPath = QStringLiteral("/org/freedesktop/Notifications");

// Calls, and hands the answer to `done` on the main thread; an error is an answer too.
void call(const QDBusConnection& bus, const QDBusMessage& message, QObject* context,
          std::function<void(const QDBusMessage&)> done)
{
    if (!bus.isConnected())
        return;
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
                     [watcher, done = std::move(done)] {
                         done(watcher->reply());
                         watcher->deleteLater();
                     });
}

QDBusMessage getProperty(const QString& service, const QString& path, const QString& interface,
                         const QString& name)
{
    QDBusMessage get =
        QDBusMessage::createMethodCall(service, path, properties, QStringLiteral("Get"));
    get << interface << name;
    return get;
}

// The first answer's value, a variant unwrapped; an invalid one for an error.
QVariant firstValue(const QDBusMessage& reply)
{
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return {};
    const QVariant value = reply.arguments().constFirst();
    return value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
}

} // namespace

SessionPresence::SessionPresence(const QDBusConnection& session, const QDBusConnection& system,
                                 QObject* parent)
    : UserPresence(parent)
    , m_session(session)
    , m_system(system)
{
    watchScreenSavers();
    watchLogind();
    watchNotifications();
}

void SessionPresence::watchScreenSavers()
{
    for (const ScreenSaver& saver : screenSavers) {
        const QString service = QLatin1String(saver.service);
        const QString path = QLatin1String(saver.path);
        const QString interface = QLatin1String(saver.interface);
        m_session.connect(service, path, interface, QStringLiteral("ActiveChanged"), this,
                          SLOT(onScreenSaverActiveChanged(bool)));
        call(m_session,
             QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("GetActive")),
             this, [this](const QDBusMessage& reply) {
                 if (firstValue(reply).toBool())
                     onScreenSaverActiveChanged(true);
             });
    }
}

void SessionPresence::watchLogind()
{
    QDBusMessage bySession = QDBusMessage::createMethodCall(
        login, QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("GetSessionByPID"));
    bySession << quint32(::getpid());
    call(m_system, bySession, this, [this](const QDBusMessage& reply) {
        const QVariant path = firstValue(reply);
        if (path.canConvert<QDBusObjectPath>())
            watchSession(path.value<QDBusObjectPath>().path());
    });
}

void SessionPresence::watchSession(const QString& path)
{
    m_system.connect(login, path, properties, QStringLiteral("PropertiesChanged"), this,
                     SLOT(onSessionPropertiesChanged(QString, QVariantMap, QStringList)));
    call(m_system, getProperty(login, path, loginSession, QStringLiteral("LockedHint")), this,
         [this](const QDBusMessage& reply) { set(m_sessionLocked, firstValue(reply).toBool()); });
}

void SessionPresence::watchNotifications()
{
    m_session.connect(notifications, notificationsPath, properties,
                      QStringLiteral("PropertiesChanged"), this,
                      SLOT(onNotificationPropertiesChanged(QString, QVariantMap, QStringList)));
    call(m_session,
         getProperty(notifications, notificationsPath, notifications, QStringLiteral("Inhibited")),
         this, [this](const QDBusMessage& reply) { set(m_inhibited, firstValue(reply).toBool()); });
}

void SessionPresence::onScreenSaverActiveChanged(bool active)
{
    set(m_screenSaverActive, active);
}

void SessionPresence::onSessionPropertiesChanged(const QString& interface,
                                                 const QVariantMap& changed, const QStringList&)
{
    if (interface == loginSession && changed.contains(QStringLiteral("LockedHint")))
        set(m_sessionLocked, changed.value(QStringLiteral("LockedHint")).toBool());
}

void SessionPresence::onNotificationPropertiesChanged(const QString& interface,
                                                      const QVariantMap& changed,
                                                      const QStringList&)
{
    if (interface == notifications && changed.contains(QStringLiteral("Inhibited")))
        set(m_inhibited, changed.value(QStringLiteral("Inhibited")).toBool());
}

void SessionPresence::refresh()
{
    set(m_fullScreen, ActiveWindow::isOtherProgramFullScreen());
    askIdle(m_idleSource == IdleSource::Unknown ? IdleSource::Mutter : m_idleSource);
}

void SessionPresence::askIdle(IdleSource source)
{
    // One question at a time: a bus that is slow to answer is not asked again meanwhile.
    if (m_askingIdle)
        return;
    QDBusMessage question;
    IdleSource next = IdleSource::None;
    switch (source) {
    case IdleSource::Unknown:
    case IdleSource::Mutter:
        question = QDBusMessage::createMethodCall(
            QStringLiteral("org.gnome.Mutter.IdleMonitor"),
            QStringLiteral("/org/gnome/Mutter/IdleMonitor/Core"),
            QStringLiteral("org.gnome.Mutter.IdleMonitor"), QStringLiteral("GetIdletime"));
        next = IdleSource::ScreenSaver;
        break;
    case IdleSource::ScreenSaver:
        question = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.ScreenSaver"),
                                                  QStringLiteral("/org/freedesktop/ScreenSaver"),
                                                  QStringLiteral("org.freedesktop.ScreenSaver"),
                                                  QStringLiteral("GetSessionIdleTime"));
        next = IdleSource::X11;
        break;
    case IdleSource::X11:
        readIdleFromX11();
        return;
    case IdleSource::None:
        return;
    }
    if (!m_session.isConnected()) {
        readIdleFromX11();
        return;
    }
    m_askingIdle = true;
    call(m_session, question, this, [this, source, next](const QDBusMessage& reply) {
        m_askingIdle = false;
        bool ok = false;
        const qint64 idle = firstValue(reply).toLongLong(&ok);
        if (ok) {
            m_idleSource = source;
            setIdle(idle);
            return;
        }
        // Not served here: the next source is tried, and kept once one answers.
        askIdle(next);
    });
}

void SessionPresence::readIdleFromX11()
{
    const auto* x11 =
        qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    xcb_connection_t* connection = x11 ? x11->connection() : nullptr;
    const xcb_screen_t* screen =
        connection ? xcb_setup_roots_iterator(xcb_get_setup(connection)).data : nullptr;
    if (!screen) {
        m_idleSource = IdleSource::None;
        setIdle(std::nullopt);
        return;
    }
    const std::unique_ptr<xcb_screensaver_query_info_reply_t, decltype(&std::free)> info(
        xcb_screensaver_query_info_reply(
            connection, xcb_screensaver_query_info(connection, screen->root), nullptr),
        &std::free);
    m_idleSource = info ? IdleSource::X11 : IdleSource::None;
    setIdle(info ? std::optional<qint64>(info->ms_since_user_input) : std::nullopt);
}

void SessionPresence::setIdle(std::optional<qint64> idle)
{
    m_idle = idle;
    // Every reading is told: the hold works out from it whether the user is away, or back.
    Q_EMIT changed();
}

void SessionPresence::set(bool& flag, bool value)
{
    if (flag == value)
        return;
    flag = value;
    Q_EMIT changed();
}

} // namespace lullet
