#include "core/activity/ItemActions.h"
#include "core/activity/ProjectActions.h"
#include "core/backup/Backups.h"
#include "core/dates/CalendarContext.h"
#include "core/settings/SettingsKeys.h"
#include "support/LaunchedDesktop.h"
#include "support/TestCalendar.h"
#include "support/TestMain.h"
#include "ui/authoring/QuickAddView.h"
#include "ui/main/MainView.h"
#include "ui/main/SidebarView.h"
#include "ui/preferences/BackupCommands.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/RunningListView.h"
#include "ui/shell/Shell.h"
#include "ui/shell/Tray.h"
#include "ui/shell/WindowContent.h"
#include "ui/widgets/Dialogs.h"
#include "ui/widgets/Popover.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

using namespace lullet;
using namespace lullet::test;

class TestShell : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<LaunchedDesktop> m_app;

private Q_SLOTS:
    void init()
    {
        lullet::test::useTestCalendar();
        m_dir = std::make_unique<QTemporaryDir>();
        m_app = std::make_unique<LaunchedDesktop>(m_dir->path(), at(2026, 11, 23, 10, 0));
    }

    void cleanup()
    {
        m_app.reset();
        m_dir.reset();
    }

    // The icon comes before the store is read: its panel says so, and the window asked for
    // meanwhile opens, with its content, once the store is read.
    void theTrayComesBeforeTheStore()
    {
        MainWindow window;
        Shell shell(m_app->services(), window, m_app->presence, m_app->notifier);
        shell.showTray();
        Q_EMIT shell.tray().clicked();
        QVERIFY(shell.tray().popover());
        auto* loading = shell.tray().popover()->findChild<QLabel*>();
        QVERIFY(loading);
        QCOMPARE(loading->text(), QStringLiteral("Loading…"));
        shell.bringMainWindowForward();
        QVERIFY(!window.isVisible());
        QVERIFY(!shell.content());

        QVERIFY(m_app->open());
        shell.setLoaded();
        QVERIFY(window.isVisible());
        QVERIFY(shell.content());
        // No cursor blinks in the search field: the window opens on the sidebar.
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCOMPARE(window.focusWidget(),
                 static_cast<QWidget*>(shell.content()->mainView()->sidebar().list()));
        QTRY_VERIFY(shell.tray().popover() &&
                    shell.tray().popover()->findChild<RunningListView*>());
    }

    void welcomeSizeIsFixed()
    {
        QVERIFY(m_app->open(false));
        MainWindow window;
        Shell shell(m_app->services(), window, m_app->presence, m_app->notifier);
        shell.setLoaded();
        shell.prepareMainWindow(false);
        QCOMPARE(window.maximumSize(), QSize(800, 600));
        QCOMPARE(window.size(), QSize(800, 600));
        QVERIFY(!(window.windowFlags() & Qt::WindowMinimizeButtonHint));
    }

    void workingSizeUnlessLocked()
    {
        QVERIFY(m_app->open());
        MainWindow window;
        window.resize(700, 600);
        Shell shell(m_app->services(), window, m_app->presence, m_app->notifier);
        shell.setLoaded();
        shell.prepareMainWindow(true);
        QCOMPARE(window.minimumSize(), QSize(600, 600));
        QCOMPARE(window.size(), QSize(700, 600));
        shell.prepareMainWindow(false);
        QCOMPARE(window.size(), QSize(600, 600));
        QVERIFY(window.maximumWidth() >= 600);
    }

    void aSecondLaunchBringsBackAMinimisedWindow()
    {
        QVERIFY(m_app->open());
        MainWindow window;
        Shell shell(m_app->services(), window, m_app->presence, m_app->notifier);
        shell.setLoaded();
        window.showMinimized();
        QVERIFY(window.isMinimized());
        shell.bringMainWindowForward();
        QVERIFY(!window.isMinimized());
        QVERIFY(window.isVisible());
    }

    void questionsAreAnsweredInAdvanceByTheirButtons()
    {
        Dialogs::forgetAsked();
        Dialogs::answerNext(QStringLiteral("Quit anyway"));
        Dialogs::answerNext(QStringLiteral("Cancel"));
        QVERIFY(Dialogs::confirm(nullptr, QStringLiteral("Could not save"), QStringLiteral("Info"),
                                 QStringLiteral("Quit anyway"), QStringLiteral("Cancel")));
        QVERIFY(!Dialogs::confirm(nullptr, QStringLiteral("Could not save"), QStringLiteral("Info"),
                                  QStringLiteral("Quit anyway"), QStringLiteral("Cancel")));
        QCOMPARE(Dialogs::asked().size(), 2);
        QCOMPARE(Dialogs::asked().front().buttons,
                 (QStringList{QStringLiteral("Quit anyway"), QStringLiteral("Cancel")}));
    }

    void theTrayMenuCanQuitAndOpen()
    {
        QVERIFY(m_app->open());
        MainWindow window;
        Shell shell(m_app->services(), window, m_app->presence, m_app->notifier);
        shell.setLoaded();
        shell.showTray();
        bool quit = false;
        connect(&shell, &Shell::quitRequested, this, [&] { quit = true; });
        QMenu* trayMenu = nullptr;
        for (QMenu* m : window.findChildren<QMenu*>()) {
            for (QAction* a : m->actions()) {
                if (a->text() == QStringLiteral("Quit Lullet") && m->title().isEmpty())
                    trayMenu = m;
            }
        }
        QVERIFY(trayMenu);
        for (QAction* a : trayMenu->actions()) {
            if (a->text() == QStringLiteral("Open Lullet"))
                a->trigger();
        }
        QVERIFY(window.isVisible());
        for (QAction* a : trayMenu->actions()) {
            if (a->text() == QStringLiteral("Quit Lullet"))
                a->trigger();
        }
        QVERIFY(quit);
    }

    // The window comes back where the user left it, and at its size.
    void theWindowKeepsItsPlace()
    {
        QVERIFY(m_app->open());
        {
            MainWindow window;
            Shell shell(m_app->services(), window, m_app->presence, m_app->notifier);
            shell.setLoaded();
            shell.bringMainWindowForward();
            window.setGeometry(QRect(120, 90, 700, 640));
            window.close();
        }
        QVERIFY(!m_app->settings.value(SettingsKeys::mainWindowGeometry).toByteArray().isEmpty());
        MainWindow window;
        Shell shell(m_app->services(), window, m_app->presence, m_app->notifier);
        shell.setLoaded();
        shell.bringMainWindowForward();
        QCOMPARE(window.size(), QSize(700, 640));
        QCOMPARE(window.geometry().topLeft(), QPoint(120, 90));
    }

    // Quick add from the window's menu and the tray's menu, with the platform's "new" key.
    void quickAddFromTheMenus()
    {
        QVERIFY(m_app->open());
        MainWindow window;
        Shell shell(m_app->services(), window, m_app->presence, m_app->notifier);
        shell.setLoaded();
        shell.showTray();
        int withShortcut = 0;
        for (QMenu* menu : window.findChildren<QMenu*>()) {
            for (QAction* action : menu->actions()) {
                if (action->text().remove(u'&') == QStringLiteral("Quick Add") &&
                    action->shortcut() == QKeySequence(QKeySequence::New))
                    ++withShortcut;
            }
        }
        QCOMPARE(withShortcut, 2);
        Q_EMIT window.quickAddRequested();
        QuickAddView* quick = nullptr;
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (w->isVisible() && qobject_cast<QuickAddView*>(w))
                quick = qobject_cast<QuickAddView*>(w);
        }
        QVERIFY(quick);
        QTest::keyClick(quick->nameField(), Qt::Key_Escape);
        QVERIFY(!quick->isVisible());
    }

    // From the menu: a copy saved by hand is shown in the file manager; a restore comes back on
    // the project shown before, by name; a refused file is said and changes nothing.
    void backUpAndRestoreFromTheMenu()
    {
        QVERIFY(m_app->open());
        Project* home = m_app->services().projectActions.addProject(QStringLiteral("Home")).project;
        Item* walk = m_app->addItem(QStringLiteral("Walk"), at(2026, 11, 23, 12, 0));
        m_app->services().itemActions.moveToProject(*walk, home);
        QVERIFY(m_app->library().save());
        MainWindow window;
        const QString copy = QDir(m_dir->path()).filePath(QStringLiteral("mine.sqlite"));
        {
            QStringList revealed;
            BackupCommands commands(m_app->services(), &window,
                                    [&](const QString& path) { revealed << path; });
            Dialogs::forgetAsked();
            Dialogs::chooseFileNext(copy);
            commands.backUpNow();
            QTRY_COMPARE(revealed, QStringList{copy});
            QVERIFY(Dialogs::asked().front().information.endsWith(QStringLiteral(".sqlite")));
        }

        Shell shell(m_app->services(), window, m_app->presence, m_app->notifier);
        shell.setLoaded();
        shell.bringMainWindowForward();
        MainView* view = shell.content()->mainView();
        view->showProjectNamed(QStringLiteral("Home"));
        m_app->addItem(QStringLiteral("Read"), at(2026, 11, 23, 13, 0));
        QVERIFY(m_app->library().save());
        QSignalSpy restored(&m_app->services().backups, &Backups::restored);
        Dialogs::chooseFileNext(copy);
        Q_EMIT window.restoreRequested();
        QVERIFY(restored.wait(5000));
        QVERIFY(view->shownProject() && view->shownProject()->hasContext());
        QCOMPARE(*view->shownProject()->name(), QStringLiteral("Home"));
        QCOMPARE(m_app->library().items().size(), std::size_t(1));

        // A text file is refused, and the user is told why.
        const QString text = QDir(m_dir->path()).filePath(QStringLiteral("notes.txt"));
        QFile notes(text);
        QVERIFY(notes.open(QIODevice::WriteOnly));
        notes.write("not a store");
        notes.close();
        Dialogs::forgetAsked();
        Dialogs::answerNext(QStringLiteral("Ok"));
        Dialogs::chooseFileNext(text);
        Q_EMIT window.restoreRequested();
        QCOMPARE(Dialogs::asked().size(), 2);
        QCOMPARE(Dialogs::asked().back().text,
                 QStringLiteral("This file can't be restored. Nothing was changed."));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestShell)
#include "tst_shell.moc"
