#include "support/DesktopTest.h"
#include "ui/authoring/QuickAddView.h"
#include "ui/main/MainView.h"
#include "ui/main/SidebarView.h"
#include "ui/preferences/BackupCommands.h"
#include "ui/shell/RunningListView.h"
#include "ui/shell/WindowContent.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>

using namespace lullet;
using namespace lullet::test;

class TestShell : public DesktopTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 10, 0); }

private Q_SLOTS:
    // The icon comes before the store is read: its panel says so, and the window asked for
    // meanwhile opens, with its content, once the store is read.
    void theTrayComesBeforeTheStore()
    {
        relaunch(at(2026, 11, 23, 10, 0), Open::No);
        ShellWindows ui(app(), false);
        MainWindow& window = ui.window;
        Shell& shell = ui.shell;
        shell.showTray();
        Q_EMIT shell.tray().clicked();
        QVERIFY(shell.tray().popover());
        auto* loading = shell.tray().popover()->findChild<QLabel*>();
        QVERIFY(loading);
        QCOMPARE(loading->text(), QStringLiteral("Loading…"));
        shell.bringMainWindowForward();
        QVERIFY(!window.isVisible());
        QVERIFY(!shell.content());

        QVERIFY(app().open());
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
        app().settings.setValue(SettingsKeys::isShowFirst, 0);
        ShellWindows ui(app());
        ui.shell.prepareMainWindow(false);
        QCOMPARE(ui.window.maximumSize(), QSize(800, 600));
        QCOMPARE(ui.window.size(), QSize(800, 600));
        QVERIFY(!(ui.window.windowFlags() & Qt::WindowMinimizeButtonHint));
    }

    // At least 600 by 600 once past the welcome, brought back when minimised, and back where
    // the user left it, at its size, in the next run.
    void theWindowsSizeAndPlace()
    {
        {
            ShellWindows ui(app());
            ui.window.resize(700, 600);
            ui.shell.prepareMainWindow(true);
            QCOMPARE(ui.window.minimumSize(), QSize(600, 600));
            QCOMPARE(ui.window.size(), QSize(700, 600));
            ui.shell.prepareMainWindow(false);
            QCOMPARE(ui.window.size(), QSize(600, 600));
            QVERIFY(ui.window.maximumWidth() >= 600);
            ui.window.showMinimized();
            QVERIFY(ui.window.isMinimized());
            ui.shell.bringMainWindowForward();
            QVERIFY(!ui.window.isMinimized());
            QVERIFY(ui.window.isVisible());
            ui.window.setGeometry(QRect(120, 90, 700, 640));
            ui.window.close();
        }
        QVERIFY(!app().settings.value(SettingsKeys::mainWindowGeometry).toByteArray().isEmpty());
        ShellWindows ui(app());
        ui.shell.bringMainWindowForward();
        QCOMPARE(ui.window.size(), QSize(700, 640));
        QCOMPARE(ui.window.geometry().topLeft(), QPoint(120, 90));
    }

    void questionsAreAnsweredInAdvanceByTheirButtons()
    {
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

    // Quick add from the window's menu and the tray's menu, with the platform's "new" key; the
    // tray's menu opens the window and quits.
    void theMenus()
    {
        ShellWindows ui(app());
        ui.shell.showTray();
        int withShortcut = 0;
        QMenu* trayMenu = nullptr;
        for (QMenu* menu : ui.window.findChildren<QMenu*>()) {
            for (QAction* action : menu->actions()) {
                if (action->text().remove(u'&') == QStringLiteral("Quick Add") &&
                    action->shortcut() == QKeySequence(QKeySequence::New))
                    ++withShortcut;
                if (action->text() == QStringLiteral("Quit Lullet") && menu->title().isEmpty())
                    trayMenu = menu;
            }
        }
        QCOMPARE(withShortcut, 2);
        Q_EMIT ui.window.quickAddRequested();
        QuickAddView* quick = nullptr;
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (w->isVisible() && qobject_cast<QuickAddView*>(w))
                quick = qobject_cast<QuickAddView*>(w);
        }
        QVERIFY(quick);
        QTest::keyClick(quick->nameField(), Qt::Key_Escape);
        QVERIFY(!quick->isVisible());
        // A window minimised would hide its own bar: the quick-add window comes instead.
        ui.shell.bringMainWindowForward();
        ui.window.showMinimized();
        Q_EMIT ui.window.quickAddRequested();
        QVERIFY(quick->isVisible());
        QVERIFY(!ui.shell.content()->mainView()->quickAddBar()->isVisible());

        QVERIFY(trayMenu);
        QSignalSpy quit(&ui.shell, &Shell::quitRequested);
        for (const QString& text : {QStringLiteral("Open Lullet"), QStringLiteral("Quit Lullet")}) {
            for (QAction* action : trayMenu->actions()) {
                if (action->text() == text)
                    action->trigger();
            }
            QCOMPARE(quit.count(), text == QStringLiteral("Quit Lullet") ? 1 : 0);
        }
        QVERIFY(ui.window.isVisible());
    }

    // From the menu: a copy saved by hand is shown in the file manager; a restore comes back on
    // the project shown before, by name; a refused file is said and changes nothing.
    void backUpAndRestoreFromTheMenu()
    {
        Project* home = app().addProject(QStringLiteral("Home"));
        Item* walk = app().addItem(QStringLiteral("Walk"), at(2026, 11, 23, 12, 0));
        services().itemActions.moveToProject(*walk, home);
        QVERIFY(library().save());
        const QString copy = path(QStringLiteral("mine.sqlite"));
        {
            QStringList revealed;
            BackupCommands commands(services(), nullptr,
                                    [&](const QString& file) { revealed << file; });
            Dialogs::chooseFileNext(copy);
            commands.backUpNow();
            QTRY_COMPARE(revealed, QStringList{copy});
            QVERIFY(Dialogs::asked().front().information.endsWith(QStringLiteral(".sqlite")));
        }

        // Made after the copy, so that the shell does not show it in the file manager.
        ShellWindows ui(app());
        ui.shell.bringMainWindowForward();
        MainView* view = ui.shell.content()->mainView();
        view->showProjectNamed(QStringLiteral("Home"));
        app().addItem(QStringLiteral("Read"), at(2026, 11, 23, 13, 0));
        QVERIFY(library().save());
        QSignalSpy restored(&services().backups, &Backups::restored);
        // The menu asks before anything is replaced, as the backup settings do.
        Dialogs::forgetAsked();
        Dialogs::answerNext(QStringLiteral("Yes"));
        Dialogs::chooseFileNext(copy);
        Q_EMIT ui.window.restoreRequested();
        QCOMPARE(Dialogs::asked().front().text, QStringLiteral("Confirm Restore"));
        QVERIFY(restored.wait(5000));
        QVERIFY(view->shownProject() && view->shownProject()->hasContext());
        QCOMPARE(*view->shownProject()->name(), QStringLiteral("Home"));
        QCOMPARE(library().items().size(), std::size_t(1));

        // A text file is refused, and the user is told why.
        const QString text = writeFile(QStringLiteral("notes.txt"), "not a store");
        Dialogs::forgetAsked();
        Dialogs::answerNext(QStringLiteral("Yes"));
        Dialogs::answerNext(QStringLiteral("Ok"));
        Dialogs::chooseFileNext(text);
        Q_EMIT ui.window.restoreRequested();
        QCOMPARE(Dialogs::asked().size(), 3);
        QCOMPARE(Dialogs::asked().back().text,
                 QStringLiteral("This file can't be restored. Nothing was changed."));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestShell)
#include "tst_shell.moc"
