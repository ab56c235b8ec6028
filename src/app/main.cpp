#include "core/app/AppDelegate.h"
#include "core/dates/Clock.h"
#include "core/notify/NotificationCenter.h"
#include "core/settings/UserDefaults.h"
#include "core/store/StoreStack.h"
#include "shell/MainWindow.h"
#include "shell/ScreenSaverInhibitor.h"
#include "shell/ShellHost.h"
#include "shell/SingleInstance.h"
#include "shell/TerminationSignals.h"

#include <QApplication>

#include <cstdio>

using namespace lullet;

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Lullet"));
    QApplication::setApplicationVersion(QStringLiteral(PROJECT_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("lullet"));
    // The program lives in the status item; closing the window only hides it.
    app.setQuitOnLastWindowClosed(false);

    // The one option: a desktop shortcut's request to add a task from anywhere.
    bool quickAdd = false;
    const QStringList arguments = QApplication::arguments().mid(1);
    for (const QString& argument : arguments) {
        if (argument != QStringLiteral("--quick-add")) {
            std::fprintf(stderr, "Usage: lullet [--quick-add]\n");
            return 2;
        }
        quickAdd = true;
    }
    // One Lullet per user: a second launch hands its request to the first and ends.
    SingleInstance instance(SingleInstance::defaultSocketPath());
    const QString request = QString::fromLatin1(quickAdd ? SingleInstance::quickAddRequest
                                                         : SingleInstance::showRequest);
    if (instance.forward(request) || !instance.listen())
        return 0;

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

    QObject::connect(&instance, &SingleInstance::requestReceived, &app, [&](const QString& r) {
        if (r == QLatin1String(SingleInstance::quickAddRequest))
            host.onQuickAdd();
        else if (r == QLatin1String(SingleInstance::showRequest))
            delegate.applicationShouldHandleReopen();
    });
    if (quickAdd)
        host.onQuickAdd();

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
