#include "core/activity/RunningItem.h"
#include "core/backup/Backups.h"
#include "core/scheduling/ScheduleTableModel.h"
#include "core/scheduling/WorkingHours.h"
#include "core/settings/SettingsKeys.h"
#include "core/sync/HttpPort.h"
#include "core/sync/Sync.h"
#include "support/LaunchedDesktop.h"
#include "support/Shots.h"
#include "support/TestCalendar.h"
#include "support/TestMain.h"
#include "ui/preferences/BackupCommands.h"
#include "ui/preferences/BackupTab.h"
#include "ui/preferences/PreferencesWindow.h"
#include "ui/preferences/ScheduleTab.h"
#include "ui/preferences/SyncTab.h"
#include "ui/widgets/Balloon.h"
#include "ui/widgets/Dialogs.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>

#include <memory>

using namespace lullet;
using namespace lullet::test;

namespace {

// A network on which no server answers.
class UnreachablePort final : public HttpPort {
public:
    void send(const HttpRequest&, Done done) override
    {
        QTimer::singleShot(0, [done] {
            done({HttpResponse::Failure::Unreachable,
                  QStringLiteral("Connection refused"),
                  0,
                  {},
                  {}});
        });
    }
    void abortAll() override {}
};

} // namespace

// The preferences tabs over a launched core on a fake clock.
class TestPreferences : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<LaunchedDesktop> m_app;

    const Services& services() { return m_app->services(); }

    void makeLaunchBackup()
    {
        QSignalSpy created(&services().backups, &Backups::backupCreated);
        services().backups.createLaunchBackup();
        QVERIFY(created.wait(5000));
    }

private Q_SLOTS:
    void init()
    {
        useTestCalendar();
        m_dir = std::make_unique<QTemporaryDir>();
        m_app = std::make_unique<LaunchedDesktop>(m_dir->path(), at(2026, 11, 23, 10, 0));
        QVERIFY(m_app->open());
        Dialogs::forgetAsked();
    }

    void cleanup()
    {
        m_app.reset();
        m_dir.reset();
    }

    // The period takes effect at once; a stored period none of the choices names stays stored.
    void thePromptPeriod()
    {
        m_app->settings.setValue(SettingsKeys::promptDuration, 3);
        BackupCommands commands(services(), nullptr, [](const QString&) {});
        PreferencesWindow window(services(), commands, m_app->presence);
        auto* period = window.findChild<QComboBox*>(QStringLiteral("promptDuration"));
        QCOMPARE(period->currentText(), QStringLiteral("1 min"));
        QCOMPARE(m_app->settings.integer(SettingsKeys::promptDuration), 3);
        const int thirty = period->findText(QStringLiteral("30 mins"));
        period->setCurrentIndex(thirty);
        Q_EMIT period->activated(thirty);
        QCOMPARE(m_app->settings.integer(SettingsKeys::promptDuration), 30);
        QCOMPARE(services().running.promptPeriod(), 30);
        QCOMPARE(window.height(), 319);
    }

    // The desktop choices: the entry for a start at login, and leaving the taskbar asks to
    // relaunch while keeping the tray icon on.
    void theDesktopChoices()
    {
        BackupCommands commands(services(), nullptr, [](const QString&) {});
        PreferencesWindow window(services(), commands, m_app->presence);
        auto box = [&](const char* name) {
            return window.findChild<QCheckBox*>(QLatin1String(name));
        };
        box("openAtLogIn")->click();
        QVERIFY(m_app->autostart.isOn());
        QCOMPARE(m_app->settings.integer(SettingsKeys::openAtLogIn), 1);

        QVERIFY(box("UDStatusBarIcon")->isChecked());
        QSignalSpy quit(&m_app->presence, &DesktopPresence::quitRequested);
        Dialogs::answerNext(1);
        box("UDDockIcon")->click();
        QCOMPARE(Dialogs::asked().last().text, QStringLiteral("You must now restart app"));
        QCOMPARE(Dialogs::asked().last().buttons,
                 QStringList({QStringLiteral("Relaunch Now"), QStringLiteral("Later")}));
        QCOMPARE(quit.count(), 0);
        QVERIFY(!box("UDStatusBarIcon")->isEnabled());
        QVERIFY(box("UDStatusBarIcon")->isChecked());

        box("UDDockIcon")->click();
        QVERIFY(box("UDStatusBarIcon")->isEnabled());
        box("UDStatusBarIcon")->click();
        QVERIFY(!m_app->presence.trayIconShown());
        // Leaving the taskbar again brings the icon back, and "Relaunch Now" ends this one.
        Dialogs::answerNext(0);
        box("UDDockIcon")->click();
        QVERIFY(box("UDStatusBarIcon")->isChecked());
        QCOMPARE(quit.count(), 1);
        window.resize(560, 319);
        saveShot(&window, QStringLiteral("preferences-general"));
    }

    // Every tab is on the toolbar, and the window takes its height.
    void everyTabHasItsButtonAndHeight()
    {
        BackupCommands commands(services(), nullptr, [](const QString&) {});
        PreferencesWindow window(services(), commands, m_app->presence);
        const std::pair<PreferencesWindow::Tab, int> heights[] = {
            {PreferencesWindow::Tab::Security, 400}, {PreferencesWindow::Tab::Backup, 457},
            {PreferencesWindow::Tab::Sync, 457},     {PreferencesWindow::Tab::Schedule, 457},
            {PreferencesWindow::Tab::MoreInfo, 457}, {PreferencesWindow::Tab::General, 319},
        };
        for (const auto& [tab, height] : heights) {
            window.tabAction(tab)->trigger();
            QCOMPARE(window.currentTab(), tab);
            QCOMPARE(window.height(), height);
            if (tab == PreferencesWindow::Tab::MoreInfo)
                saveShot(&window, QStringLiteral("preferences-more-info"));
        }
    }

    // The server's address and user go to the settings, the password to the keyring only; how
    // the sync went is said in words, and stopping forgets the password.
    void theSyncTab()
    {
        QTemporaryDir dir;
        // A network where no server answers.
        Launched app(dir.path(), at(2026, 11, 23, 10, 0), [](const QString&, const QString&) {
            return std::make_unique<UnreachablePort>();
        });
        QVERIFY(app.open());
        SyncTab tab(app.services().sync, app.clock);
        tab.show();
        const auto field = [&](const char* name) {
            return tab.findChild<QLineEdit*>(QLatin1String(name));
        };
        const auto button = [&](const char* name) {
            return tab.findChild<QPushButton*>(QLatin1String(name));
        };
        const auto status = [&] {
            return tab.findChild<QLabel*>(QStringLiteral("syncStatus"))->text();
        };
        QVERIFY(status().startsWith(QStringLiteral("Sync is off")));
        QVERIFY(!button("syncNow")->isEnabled());

        field("syncURL")->setText(QStringLiteral("ftp://files.example.com"));
        button("connect")->click();
        QVERIFY(Balloon::of(field("syncURL")));
        QVERIFY(!app.settings.contains(SettingsKeys::syncURL));

        field("syncURL")->setText(QStringLiteral("dav.example.com/kim/tasks/"));
        field("syncUser")->setText(QStringLiteral("kim"));
        field("syncPassword")->setText(QStringLiteral("Owl 7"));
        button("connect")->click();
        QTRY_VERIFY(status().contains(QStringLiteral("could not be reached")));
        QCOMPARE(app.settings.value(SettingsKeys::syncURL).toString(),
                 QStringLiteral("https://dav.example.com/kim/tasks/"));
        QCOMPARE(app.settings.value(SettingsKeys::syncUser).toString(), QStringLiteral("kim"));
        const QString account = QStringLiteral("sync:kim@dav.example.com");
        QCOMPARE(app.secrets.others[account], std::optional(QStringLiteral("Owl 7")));
        QFile file(app.settings.filePath());
        app.settings.sync();
        QVERIFY(file.open(QIODevice::ReadOnly) && !file.readAll().contains("Owl 7"));
        QVERIFY(field("syncPassword")->text().isEmpty());
        saveShot(&tab, QStringLiteral("preferences-sync"));

        button("stopSyncing")->click();
        QVERIFY(status().startsWith(QStringLiteral("Sync is off")));
        QVERIFY(app.settings.value(SettingsKeys::syncURL).toString().isEmpty());
        QTRY_VERIFY(!app.secrets.others[account]);
    }

    // A day switched off counts at once: no idle question on it.
    void theWorkingWeek()
    {
        ScheduleTab tab(services());
        QAbstractItemModel* model = tab.table()->model();
        // Sunday first: Monday is the second row.
        const QModelIndex monday = model->index(1, ScheduleTableModel::SelectedColumn);
        QVERIFY(services().hours.isWorkingTime(at(2026, 11, 23, 10, 30)));
        QVERIFY(model->setData(monday, Qt::Unchecked, Qt::CheckStateRole));
        QVERIFY(!services().hours.isWorkingTime(at(2026, 11, 23, 10, 30)));
        tab.resize(560, 380);
        saveShot(&tab, QStringLiteral("preferences-schedule"));
    }

    // The list of copies, newest first, kept up to date; a restore asks first and its safety
    // copy comes in on top; deleting takes the files with the entries.
    void theBackupList()
    {
        makeLaunchBackup();
        m_app->clock.advance(60);
        makeLaunchBackup();
        QStringList revealed;
        BackupCommands commands(services(), nullptr,
                                [&](const QString& path) { revealed << path; });
        BackupTab tab(services(), commands);
        tab.resize(560, 400);
        QTreeWidget* list = tab.list();
        QCOMPARE(list->topLevelItemCount(), 2);
        const QString newest = list->topLevelItem(0)->data(0, Qt::UserRole).toString();
        QCOMPARE(newest, services().backups.list().entries().front().path);
        saveShot(&tab, QStringLiteral("preferences-backup"));

        auto* restore = tab.findChild<QPushButton*>(QStringLiteral("restore"));
        QVERIFY(!restore->isEnabled());
        list->setCurrentItem(list->topLevelItem(1));
        QSignalSpy restored(&services().backups, &Backups::restored);
        Dialogs::answerNext(1);
        restore->click();
        QCOMPARE(Dialogs::asked().last().text, QStringLiteral("Confirm Restore"));
        QCOMPARE(Dialogs::asked().last().information,
                 QStringLiteral("All data will be replaced.\nDo you want to proceed?"));
        QVERIFY(!services().backups.isRestoring());
        Dialogs::answerNext(0);
        restore->click();
        QVERIFY(restored.wait(5000));
        QCOMPARE(list->topLevelItemCount(), 3);
        QCOMPARE(list->topLevelItem(0)->text(0), QStringLiteral("Restored Backup"));

        // A copy saved elsewhere replaces what stands there.
        const QString copy = QDir(m_dir->path()).filePath(QStringLiteral("copy.sqlite"));
        QFile old(copy);
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("old");
        old.close();
        Dialogs::chooseFileNext(copy);
        commands.saveCopyOf(newest);
        QCOMPARE(revealed, QStringList{copy});
        QCOMPARE(QFileInfo(copy).size(), QFileInfo(newest).size());

        list->setCurrentItem(list->topLevelItem(1));
        const QString doomed = list->currentItem()->data(0, Qt::UserRole).toString();
        Dialogs::answerNext(0);
        tab.findChild<QPushButton*>(QStringLiteral("delete"))->click();
        QCOMPARE(Dialogs::asked().last().text, QStringLiteral("Selected backup will be deleted."));
        QCOMPARE(Dialogs::asked().last().information, QStringLiteral("Are you sure to delete ?"));
        QVERIFY(!QFile::exists(doomed));
        QCOMPARE(list->topLevelItemCount(), 2);
        QCOMPARE(services().backups.list().entries().size(), std::size_t(2));

        const auto remaining = services().backups.list().entries();
        Dialogs::answerNext(0);
        tab.findChild<QPushButton*>(QStringLiteral("deleteAll"))->click();
        QCOMPARE(Dialogs::asked().last().text, QStringLiteral("All backups will be deleted."));
        QCOMPARE(list->topLevelItemCount(), 0);
        QVERIFY(!m_app->settings.contains(SettingsKeys::backupFiles2));
        for (const BackupInfo& info : remaining)
            QVERIFY(!QFile::exists(info.path));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestPreferences)
#include "tst_preferences.moc"
