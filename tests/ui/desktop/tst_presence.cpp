#include "core/settings/Settings.h"
#include "support/FolderTest.h"
#include "ui/desktop/Autostart.h"
#include "ui/desktop/DesktopPresence.h"
#include "ui/desktop/PlatformChoice.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>

#include <cstdlib>

using namespace lullet;
using namespace lullet::test;

// How the program shows itself: the autostart entry, the taskbar and the tray icon.
class TestPresence : public FolderTest {
    Q_OBJECT
    static void validate(const QString& entry)
    {
        const QString validator =
            QStandardPaths::findExecutable(QStringLiteral("desktop-file-validate"));
        QVERIFY2(!validator.isEmpty(), "desktop-file-validate (desktop-file-utils) is needed");
        QProcess check;
        check.start(validator, {entry});
        QVERIFY(check.waitForFinished(10000));
        QVERIFY2(check.exitCode() == 0 && check.readAllStandardOutput().isEmpty(),
                 qPrintable(QFile(entry).fileName()));
    }

    static QString execLine(const QString& entry)
    {
        QFile file(entry);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.startsWith("Exec="))
                return QString::fromUtf8(line.mid(5));
        }
        return {};
    }

private Q_SLOTS:
    void cleanup()
    {
        ::unsetenv("XDG_CONFIG_HOME");
        FolderTest::cleanup();
    }

    // The entry lives below $XDG_CONFIG_HOME, or ~/.config when that is unset or relative.
    void theEntryFollowsTheConfigurationFolder()
    {
        ::setenv("XDG_CONFIG_HOME", qPrintable(path(QStringLiteral("config"))), 1);
        QCOMPARE(Autostart::defaultPath(),
                 path(QStringLiteral("config/autostart/org.lullet.Lullet.desktop")));
        ::setenv("XDG_CONFIG_HOME", "relative/config", 1);
        QCOMPARE(Autostart::defaultPath(), QDir::home().filePath(QStringLiteral(
                                               ".config/autostart/org.lullet.Lullet.desktop")));
        ::unsetenv("XDG_CONFIG_HOME");
        QCOMPARE(Autostart::defaultPath(), QDir::home().filePath(QStringLiteral(
                                               ".config/autostart/org.lullet.Lullet.desktop")));
    }

    // Written valid, with a program path that needs every kind of quoting, and removed again.
    void theEntryIsWrittenValidAndRemoved()
    {
        ::setenv("XDG_CONFIG_HOME", qPrintable(path(QStringLiteral("config"))), 1);
        const QString program = path(QStringLiteral("my \"apps\"/100% $HOME `x`\\lullet"));
        Autostart autostart(Autostart::defaultPath(), program);
        QVERIFY(!autostart.isOn());
        QVERIFY(autostart.setOn(true));
        QVERIFY(autostart.isOn());
        validate(autostart.entryPath());
        QCOMPARE(
            execLine(autostart.entryPath()),
            QStringLiteral("\"") + path(QString()) +
                QStringLiteral("/my \\\\\"apps\\\\\"/100%% \\\\$HOME \\\\`x\\\\`\\\\\\\\lullet\" "
                               "--in-tray"));
        QVERIFY(autostart.setOn(false));
        QVERIFY(!QFile::exists(autostart.entryPath()));
        // Removing what is not there is no error.
        QVERIFY(autostart.setOn(false));
    }

    // A folder that can't be made is said, and the switch stays off.
    void anEntryThatCantBeWrittenIsSaid()
    {
        writeFile(QStringLiteral("config"), {});
        Settings settings(path(QStringLiteral("Lullet.conf")));
        Autostart autostart(path(QStringLiteral("config/autostart/lullet.desktop")),
                            QStringLiteral("/usr/bin/lullet"));
        DesktopPresence presence(settings, autostart, true, QStringLiteral("/bin/true"));
        QVERIFY(!presence.setStartAtLogin(true));
        QVERIFY(presence.errorMessage().contains(path(QStringLiteral("config"))));
        QVERIFY(!presence.startsAtLogin());
        QVERIFY(!settings.contains(SettingsKeys::openAtLogIn));
    }

    // Both keys follow the entry; the program always keeps the tray icon or the window.
    void theProgramKeepsAWayBack()
    {
        Settings settings(path(QStringLiteral("Lullet.conf")));
        Autostart autostart(path(QStringLiteral("autostart/lullet.desktop")),
                            QStringLiteral("/usr/bin/lullet"));
        DesktopPresence presence(settings, autostart, true, QStringLiteral("/bin/true"));
        QVERIFY(presence.setStartAtLogin(true));
        QCOMPARE(settings.integer(SettingsKeys::openAtLogIn), 1);
        QVERIFY(settings.boolean(SettingsKeys::UDOpenAtLogin));
        QVERIFY(presence.setStartAtLogin(false));
        QCOMPARE(settings.integer(SettingsKeys::openAtLogIn), 0);
        QVERIFY(!settings.boolean(SettingsKeys::UDOpenAtLogin));

        // A new user has both.
        QVERIFY(presence.showsWindowAtLaunch());
        QVERIFY(presence.trayIconShown());
        QVERIFY(presence.windowAtLaunch(false));
        QVERIFY(!presence.windowAtLaunch(true));

        QSignalSpy trayChanged(&presence, &DesktopPresence::trayIconShownChanged);
        QSignalSpy windowWanted(&presence, &DesktopPresence::windowWanted);
        presence.setTrayIconShown(false);
        QCOMPARE(trayChanged.count(), 1);
        QCOMPARE(trayChanged.at(0).at(0).toBool(), false);
        // Without the icon the window is the way back, even for a launch at login.
        QVERIFY(presence.windowAtLaunch(true));
        // Out of the taskbar: the icon comes back.
        presence.setShowWindowAtLaunch(false);
        QVERIFY(!settings.boolean(SettingsKeys::UDDockIcon));
        QVERIFY(settings.boolean(SettingsKeys::UDStatusBarIcon));
        QCOMPARE(trayChanged.count(), 2);
        QCOMPARE(trayChanged.at(1).at(0).toBool(), true);
        QVERIFY(!presence.windowAtLaunch(false));
        // And stays while the window is out of the taskbar.
        presence.setTrayIconShown(false);
        QVERIFY(presence.trayIconShown());
        QCOMPARE(trayChanged.count(), 2);
        QCOMPARE(windowWanted.count(), 0);
        presence.setShowWindowAtLaunch(true);
        QCOMPARE(windowWanted.count(), 1);
    }

    // A desktop with no tray shows the window whatever the settings say; a tray that comes
    // later is used, and one that goes is told.
    void withoutATrayTheWindowShows()
    {
        Settings settings(path(QStringLiteral("Lullet.conf")));
        settings.setValue(SettingsKeys::UDDockIcon, false);
        Autostart autostart(path(QStringLiteral("autostart/lullet.desktop")),
                            QStringLiteral("/usr/bin/lullet"));
        DesktopPresence presence(settings, autostart, false, QStringLiteral("/bin/true"));
        QSignalSpy trayChanged(&presence, &DesktopPresence::trayIconShownChanged);
        QVERIFY(!presence.trayIconUsable());
        QVERIFY(presence.windowAtLaunch(true));
        presence.setTrayAvailable(false);
        QCOMPARE(trayChanged.count(), 0);
        presence.setTrayAvailable(true);
        QCOMPARE(trayChanged.count(), 1);
        QCOMPARE(trayChanged.last().at(0).toBool(), true);
        QVERIFY(!presence.windowAtLaunch(true));
        presence.setTrayAvailable(false);
        QCOMPARE(trayChanged.last().at(0).toBool(), false);
        QVERIFY(presence.windowAtLaunch(true));
    }

    // XWayland is chosen on a Wayland session that has it, unless the user chose a platform.
    void theSessionChoosesThePlatform_data()
    {
        QTest::addColumn<QString>("wayland");
        QTest::addColumn<QString>("display");
        QTest::addColumn<QString>("platform");
        QTest::addColumn<QByteArray>("chosen");
        QTest::newRow("X11") << QString() << QStringLiteral(":0") << QString() << QByteArray();
        QTest::newRow("Wayland with XWayland")
            << QStringLiteral("wayland-0") << QStringLiteral(":0") << QString()
            << QByteArray("xcb");
        QTest::newRow("Wayland alone")
            << QStringLiteral("wayland-0") << QString() << QString() << QByteArray();
        QTest::newRow("the user's choice") << QStringLiteral("wayland-0") << QStringLiteral(":0")
                                           << QStringLiteral("wayland") << QByteArray();
    }

    void theSessionChoosesThePlatform()
    {
        QFETCH(QString, wayland);
        QFETCH(QString, display);
        QFETCH(QString, platform);
        QFETCH(QByteArray, chosen);
        QProcessEnvironment environment;
        environment.insert(QStringLiteral("WAYLAND_DISPLAY"), wayland);
        environment.insert(QStringLiteral("DISPLAY"), display);
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
        QCOMPARE(PlatformChoice::forSession(environment), chosen);
    }
};

LULLET_TEST_MAIN(TestPresence)
#include "tst_presence.moc"
