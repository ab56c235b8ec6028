#pragma once

#include <QObject>
#include <QString>

namespace lullet {

class Autostart;
class Settings;

// How Lullet shows itself on the desktop: started at login or not, its window in the taskbar at
// launch or the tray alone, its icon in the tray or not. Whatever the user chooses, one way back
// to the program stays: the tray icon, or the window when there is no tray.
class DesktopPresence final : public QObject {
    Q_OBJECT
public:
    // `trayAvailable`: the desktop has a tray to show the icon in. `relaunchProgram` is started
    // by relaunch().
    DesktopPresence(Settings& settings, Autostart& autostart, bool trayAvailable,
                    QString relaunchProgram, QObject* parent = nullptr);

    bool startsAtLogin() const;
    // Writes or removes the autostart entry and both settings keys; false, with
    // errorMessage(), when the entry can't be written, and then nothing changes.
    bool setStartAtLogin(bool on);
    QString errorMessage() const;

    bool showsWindowAtLaunch() const;
    // On: the window comes forward at once. Off: the tray icon is switched on, since the program
    // must keep one of the two; the change shows fully after a relaunch.
    void setShowWindowAtLaunch(bool on);

    // The user's choice; the icon shows only where the desktop has a tray.
    bool trayIconShown() const;
    bool trayIconUsable() const { return m_trayAvailable && trayIconShown(); }
    // Off is refused, and the choice set back on, while the window stays out of the taskbar.
    void setTrayIconShown(bool shown);

    // The desktop's tray came or went: a panel restarted, an extension switched on or off.
    void setTrayAvailable(bool available);

    // Whether a launch shows the window: asked to start in the tray, it still does when the
    // user keeps it in the taskbar or when the icon can't be seen.
    bool windowAtLaunch(bool trayOnlyAsked) const;

    // Starts the program again, to wait for this one to end, and asks this one to quit; false
    // when the program can't be started, and then this one goes on.
    bool relaunch();

Q_SIGNALS:
    void trayIconShownChanged(bool usable);
    void windowWanted();
    void quitRequested();

private:
    Settings& m_settings;
    Autostart& m_autostart;
    bool m_trayAvailable;
    QString m_relaunchProgram;
};

} // namespace lullet
