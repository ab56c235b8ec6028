#include "core/dates/CalendarContext.h"
#include "support/Launched.h"
#include "support/TestCalendar.h"
#include "support/TestMain.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Shell.h"
#include "ui/widgets/Dialogs.h"

#include <QApplication>
#include <QMenu>
#include <QTemporaryDir>

#include <memory>

using namespace lullet;
using namespace lullet::test;

class TestShell : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Launched> m_app;

private Q_SLOTS:
    void init()
    {
        lullet::test::useTestCalendar();
        m_dir = std::make_unique<QTemporaryDir>();
        m_app = std::make_unique<Launched>(m_dir->path(), at(2026, 11, 23, 10, 0));
    }

    void cleanup()
    {
        m_app.reset();
        m_dir.reset();
    }

    void welcomeSizeIsFixed()
    {
        QVERIFY(m_app->open(false));
        MainWindow window;
        Shell shell(m_app->services(), window);
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
        Shell shell(m_app->services(), window);
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
        Shell shell(m_app->services(), window);
        window.showMinimized();
        QVERIFY(window.isMinimized());
        shell.bringMainWindowForward();
        QVERIFY(!window.isMinimized());
        QVERIFY(window.isVisible());
    }

    void questionsCanBeAnsweredInAdvance()
    {
        Dialogs::forgetAsked();
        Dialogs::answerNext(0);
        Dialogs::answerNext(1);
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
        Shell shell(m_app->services(), window);
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
};

LULLET_TEST_MAIN_WITH(QApplication, TestShell)
#include "tst_shell.moc"
