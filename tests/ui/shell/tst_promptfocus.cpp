#include "support/Asking.h"
#include "support/DesktopTest.h"
#include "ui/prompts/IdlePromptView.h"

#include <QLineEdit>
#include <QProcess>

using namespace lullet;
using namespace lullet::test;

namespace {

// Keys and clicks through the X server, as a keyboard and a mouse give them: they reach whatever
// window has the input focus, not a widget the test picks.
bool xdotool(const QStringList& arguments)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(QStringLiteral("xdotool"), arguments);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

// What a window tells the window manager about itself, as xprop prints it.
QString windowProperty(const QWidget* window, const QString& name)
{
    QProcess process;
    process.start(QStringLiteral("xprop"),
                  {QStringLiteral("-id"), QString::number(window->winId()), name});
    process.waitForFinished();
    return QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
}

// A real window manager on the test's display, which decides focus as a desktop does.
class WindowManager {
public:
    WindowManager()
    {
        m_process.start(QStringLiteral("openbox"), {});
        // It is up once it has published the desktops.
        for (int i = 0; i < 100 && !m_ready; ++i) {
            m_ready = xdotool({QStringLiteral("get_num_desktops")});
            if (!m_ready)
                QTest::qWait(50);
        }
    }
    ~WindowManager()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }
    bool isReady() const { return m_ready; }

private:
    QProcess m_process;
    bool m_ready = false;
};

} // namespace

// A prompt never takes the keyboard from the program the user is typing in: tried with a real
// window manager, a second window that has the focus, and keys typed through the X server.
class TestPromptFocus : public DesktopTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 10, 0); }

    std::unique_ptr<WindowManager> m_manager;
    std::unique_ptr<ShellWindows> m_ui;
    std::unique_ptr<QLineEdit> m_editor;

    Popover* popover() const { return m_ui->shell.tray().popover(); }
    QLineEdit* answerField() const
    {
        return popover()->findChild<IdlePromptView*>()->answerField();
    }

    void ask()
    {
        askIdle(services().prompts, clock().now().dateByAddingMinutes(-15), false);
        QTRY_VERIFY(popover() && popover()->isShown() && popover()->findChild<IdlePromptView*>());
        QVERIFY(QTest::qWaitForWindowExposed(popover()));
    }

    void type(const QString& text) { QVERIFY(xdotool({QStringLiteral("type"), text})); }
    void key(const QString& name) { QVERIFY(xdotool({QStringLiteral("key"), name})); }

private Q_SLOTS:
    void initTestCase()
    {
        if (QGuiApplication::platformName() != QStringLiteral("xcb"))
            QSKIP("needs an X server (the test script runs one)");
        m_manager = std::make_unique<WindowManager>();
        QVERIFY2(m_manager->isReady(), "openbox and xdotool are needed (scripts/install-deps.sh)");
        DesktopTest::initTestCase();
    }

    void init()
    {
        DesktopTest::init();
        m_ui = std::make_unique<ShellWindows>(app());
        m_editor = std::make_unique<QLineEdit>();
        m_editor->setWindowTitle(QStringLiteral("An essay"));
        m_editor->resize(400, 40);
        m_editor->move(100, 500);
        m_editor->show();
        m_editor->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_editor.get()));
    }

    void cleanup()
    {
        m_editor.reset();
        m_ui.reset();
        DesktopTest::cleanup();
    }

    void typingGoesOnInTheOtherWindow()
    {
        QSignalSpy returns(m_editor.get(), &QLineEdit::returnPressed);
        ask();
        type(QStringLiteral("line 24"));
        key(QStringLiteral("Return"));
        QTRY_COMPARE(m_editor->text(), QStringLiteral("line 24"));
        QTRY_COMPARE(returns.count(), 1);
        QVERIFY(m_editor->isActiveWindow());
        QVERIFY(!popover()->isActiveWindow());
        QVERIFY(answerField()->text().isEmpty());
        QVERIFY(!app().running().item());
        QVERIFY(popover()->isShown());
        // Window managers that give new windows the focus leave alone one that says it was
        // shown at no user action.
        QCOMPARE(windowProperty(popover(), QStringLiteral("_NET_WM_USER_TIME")),
                 QStringLiteral("_NET_WM_USER_TIME(CARDINAL) = 0"));
    }

    // A click into the prompt gives it the keyboard, with its field ready.
    void aClickHandsItTheKeyboard()
    {
        ask();
        const QPoint field = answerField()->mapToGlobal(answerField()->rect().center());
        QVERIFY(
            xdotool({QStringLiteral("mousemove"), QString::number(field.x()),
                     QString::number(field.y()), QStringLiteral("click"), QStringLiteral("1")}));
        QTRY_VERIFY(popover()->isActiveWindow());
        type(QStringLiteral("reading"));
        QTRY_COMPARE(answerField()->text(), QStringLiteral("reading"));
        QVERIFY(m_editor->text().isEmpty());
    }

    // The tray icon calls an unseen prompt forward first, and puts it off the second time;
    // Escape puts it off too. Put off, it is asked again a period from now.
    void theTrayCallsItForwardThenPutsItOff()
    {
        ask();
        Q_EMIT m_ui->shell.tray().clicked();
        QTRY_VERIFY(popover()->isActiveWindow());
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(answerField()));
        app().clock.advance(120);
        Q_EMIT m_ui->shell.tray().clicked();
        QTRY_VERIFY(!popover() || !popover()->isVisible());
        QCOMPARE(*app().running().lastPromptAt(), app().clock.now());

        m_editor->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_editor.get()));
        ask();
        Q_EMIT m_ui->shell.tray().clicked();
        QTRY_VERIFY(popover()->isActiveWindow());
        key(QStringLiteral("Escape"));
        QTRY_VERIFY(!popover() || !popover()->isVisible());
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestPromptFocus)
#include "tst_promptfocus.moc"
