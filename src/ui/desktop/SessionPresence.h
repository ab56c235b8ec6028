#pragma once

#include "core/monitor/UserPresence.h"

#include <QDBusConnection>

namespace lullet {

// The desktop's word on the user, from whichever source answers: the lock from logind's session
// (LockedHint, on the system bus) and from the screen savers' ActiveChanged
// (org.freedesktop.ScreenSaver, org.gnome.ScreenSaver); the time since the last input from
// GNOME's idle monitor, else the freedesktop screen saver (KDE), else the X screen-saver
// extension; whether notifications are held back from org.freedesktop.Notifications'
// Inhibited; another program full screen from the window system. A missing service is no error:
// that source is simply absent. Every call is asynchronous: the window never waits on a bus.
class SessionPresence final : public UserPresence {
    Q_OBJECT
public:
    SessionPresence(const QDBusConnection& session, const QDBusConnection& system,
                    QObject* parent = nullptr);

    bool isLocked() const override { return m_sessionLocked || m_screenSaverActive; }
    std::optional<qint64> idleMilliseconds() const override { return m_idle; }
    bool isOtherProgramFullScreen() const override { return m_fullScreen; }
    bool notificationsInhibited() const override { return m_inhibited; }
    void refresh() override;

private Q_SLOTS:
    // The signals of the buses, which QtDBus delivers to slots by their signatures.
    void onScreenSaverActiveChanged(bool active);
    void onSessionPropertiesChanged(const QString& interface, const QVariantMap& changed,
                                    const QStringList& invalidated);
    void onNotificationPropertiesChanged(const QString& interface, const QVariantMap& changed,
                                         const QStringList& invalidated);

private:
    enum class IdleSource { Unknown, Mutter, ScreenSaver, X11, None };

    void watchScreenSavers();
    void watchLogind();
    void watchSession(const QString& path);
    void watchNotifications();
    void askIdle(IdleSource source);
    void readIdleFromX11();
    void setIdle(std::optional<qint64> idle);
    void set(bool& flag, bool value);

    QDBusConnection m_session;
    QDBusConnection m_system;
    IdleSource m_idleSource = IdleSource::Unknown;
    bool m_askingIdle = false;
    bool m_sessionLocked = false;
    bool m_screenSaverActive = false;
    bool m_fullScreen = false;
    bool m_inhibited = false;
    std::optional<qint64> m_idle;
};

} // namespace lullet
