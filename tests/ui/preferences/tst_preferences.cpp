#include "core/scheduling/ScheduleTableModel.h"
#include "core/sync/HttpPort.h"
#include "core/sync/Sync.h"
#include "support/DesktopTest.h"
#include "support/Shots.h"
#include "ui/preferences/BackupCommands.h"
#include "ui/preferences/BackupTab.h"
#include "ui/preferences/PreferencesWindow.h"
#include "ui/preferences/ScheduleTab.h"
#include "ui/preferences/SyncTab.h"
#include "ui/widgets/Balloon.h"
#include "ui/widgets/TimeField.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTableView>
#include <QTemporaryDir>
#include <QTreeWidget>

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
            {PreferencesWindow::Tab::Sync, 457},     {PreferencesWindow::Tab::Schedule, 457},
            {PreferencesWindow::Tab::MoreInfo, 457}, {PreferencesWindow::Tab::General, 319},
        };
        // Each tab takes its height, or more where its controls need it: every control shows
        // whole, at its size, however long its texts (a longer language, a larger font).
        window.show();
        const QFont usual = window.font();
        for (const bool large : {false, true}) {
            window.setFont(large ? QFont(usual.family(), 14) : usual);
            for (const auto& [tab, height] : heights) {
                window.tabAction(tab)->trigger();
                QCOMPARE(window.currentTab(), tab);
                // The General tab grew with the reminders' choices.
                if (!large && tab != PreferencesWindow::Tab::General)
                    QCOMPARE(window.height(), height);
                QVERIFY(window.height() >= height);
                QWidget* page = window.findChild<QStackedWidget*>()->currentWidget();
                page->layout()->activate();
                for (const QWidget* control : page->findChildren<QWidget*>()) {
                    if (!control->isVisibleTo(page) || control->parentWidget() != page)
                        continue;
                    QVERIFY2(control->height() >= control->minimumSizeHint().height(),
                             qPrintable(control->objectName()));
                    QVERIFY2(page->rect().contains(control->geometry()),
                             qPrintable(control->objectName()));
                }
            }
        }
        saveShot(&window, QStringLiteral("preferences-large-font"));
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

    // The tabs' icons are drawn in the palette's text colour: they show on a dark window, and
    // follow when the palette turns dark while the window is open.
    void theTabIconsShowInADarkPalette()
    {
        BackupCommands commands(services(), nullptr, [](const QString&) {});
        PreferencesWindow window(services(), commands, app().presence);
        QPalette dark = window.palette();
        dark.setColor(QPalette::Window, QColor(0x2A, 0x2A, 0x2E));
        dark.setColor(QPalette::WindowText, QColor(0xEE, 0xEE, 0xEE));
        dark.setColor(QPalette::Button, QColor(0x35, 0x35, 0x3A));
        dark.setColor(QPalette::ButtonText, QColor(0xEE, 0xEE, 0xEE));
        window.setPalette(dark);
        for (const auto tab :
             {PreferencesWindow::Tab::General, PreferencesWindow::Tab::Security,
              PreferencesWindow::Tab::Backup, PreferencesWindow::Tab::Sync,
              PreferencesWindow::Tab::Schedule, PreferencesWindow::Tab::MoreInfo}) {
            const QImage icon = window.tabAction(tab)->icon().pixmap(32).toImage();
            // The mean lightness of what the icon paints, against the window's.
            qint64 sum = 0;
            qint64 count = 0;
            for (int y = 0; y < icon.height(); ++y) {
                for (int x = 0; x < icon.width(); ++x) {
                    const QColor pixel = icon.pixelColor(x, y);
                    if (pixel.alpha() > 128) {
                        sum += pixel.lightness();
                        ++count;
                    }
                }
            }
            QVERIFY(count > 0);
            QVERIFY2(sum / count - dark.color(QPalette::Window).lightness() > 128,
                     qPrintable(window.tabAction(tab)->objectName()));
        }
        window.resize(560, 319);
        saveShot(&window, QStringLiteral("preferences-dark"));
    }

    // File panels open in the user's documents folder, or at home where there is none, never in
    // the folder the program was started from; so does an open panel whose own folder is gone.
    void filePanelsStartInTheUsersFolders()
    {
        BackupCommands commands(services(), nullptr, [](const QString&) {});
        const QString documents =
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        QVERIFY(!QFileInfo::exists(documents));
        const auto offeredIn = [] { return QFileInfo(Dialogs::asked().last().information).path(); };
        Dialogs::chooseFileNext(QString());
        commands.backUpNow();
        QCOMPARE(offeredIn(), QDir::homePath());
        QVERIFY(QDir().mkpath(documents));
        Dialogs::chooseFileNext(QString());
        commands.backUpNow();
        QCOMPARE(offeredIn(), documents);

        QVERIFY(!QFileInfo::exists(services().backups.backupsFolder()));
        Dialogs::answerNext(QStringLiteral("Yes"));
        Dialogs::chooseFileNext(QString());
        commands.restoreFromFile();
        QCOMPARE(Dialogs::asked().last().information, documents);
        QVERIFY(QDir(documents).removeRecursively());
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

    // A working time reads as every time in the program does, in the locale's short form, and
    // what is typed over the hours or the minutes clicked replaces them.
    void aWorkingTimeIsTypedInTheLocalesForm()
    {
        const QLocale before;
        for (const char* name : {"de_DE", "fr_CA", "ko_KR", "en_US"}) {
            CalendarContext::setLocale(QLatin1String(name));
            QLocale::setDefault(QLocale(QLatin1String(name)));
            ScheduleTab tab(services());
            const QModelIndex start =
                tab.table()->model()->index(1, ScheduleTableModel::StartColumn);
            tab.table()->openPersistentEditor(start);
            auto* field = qobject_cast<TimeField*>(tab.table()->indexWidget(start));
            QVERIFY(field);
            QCOMPARE(field->text(),
                     at(2026, 11, 23, 9, 0).toString(DateStyle::None, DateStyle::Short));
        }
        QLocale::setDefault(before);

        ScheduleTab tab(services());
        tab.show();
        QTableView* table = tab.table();
        const QModelIndex monday = table->model()->index(1, ScheduleTableModel::StartColumn);
        table->edit(monday);
        auto* field = table->findChild<TimeField*>();
        auto* typing = field->findChild<QLineEdit*>();
        QTest::mouseClick(typing, Qt::LeftButton, {}, QPoint(3, typing->height() / 2));
        QCoreApplication::processEvents();
        QTest::keyClicks(field, QStringLiteral("1030"));
        QTest::keyClick(field, Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(table->model()->data(monday).toTime(), QTime(10, 30));
        QVERIFY(!services().hours.isWorkingTime(at(2026, 11, 23, 10, 15)));
        QVERIFY(services().hours.isWorkingTime(at(2026, 11, 23, 10, 45)));
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
