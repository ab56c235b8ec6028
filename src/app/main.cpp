#include "core/app/AppDelegate.h"
#include "core/dates/Clock.h"
#include "core/notify/NotificationCenter.h"
#include "core/settings/UserDefaults.h"
#include "core/store/StoreStack.h"
#include "shell/MainWindow.h"
#include "shell/ScreenSaverInhibitor.h"
#include "shell/ShellHost.h"
#include "shell/TerminationSignals.h"

#include <QApplication>

using namespace lullet;

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Lullet"));
    QApplication::setApplicationVersion(QStringLiteral(PROJECT_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("lullet"));
    // The program lives in the status item; closing the window only hides it.
    app.setQuitOnLastWindowClosed(false);

    SystemClock clock;
    UserDefaults defaults(UserDefaults::defaultPath());
    NotificationCenter notifCenter;
    StoreStack store(StoreStack::defaultFolder(), clock);
    MainWindow window;
    ShellHost host(window);
    ScreenSaverInhibitor inhibitor;
    AppDelegate delegate({clock, defaults, notifCenter, store, host, inhibitor});
    host.attach(delegate);

    if (!delegate.awakeFromNib())
        return 1;
    delegate.applicationWillFinishLaunching();
    delegate.applicationDidFinishLaunching();

    bool terminated = false;
    const auto quit = [&] {
        if (terminated ||
            delegate.applicationShouldTerminate() == AppDelegate::TerminateReply::TerminateCancel)
            return;
        terminated = true;
        delegate.applicationWillTerminate();
        QApplication::quit();
    };
    TerminationSignals signals_;
    QObject::connect(&signals_, &TerminationSignals::terminationRequested, &app, quit);
    QObject::connect(&host, &ShellHost::quitRequested, &app, quit);
    QObject::connect(&window, &MainWindow::quitRequested, &app, quit);
    // The session may end the program without asking; the store is saved all the same.
    QObject::connect(&app, &QApplication::aboutToQuit, &app, [&] {
        if (terminated)
            return;
        terminated = true;
        delegate.applicationShouldTerminate();
        delegate.applicationWillTerminate();
    });
    QObject::connect(&app, &QApplication::applicationStateChanged, &delegate,
                     [&](Qt::ApplicationState state) {
                         if (state == Qt::ApplicationActive)
                             delegate.applicationDidBecomeActive();
                         else if (state == Qt::ApplicationInactive)
                             delegate.applicationDidResignActive();
                     });
    const int status = app.exec();
    // The open prompt acts on the controller: it goes first.
    host.detach();
    return status;
}
