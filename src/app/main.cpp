#include "app/CommandLine.h"
#include "core/activity/RunningItem.h"
#include "core/app/AppController.h"
#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/monitor/Monitor.h"
#include "core/monitor/ReminderPause.h"
#include "core/scheduling/WorkingSchedule.h"
#include "core/security/Lock.h"
#include "core/settings/Settings.h"
#include "net/NetworkHttpPort.h"
#include "ui/desktop/AppId.h"
#include "ui/desktop/Autostart.h"
#include "ui/desktop/DesktopNotifier.h"
#include "ui/desktop/DesktopPresence.h"
#include "ui/desktop/KeyringSecretStore.h"
#include "ui/desktop/MemoryTrim.h"
#include "ui/desktop/PlatformChoice.h"
#include "ui/desktop/PromptSound.h"
#include "ui/desktop/ScreenSaverInhibitor.h"
#include "ui/desktop/SessionPresence.h"
#include "ui/desktop/SingleInstance.h"
#include "ui/desktop/TerminationSignals.h"
#include "ui/desktop/Translations.h"
#include "ui/desktop/TrayIconPainter.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Shell.h"
#include "ui/widgets/Dialogs.h"

#include <QApplication>
#include <QDBusConnection>
#include <QIcon>
#include <QSystemTrayIcon>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <memory>
#include <optional>
#include <sys/stat.h>

using namespace lullet;

namespace {

// A launch that can't go on says why: on the terminal, and in a panel where there is a screen.
int endLaunch(const QString& why)
{
    std::fprintf(stderr, "Lullet: %s\n", qPrintable(why));
    const QString platform = QGuiApplication::platformName();
    if (platform != QLatin1String("offscreen") && platform != QLatin1String("minimal"))
        Dialogs::inform(nullptr, why);
    return 1;
}

// What a second launch asks of the running program.
QString requestOf(const CommandLine& options)
{
    if (options.quickAdd)
        return QLatin1String(SingleInstance::quickAddRequest);
    if (options.pause && options.pauseMinutes > 0)
        return QLatin1String(SingleInstance::pauseRequest) + u' ' +
               QString::number(options.pauseMinutes);
    if (options.pause)
        return QLatin1String(SingleInstance::pauseRequest);
    if (options.resume)
        return QLatin1String(SingleInstance::resumeRequest);
    return QLatin1String(SingleInstance::showRequest);
}

// Carries out a request, another launch's or this one's own command line.
void carryOut(const QString& request, Shell& shell, ReminderPause& pause)
{
    const QStringList words = request.split(u' ', Qt::SkipEmptyParts);
    const QString what = words.value(0);
    if (what == QLatin1String(SingleInstance::quickAddRequest))
        shell.quickAdd();
    else if (what == QLatin1String(SingleInstance::showRequest))
        shell.bringMainWindowForward();
    else if (what == QLatin1String(SingleInstance::resumeRequest))
        pause.resume();
    else if (what == QLatin1String(SingleInstance::pauseRequest) && words.size() > 1)
        pause.pauseFor(std::max(1, words[1].toInt()));
    else if (what == QLatin1String(SingleInstance::pauseRequest))
        pause.pauseUntilResumed();
}

// The windows of a run, once the core is open.
void showWindows(const Services& services, Shell& shell, MainWindow& window, bool inTray)
{
    QObject::connect(&services.library, &Library::saveFailed, &window,
                     [&window](const QString& message) { Dialogs::inform(&window, message); });
    QObject::connect(
        &services.library, &Library::readFailed, &window, [&window](const QString& message) {
            Dialogs::inform(&window,
                            QCoreApplication::translate("main",
                                                        "Some of your older history could not be "
                                                        "read: lists and counts may be short."),
                            message);
        });
    shell.setLoaded();
    // The idle question meets the user right after the window appears, or at once in the tray.
    const auto greet = [&services, &window] {
        if (services.schedule.takeReplacedNotice())
            Dialogs::inform(
                &window,
                QCoreApplication::translate("main", "Your working hours could not be read."),
                QCoreApplication::translate(
                    "main", "Lullet uses Monday to Friday, 9:00 to 18:00, until you set them "
                            "again. What could not be read is kept under \"schedulesUnreadable\" "
                            "in %1.")
                    .arg(services.settings.filePath()));
        if (!services.running.item())
            services.monitor.askWhatNow();
    };
    if (inTray) {
        greet();
        return;
    }
    shell.prepareMainWindow(services.lock.isLocked());
    shell.bringMainWindowForward(greet);
}

// The store is read once the loop runs, so the tray icon is up first.
void openCore(AppController& core, Shell& shell, MainWindow& window, bool inTray)
{
    const Store::Result opened = core.open();
    if (opened.outcome != Store::Outcome::Opened) {
        QApplication::exit(endLaunch(opened.message));
        return;
    }
    showWindows(core.services(), shell, window, inTray);
    // What the launch had to mend (a restore cut short, undone) is said once the window is up.
    if (!opened.message.isEmpty())
        QTimer::singleShot(
            0, &window, [&window, notice = opened.message] { Dialogs::inform(&window, notice); });
    core.startMonitoring();
    // Once the first lists are built: what reading the store freed goes back to the system
    // rather than staying resident all day.
    MemoryTrim::soon();
}

// HTTP for sync: a network made for each sync, which exists only while it runs.
Sync::PortFactory networkPorts()
{
    return [](const QString& user, const QString& password) {
        return std::make_unique<NetworkHttpPort>(user, password);
    };
}

// Quitting finishes the running item and saves; every way to end the program comes here.
void connectQuitPaths(AppController& core, Shell& shell, MainWindow& window,
                      TerminationSignals& termination)
{
    auto terminated = std::make_shared<bool>(false);
    const auto quit = [&core, &window, terminated] {
        if (*terminated)
            return;
        if (core.prepareToQuit() == AppController::QuitReply::SaveFailed &&
            !Dialogs::confirm(&window,
                              QCoreApplication::translate(
                                  "main", "Could not save changes while quitting. Quit anyway?"),
                              QCoreApplication::translate(
                                  "main", "Quitting now will lose any changes you have made "
                                          "since the last successful save"),
                              QCoreApplication::translate("main", "Quit anyway"),
                              QCoreApplication::translate("main", "Cancel")))
            return;
        *terminated = true;
        // A last sync sends what waits; quitting waits for it three seconds at most, and what
        // it could not send goes at the next launch.
        window.hide();
        core.services().sync.finishBeforeQuit(std::chrono::seconds(3), [&core] {
            core.finishQuit();
            QApplication::quit();
        });
    };
    QObject::connect(&termination, &TerminationSignals::terminationRequested, qApp, quit);
    QObject::connect(&shell, &Shell::quitRequested, qApp, quit);
    QObject::connect(&window, &MainWindow::quitRequested, qApp, quit);
    // The session may end the program without asking; the store is saved all the same.
    QObject::connect(qApp, &QApplication::aboutToQuit, qApp, [&core, terminated] {
        if (*terminated)
            return;
        *terminated = true;
        core.prepareToQuit();
        core.finishQuit();
    });
}

// The program's names and icon, and its life in the tray.
void describe(QApplication& app)
{
    QApplication::setApplicationName(QStringLiteral("Lullet"));
    QApplication::setApplicationVersion(QStringLiteral(PROJECT_VERSION));
    QApplication::setDesktopFileName(QLatin1String(appId));
    // The installed icon; run from the build tree, the tray's drawing stands in.
    QApplication::setWindowIcon(QIcon::fromTheme(QLatin1String(appId), TrayIconPainter::make()));
    // The program lives in the tray; closing the window only hides it.
    app.setQuitOnLastWindowClosed(false);
}

// One Lullet per user: a second launch hands its request to the first and ends. The exit
// status when this launch ends here.
std::optional<int> claim(SingleInstance& instance, const CommandLine& options)
{
    // Saving a large store while quitting can take a few seconds.
    using namespace std::chrono_literals;
    switch (instance.claim(options.relaunch ? 30s : 0s)) {
    case SingleInstance::Role::Failed:
        return endLaunch(instance.errorMessage());
    case SingleInstance::Role::Secondary:
        if (instance.forward(requestOf(options)))
            return 0;
        return endLaunch(
            QCoreApplication::translate("main", "Another Lullet is running but does not answer."));
    case SingleInstance::Role::Primary:
        break;
    }
    return std::nullopt;
}

} // namespace

int main(int argc, char* argv[])
{
    // First of all: a request to end that comes while the program starts takes the quit path,
    // and every file the program makes is the user's alone.
    TerminationSignals::install();
    ::umask(077);
    MemoryTrim::configure();
    // The user's language, already for the command line's help.
    Translations translations;
    CommandLine options;
    if (const int status = CommandLine::parse(argc, argv, options, translations); status >= 0)
        return status;

    // Without a window system Qt would abort; the user is told instead.
    if (!PlatformChoice::hasDisplay(QProcessEnvironment::systemEnvironment())) {
        std::fprintf(
            stderr, "Lullet: %s\n",
            qPrintable(translations.text(
                "main",
                QT_TRANSLATE_NOOP("main", "no display. Start Lullet in your desktop session."))));
        return 1;
    }
    PlatformChoice::apply();
    QApplication app(argc, argv);
    translations.install();
    describe(app);
    TerminationSignals termination;
    SingleInstance instance(SingleInstance::defaultFolder());
    if (const std::optional<int> ended = claim(instance, options))
        return *ended;

    SystemClock clock;
    Settings settings(Settings::defaultPath());
    ScreenSaverInhibitor inhibitor;
    KeyringSecretStore keyring;
    SessionPresence userPresence(QDBusConnection::sessionBus(), QDBusConnection::systemBus());
    AppController core(clock, settings, Store::defaultFolder(), inhibitor, keyring, &userPresence,
                       networkPorts());
    const QString program = QCoreApplication::applicationFilePath();
    Autostart autostart(Autostart::defaultPath(), program);
    DesktopPresence presence(settings, autostart, QSystemTrayIcon::isSystemTrayAvailable(),
                             program);
    MainWindow window;
    // Qt tells of no tray coming or going; each minute's pass looks again.
    QObject::connect(&core.services().monitor, &Monitor::minutePassed, &presence, [&presence] {
        presence.setTrayAvailable(QSystemTrayIcon::isSystemTrayAvailable());
    });
    DesktopNotifier notifier;
    PromptSound sound;
    Shell shell(core.services(), window, presence, notifier, &sound);
    shell.showTray();
    ReminderPause& pause = core.services().pause;
    QObject::connect(&instance, &SingleInstance::requestReceived, &app,
                     [&shell, &pause](const QString& request) { carryOut(request, shell, pause); });
    if (options.quickAdd || options.pause || options.resume)
        carryOut(requestOf(options), shell, pause);
    connectQuitPaths(core, shell, window, termination);
    // The first run shows the welcome in the window, whatever the launch asked.
    const bool inTray = settings.welcomeDone() && !presence.windowAtLaunch(options.inTray);
    QTimer::singleShot(0, &app, [&] { openCore(core, shell, window, inTray); });
    return app.exec();
}
