#pragma once

#include <QByteArray>
#include <QProcessEnvironment>

namespace lullet {

// Which Qt platform the program runs on. On a Wayland session a window cannot place itself, so
// the prompts could not open under the tray icon; where XWayland is there too, the program runs
// on it. A platform the user has chosen in QT_QPA_PLATFORM always holds.
class PlatformChoice {
public:
    // "xcb" when XWayland is to be used; empty when Qt's own choice stands.
    static QByteArray forSession(const QProcessEnvironment& environment);
    // Whether there is a window system to show the program on: an X or a Wayland display, or a
    // platform the user has chosen.
    static bool hasDisplay(const QProcessEnvironment& environment);
    // Sets QT_QPA_PLATFORM for the choice; to be called before the application object exists.
    static void apply();
};

} // namespace lullet
