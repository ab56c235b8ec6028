#include "shell/MainWindow.h"
#include "shell/ShellHost.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

using namespace lullet;

namespace {

// Presses the button with the given text on the next modal box that opens.
void answerNextBox(const QString& buttonText)
{
    QTimer::singleShot(0, [buttonText] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        for (QAbstractButton* button : box->buttons()) {
            if (button->text() == buttonText)
                button->click();
        }
    });
}

} // namespace

class TestShell : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void welcomeSizeIsFixed()
    {
        MainWindow window;
        ShellHost host(window);
        host.prepareMainWindow(false, false);
        QCOMPARE(window.maximumSize(), QSize(800, 600));
        QCOMPARE(window.size(), QSize(800, 600));
        QVERIFY(!(window.windowFlags() & Qt::WindowMinimizeButtonHint));
    }

    void workingSizeUnlessLocked()
    {
        MainWindow window;
        window.resize(700, 600);
        ShellHost host(window);
        host.prepareMainWindow(true, true);
        QCOMPARE(window.minimumSize(), QSize(600, 600));
        QCOMPARE(window.size(), QSize(700, 600));
        host.prepareMainWindow(true, false);
        QCOMPARE(window.size(), QSize(600, 600));
        QVERIFY(window.maximumWidth() >= 600);
    }

    void theQuitQuestionOffersBothWays()
    {
        MainWindow window;
        ShellHost host(window);
        answerNextBox(QStringLiteral("Quit anyway"));
        QVERIFY(host.askQuitAnyway(QStringLiteral("Could not save"), QStringLiteral("Info")));
        answerNextBox(QStringLiteral("Cancel"));
        QVERIFY(!host.askQuitAnyway(QStringLiteral("Could not save"), QStringLiteral("Info")));
    }

    void theStatusMenuCanQuitAndOpen()
    {
        MainWindow window;
        ShellHost host(window);
        host.openStatusMenu();
        bool quit = false;
        connect(&host, &ShellHost::quitRequested, this, [&] { quit = true; });
        const auto menus = window.findChildren<QMenu*>();
        QMenu* trayMenu = nullptr;
        for (QMenu* m : menus) {
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
