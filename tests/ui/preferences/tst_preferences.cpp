#include "core/scheduling/ScheduleTableModel.h"
#include "support/DesktopTest.h"
#include "support/Shots.h"
#include "ui/preferences/BackupCommands.h"
#include "ui/preferences/BackupTab.h"
#include "ui/preferences/PreferencesWindow.h"
#include "ui/preferences/ScheduleTab.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QPushButton>
#include <QTableView>
#include <QTreeWidget>

using namespace lullet;
using namespace lullet::test;

// The preferences tabs over a launched core on a fake clock.
class TestPreferences : public DesktopTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 10, 0); }

    void makeLaunchBackup()
    {
        QSignalSpy created(&services().backups, &Backups::backupCreated);
        services().backups.createLaunchBackup();
        QVERIFY(created.wait(5000));
    }

private Q_SLOTS:
    // The period takes effect at once; a stored period none of the choices names stays stored.
    // Every tab is on the toolbar, and the window takes its height.
    void thePromptPeriodAndTheTabs()
    {
        app().settings.setValue(SettingsKeys::promptDuration, 3);
        BackupCommands commands(services(), nullptr, [](const QString&) {});
        PreferencesWindow window(services(), commands, app().presence);
        auto* period = child<QComboBox>(&window, "promptDuration");
        QCOMPARE(period->currentText(), QStringLiteral("1 min"));
        QCOMPARE(app().settings.integer(SettingsKeys::promptDuration), 3);
        const int thirty = period->findText(QStringLiteral("30 mins"));
        period->setCurrentIndex(thirty);
        Q_EMIT period->activated(thirty);
        QCOMPARE(app().settings.integer(SettingsKeys::promptDuration), 30);
        QCOMPARE(services().running.promptPeriod(), 30);
        const std::pair<PreferencesWindow::Tab, int> heights[] = {
            {PreferencesWindow::Tab::Security, 400}, {PreferencesWindow::Tab::Backup, 457},
            {PreferencesWindow::Tab::Schedule, 457}, {PreferencesWindow::Tab::MoreInfo, 457},
            {PreferencesWindow::Tab::General, 319},
        };
        for (const auto& [tab, height] : heights) {
            window.tabAction(tab)->trigger();
            QCOMPARE(window.currentTab(), tab);
            QCOMPARE(window.height(), height);
            if (tab == PreferencesWindow::Tab::MoreInfo)
                saveShot(&window, QStringLiteral("preferences-more-info"));
        }
    }

    // The desktop choices: the entry for a start at login, and leaving the taskbar asks to
    // relaunch while keeping the tray icon on.
    void theDesktopChoices()
    {
        BackupCommands commands(services(), nullptr, [](const QString&) {});
        PreferencesWindow window(services(), commands, app().presence);
        auto box = [&](const char* name) { return child<QCheckBox>(&window, name); };
        box("openAtLogIn")->click();
        QVERIFY(app().autostart.isOn());
        QCOMPARE(app().settings.integer(SettingsKeys::openAtLogIn), 1);

        QVERIFY(box("UDStatusBarIcon")->isChecked());
        QSignalSpy quit(&app().presence, &DesktopPresence::quitRequested);
        Dialogs::answerNext(QStringLiteral("Later"));
        box("UDDockIcon")->click();
        QCOMPARE(Dialogs::asked().last().text, QStringLiteral("You must now restart app"));
        QCOMPARE(quit.count(), 0);
        QVERIFY(!box("UDStatusBarIcon")->isEnabled());
        QVERIFY(box("UDStatusBarIcon")->isChecked());

        box("UDDockIcon")->click();
        QVERIFY(box("UDStatusBarIcon")->isEnabled());
        box("UDStatusBarIcon")->click();
        QVERIFY(!app().presence.trayIconShown());
        // Leaving the taskbar again brings the icon back, and "Relaunch Now" ends this one.
        Dialogs::answerNext(QStringLiteral("Relaunch Now"));
        box("UDDockIcon")->click();
        QVERIFY(box("UDStatusBarIcon")->isChecked());
        QCOMPARE(quit.count(), 1);
        window.resize(560, 319);
        saveShot(&window, QStringLiteral("preferences-general"));
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
        clock().advance(60);
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

        auto* restore = child<QPushButton>(&tab, "restore");
        QVERIFY(!restore->isEnabled());
        list->setCurrentItem(list->topLevelItem(1));
        QSignalSpy restored(&services().backups, &Backups::restored);
        Dialogs::answerNext(QStringLiteral("No"));
        restore->click();
        QCOMPARE(Dialogs::asked().last().text, QStringLiteral("Confirm Restore"));
        QCOMPARE(Dialogs::asked().last().information,
                 QStringLiteral("All data will be replaced.\nDo you want to proceed?"));
        QVERIFY(!services().backups.isRestoring());
        Dialogs::answerNext(QStringLiteral("Yes"));
        restore->click();
        QVERIFY(restored.wait(5000));
        QCOMPARE(list->topLevelItemCount(), 3);
        QCOMPARE(list->topLevelItem(0)->text(0), QStringLiteral("Restored Backup"));

        // A copy saved elsewhere replaces what stands there.
        const QString copy = writeFile(QStringLiteral("copy.sqlite"), "old");
        Dialogs::chooseFileNext(copy);
        commands.saveCopyOf(newest);
        QCOMPARE(revealed, QStringList{copy});
        QCOMPARE(QFileInfo(copy).size(), QFileInfo(newest).size());

        list->setCurrentItem(list->topLevelItem(1));
        const QString doomed = list->currentItem()->data(0, Qt::UserRole).toString();
        Dialogs::answerNext(QStringLiteral("Yes"));
        child<QPushButton>(&tab, "delete")->click();
        QCOMPARE(Dialogs::asked().last().text, QStringLiteral("Selected backup will be deleted."));
        QCOMPARE(Dialogs::asked().last().information, QStringLiteral("Are you sure to delete ?"));
        QVERIFY(!QFile::exists(doomed));
        QCOMPARE(list->topLevelItemCount(), 2);
        QCOMPARE(services().backups.list().entries().size(), std::size_t(2));

        const auto remaining = services().backups.list().entries();
        Dialogs::answerNext(QStringLiteral("Yes"));
        child<QPushButton>(&tab, "deleteAll")->click();
        QCOMPARE(Dialogs::asked().last().text, QStringLiteral("All backups will be deleted."));
        QCOMPARE(list->topLevelItemCount(), 0);
        QVERIFY(!app().settings.contains(SettingsKeys::backupFiles2));
        for (const BackupInfo& info : remaining)
            QVERIFY(!QFile::exists(info.path));
    }

    // What can't be done with a listed copy is said: restoring one whose file has gone, and
    // deleting at launch one whose file won't go.
    void aCopyThatIsNotThereOrWillNotGoIsSaid()
    {
        makeLaunchBackup();
        BackupCommands commands(services(), nullptr, [](const QString&) {});
        BackupTab tab(services(), commands);
        const QString gone = services().backups.list().entries().front().path;
        QVERIFY(QFile::remove(gone));
        tab.list()->setCurrentItem(tab.list()->topLevelItem(0));
        Dialogs::answerNext(QStringLiteral("Ok"));
        child<QPushButton>(&tab, "restore")->click();
        QCOMPARE(Dialogs::asked().size(), 1);
        QCOMPARE(Dialogs::asked().last().text,
                 QStringLiteral("This backup's file is gone, so it can't be restored."));

        QVERIFY(QDir().mkpath(gone + QStringLiteral("/in the way")));
        app().settings.setValue(SettingsKeys::backupOption, 2);
        Dialogs::answerNext(QStringLiteral("Ok"));
        services().backups.pruneAtLaunch();
        QTRY_COMPARE(Dialogs::asked().size(), 2);
        QVERIFY(Dialogs::asked().last().text.contains(QStringLiteral("could not be deleted")));
        QVERIFY(Dialogs::asked().last().information.contains(gone));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestPreferences)
#include "tst_preferences.moc"
