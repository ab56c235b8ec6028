#pragma once

#include "support/Launched.h"
#include "ui/desktop/Autostart.h"
#include "ui/desktop/DesktopNotifier.h"
#include "ui/desktop/DesktopPresence.h"

namespace lullet::test {

// A launch with its desktop side: a tray, notifications, the autostart entry inside the test's
// folder, and a relaunch that starts a program doing nothing.
class LaunchedDesktop : public Launched {
public:
    LaunchedDesktop(const QString& dir, Date now, bool trayAvailable = true)
        : Launched(dir, now)
        , autostart(QDir(dir).filePath(QStringLiteral("autostart/lullet.desktop")),
                    QStringLiteral("/usr/bin/lullet"))
        , presence(settings, autostart, trayAvailable, QStringLiteral("/bin/true"))
    {
    }

    Autostart autostart;
    DesktopPresence presence;
    DesktopNotifier notifier;
};

} // namespace lullet::test
