#include "ui/desktop/DesktopPresence.h"

#include "core/settings/Settings.h"
#include "ui/desktop/Autostart.h"

#include <QProcess>

namespace lullet {

DesktopPresence::DesktopPresence(Settings& settings, Autostart& autostart, bool trayAvailable,
                                 QString relaunchProgram, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_autostart(autostart)
    , m_trayAvailable(trayAvailable)
    , m_relaunchProgram(std::move(relaunchProgram))
{
}

bool DesktopPresence::startsAtLogin() const
{
    return m_autostart.isOn();
}

bool DesktopPresence::setStartAtLogin(bool on)
{
    if (!m_autostart.setOn(on))
        return false;
    m_settings.setOpenAtLogin(on);
    return true;
}

QString DesktopPresence::errorMessage() const
{
    return m_autostart.errorMessage();
}

bool DesktopPresence::showsWindowAtLaunch() const
{
    return m_settings.dockIcon();
}

void DesktopPresence::setShowWindowAtLaunch(bool on)
{
    m_settings.setDockIcon(on);
    if (on) {
        Q_EMIT windowWanted();
        return;
    }
    setTrayIconShown(true);
}

bool DesktopPresence::trayIconShown() const
{
    return m_settings.statusBarIcon();
}

void DesktopPresence::setTrayIconShown(bool shown)
{
    const bool wasUsable = trayIconUsable();
    // Neither window nor icon would leave the user no way back to the program.
    if (!shown && !showsWindowAtLaunch())
        shown = true;
    m_settings.setStatusBarIcon(shown);
    if (trayIconUsable() != wasUsable)
        Q_EMIT trayIconShownChanged(trayIconUsable());
}

void DesktopPresence::setTrayAvailable(bool available)
{
    const bool wasUsable = trayIconUsable();
    m_trayAvailable = available;
    if (trayIconUsable() != wasUsable)
        Q_EMIT trayIconShownChanged(trayIconUsable());
}

bool DesktopPresence::windowAtLaunch(bool trayOnlyAsked) const
{
    if (!trayIconUsable())
        return true;
    return !trayOnlyAsked && showsWindowAtLaunch();
}

bool DesktopPresence::relaunch()
{
    // The new program waits for this one to let go of the single-instance lock; otherwise it
    // would hand its launch to the one about to end.
    if (!QProcess::startDetached(m_relaunchProgram, {QStringLiteral("--relaunch")}))
        return false;
    Q_EMIT quitRequested();
    return true;
}

} // namespace lullet
