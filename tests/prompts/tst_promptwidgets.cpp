#include "core/dates/CalendarContext.h"
#include "core/notify/Notifications.h"
#include "core/settings/SettingsKeys.h"
#include "core/store/ObjectContext.h"
#include "monitor/IdlePrompt.h"
#include "prompts/AlertViewController.h"
#include "prompts/LulletAlertViewController.h"
#include "prompts/ReminderViewController.h"
#include "prompts/TimeoverAlertViewController.h"
#include "scheduling/RepeatTypes.h"
#include "shell/ErrorBalloon.h"
#include "shell/MainWindow.h"
#include "shell/Popover.h"
#include "shell/ShellHost.h"
#include "shell/StatusItem.h"
#include "support/DatePrinting.h"
#include "support/TestCalendar.h"
#include "support/TestLaunch.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>

#include <memory>

using namespace lullet;
using namespace lullet::test;

namespace {

void click(QWidget* prompt, const char* name)
{
    auto* button = prompt->findChild<QPushButton*>(QString::fromLatin1(name));
    QVERIFY2(button, name);
    QVERIFY2(button->isVisibleTo(prompt), name);
    button->click();
}

} // namespace

// Each prompt on screen, driven by its buttons as a user would.
class TestPromptWidgets : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TestLaunch> m_app;

    AppDelegate& app() { return m_app->delegate; }

    ReminderInfo* item(const QString& title, Date due, int minutes = 0)
    {
        ReminderInfo* r = app().managedObjectContext().insertReminderInfo();
        r->setTitle(title);
        r->setDtReminder(due);
        r->setShouldRemind(true);
        r->setDurationMin(minutes);
        app().addLulletObject(r);
        return r;
    }

private Q_SLOTS:
    void initTestCase() { init(); }

    void init()
    {
        lullet::test::useTestCalendar();
        m_dir = std::make_unique<QTemporaryDir>();
        m_app = std::make_unique<TestLaunch>(m_dir->path(), at(2026, 11, 23, 10, 15, 0));
        m_app->defaults.set(SettingsKeys::isShowFirst, 1);
        QVERIFY(app().awakeFromNib());
    }

    void cleanup()
    {
        m_app.reset();
        m_dir.reset();
    }

    void theReminderStartsTheDueItem()
    {
        ReminderInfo* due = item(QStringLiteral("Tea"), at(2026, 11, 23, 10, 15), 10);
        ReminderViewController alone(app(), due, nullptr);
        alone.show();
        QVERIFY(!alone.findChild<QPushButton*>(QStringLiteral("finishedPrevious"))
                     ->isVisibleTo(&alone));
        click(&alone, "onStart");
        QCOMPARE(app().objReminderRunningNow, due);
        QCOMPARE(*due->timeLimit(), 600);

        ReminderInfo* next = item(QStringLiteral("Walk"), at(2026, 11, 23, 10, 15));
        ReminderViewController both(app(), next, due);
        both.show();
        click(&both, "finishedPrevious");
        QVERIFY(*due->hasFinished());
        QCOMPARE(app().objReminderRunningNow, next);

        ReminderInfo* later = item(QStringLiteral("Call"), at(2026, 11, 23, 10, 15));
        ReminderViewController delay(app(), later, nullptr);
        click(&delay, "onPostpone30");
        QCOMPARE(*later->dtReminderPostponed(), at(2026, 11, 23, 10, 45));
        QVERIFY(m_app->host.calls.endsWith(QStringLiteral("closePopover")));
    }

    void theMoreTimeMenuExtendsTheRunningItem()
    {
        ReminderInfo* r = item(QStringLiteral("Nap"), at(2026, 11, 23, 10, 0), 20);
        ReminderViewController(app(), r, nullptr).prompt().onStart();
        TimeoverAlertViewController prompt(app(), r);
        auto* more = prompt.findChild<QPushButton*>(QStringLiteral("onNeedMoreTime"));
        QVERIFY(more && more->menu());
        QAction* fifteen = nullptr;
        for (QAction* a : more->menu()->actions()) {
            if (a->data().toInt() == 15)
                fifteen = a;
        }
        QVERIFY(fifteen);
        fifteen->trigger();
        QCOMPARE(*r->timeLimit(), 35 * 60);
        click(&prompt, "finishedPrevious");
        QVERIFY(*r->hasFinished());
        QVERIFY(!app().objReminderRunningNow);
    }

    void theToDoPromptConfirmsOrLeavesAlone()
    {
        ReminderInfo* todo = item(QStringLiteral("Water"), at(2026, 11, 23, 10, 15));
        todo->setRepeatOption(RepeatOptionsToDo::TODO_VAL);
        LulletAlertViewController prompt(app(), todo);
        click(&prompt, "onCancel");
        QVERIFY(!*todo->hasFinished());
        click(&prompt, "onDone");
        QVERIFY(*todo->hasFinished());
    }

    void theIdlePromptRefusesABlankName()
    {
        AlertViewController prompt(app(), at(2026, 11, 23, 10, 0), false);
        prompt.show();
        QCOMPARE(prompt.txtTaskName->placeholderText(),
                 QStringLiteral("What were you doing for last 15 minutes ?"));
        prompt.txtTaskName->setText(QStringLiteral("   "));
        click(&prompt, "onDone");
        QPointer<ErrorBalloon> balloon;
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (auto* b = qobject_cast<ErrorBalloon*>(w); b && b->isVisible())
                balloon = b;
        }
        QVERIFY(balloon);
        QCOMPARE(balloon->text(), QStringLiteral(" Task name is blank! Please enter task name. "));
        QVERIFY(!app().objReminderRunningNow);
        // It closes by itself.
        QTRY_VERIFY_WITH_TIMEOUT(!balloon, ErrorBalloon::lifetimeMs + 2000);

        // The return key answers from the field and leaves the item running.
        prompt.txtTaskName->setText(QStringLiteral("reading"));
        QTest::keyClick(prompt.txtTaskName, Qt::Key_Return);
        QVERIFY(app().objReminderRunningNow);
        QCOMPARE(*app().objReminderRunningNow->title(), QStringLiteral("Reading"));
    }

    void oneQuestionAtATimeInThePopover()
    {
        MainWindow window;
        ShellHost shell(window);
        shell.attach(app());
        ReminderInfo* first = item(QStringLiteral("First"), at(2026, 11, 23, 10, 15));
        ReminderInfo* second = item(QStringLiteral("Second"), at(2026, 11, 23, 10, 15));
        shell.makeReminderPopOver(first, nullptr);
        Popover* popover = shell.statusItem().popover();
        QVERIFY(popover && popover->isShown());
        // The next prompt waits for the first to close.
        shell.makeReminderPopOver(second, nullptr);
        QTRY_VERIFY(shell.statusItem().popover() && shell.statusItem().popover() != popover);
        auto* shown =
            qobject_cast<ReminderViewController*>(shell.statusItem().popover()->content());
        QVERIFY(shown);
        QCOMPARE(shown->prompt().objReminder, second);

        // An idle question already open goes on counting instead of being replaced.
        shell.makeIdleAlertPopOver(at(2026, 11, 23, 10, 0), false);
        QTRY_VERIFY(qobject_cast<AlertViewController*>(shell.statusItem().popover()->content()));
        Popover* idle = shell.statusItem().popover();
        int extended = 0;
        QObject listener;
        m_app->center.addObserver(&listener, notification::onIdleTimeExtended,
                                  [&](const QVariant&) { ++extended; });
        shell.makeIdleAlertPopOver(at(2026, 11, 23, 10, 5), true);
        QCOMPARE(extended, 1);
        QCOMPARE(shell.statusItem().popover(), idle);
        auto* alert = qobject_cast<AlertViewController*>(idle->content());
        QVERIFY(alert->prompt().bIsAutoPrompt);

        // Resizing the window is announced with the new size.
        QSize announced;
        m_app->center.addObserver(&listener, notification::onWindowResize,
                                  [&](const QVariant& o) { announced = o.toSize(); });
        window.resize(640, 610);
        window.show();
        QTRY_COMPARE(announced, window.size());

        // Dropped unanswered, it hands its start to the next question.
        shell.closePopoverImmediate();
        QVERIFY(!shell.statusItem().popover());
        QTRY_VERIFY(app().dtLastUnrepliedTime.has_value());
        QCOMPARE(*app().dtLastUnrepliedTime, at(2026, 11, 23, 10, 0));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestPromptWidgets)
#include "tst_promptwidgets.moc"
