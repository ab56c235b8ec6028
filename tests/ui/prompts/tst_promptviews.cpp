#include "core/dates/CalendarContext.h"
#include "core/model/RepeatCodes.h"
#include "core/monitor/IdlePrompt.h"
#include "support/Asking.h"
#include "support/DatePrinting.h"
#include "support/FakeNotifications.h"
#include "support/LaunchedDesktop.h"
#include "support/Shots.h"
#include "support/TestCalendar.h"
#include "support/TestMain.h"
#include "ui/prompts/IdlePromptView.h"
#include "ui/prompts/ReminderPromptView.h"
#include "ui/prompts/TimeOverPromptView.h"
#include "ui/prompts/TodoPromptView.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Shell.h"
#include "ui/shell/Tray.h"
#include "ui/widgets/Balloon.h"
#include "ui/widgets/Popover.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextLayout>

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

Balloon* shownBalloon()
{
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (auto* b = qobject_cast<Balloon*>(w); b && b->isVisible())
            return b;
    }
    return nullptr;
}

// The last line of a label's text as the label wraps it.
QString lastLine(const QLabel* label)
{
    QTextLayout layout(label->text(), label->font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QString last;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(label->contentsRect().width());
        last = label->text().mid(line.textStart(), line.textLength());
    }
    layout.endLayout();
    return last;
}

} // namespace

// Each prompt on screen, driven by its buttons as a user would.
class TestPromptViews : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<LaunchedDesktop> m_app;

    Launched& app() { return *m_app; }
    const Services& services() { return m_app->services(); }

    Item* item(const QString& title, Date due, int minutes = 0)
    {
        Item* r = app().addItem(title, due);
        r->setShouldRemind(true);
        r->setDurationMin(minutes);
        return r;
    }

private Q_SLOTS:
    void initTestCase() { init(); }

    void init()
    {
        lullet::test::useTestCalendar();
        m_dir = std::make_unique<QTemporaryDir>();
        m_app = std::make_unique<LaunchedDesktop>(m_dir->path(), at(2026, 11, 23, 10, 15, 0));
        QVERIFY(app().open());
    }

    void cleanup()
    {
        m_app.reset();
        m_dir.reset();
    }

    // However long the title, a prompt's last line is never a lone "?" or a lone time: it holds
    // at least three words. The texts read exactly as the program words them.
    void aMessageEndsWithMoreThanItsLastWord()
    {
        const QStringList words =
            QStringLiteral("Drink a glass of water and take a short walk around the room then "
                           "stretch both arms and legs slowly")
                .split(u' ');
        const QString time = at(2026, 11, 23, 10, 15).toString(DateStyle::None, DateStyle::Short);
        for (qsizetype count = 1; count <= words.size(); ++count) {
            const QString title = words.mid(0, count).join(u' ');
            Item* previous = item(title, at(2026, 11, 23, 9, 0), 5);
            Item* due = item(title, at(2026, 11, 23, 10, 15), 5);
            ReminderPromptView reminder(services(), due, previous);
            TimeOverPromptView timeOver(services(), previous);
            TodoPromptView todo(services(), due);
            const std::pair<QWidget*, QStringList> prompts[] = {
                {&reminder,
                 {QStringLiteral("Time for : %1, at :%2").arg(title, time),
                  QStringLiteral("Have you finished : %1 ?").arg(title)}},
                {&timeOver, {QStringLiteral("Have you finished : %1 ?").arg(title)}},
                {&todo, {QStringLiteral("Time for : %1. Done ?").arg(title)}},
            };
            for (const auto& [prompt, texts] : prompts) {
                prompt->show();
                QStringList shown;
                for (const QLabel* label : prompt->findChildren<QLabel*>()) {
                    if (!label->wordWrap())
                        continue;
                    QString text = label->text();
                    shown << text.replace(QChar::Nbsp, u' ').remove(QChar(0x2060));
                    const QString last = lastLine(label).replace(QChar::Nbsp, u' ');
                    QVERIFY2(last.simplified().count(u' ') >= 2, qPrintable(label->text()));
                }
                QCOMPARE(shown, texts);
            }
            if (count == 5)
                saveShot(&reminder, QStringLiteral("reminder-wrapped"));
        }
    }

    void theReminderStartsTheDueItem()
    {
        Item* due = item(QStringLiteral("Tea"), at(2026, 11, 23, 10, 15), 10);
        ReminderPromptView alone(services(), due, nullptr);
        QSignalSpy answered(&alone, &PromptView::answered);
        alone.show();
        QVERIFY(
            !alone.findChild<QPushButton*>(QStringLiteral("finishPrevious"))->isVisibleTo(&alone));
        click(&alone, "start");
        QCOMPARE(app().running().item(), due);
        QCOMPARE(*due->timeLimit(), 600);
        // One answer: a second click while it closes does nothing.
        QCOMPARE(answered.count(), 1);
        QVERIFY(!alone.isEnabled());

        Item* next = item(QStringLiteral("Walk"), at(2026, 11, 23, 10, 15));
        ReminderPromptView both(services(), next, due);
        both.show();
        click(&both, "finishPrevious");
        QVERIFY(*due->hasFinished());
        QCOMPARE(app().running().item(), next);

        Item* later = item(QStringLiteral("Call"), at(2026, 11, 23, 10, 15));
        ReminderPromptView delay(services(), later, nullptr);
        QSignalSpy closed(&delay, &PromptView::answered);
        click(&delay, "postpone30");
        QCOMPARE(*later->dtReminderPostponed(), at(2026, 11, 23, 10, 45));
        QCOMPARE(closed.front().front().value<PromptOutcome>(), PromptOutcome::Close);
        // A double click delays once.
        click(&delay, "postpone30");
        QCOMPARE(*later->dtReminderPostponed(), at(2026, 11, 23, 10, 45));
    }

    void theMoreTimeMenuExtendsTheRunningItem()
    {
        Item* r = item(QStringLiteral("Nap"), at(2026, 11, 23, 10, 0), 20);
        app().running().start(*r);
        TimeOverPromptView prompt(services(), r);
        auto* more = prompt.findChild<QPushButton*>(QStringLiteral("moreTime"));
        QVERIFY(more && more->menu());
        QAction* fifteen = nullptr;
        for (QAction* a : more->menu()->actions()) {
            if (a->data().toInt() == 15)
                fifteen = a;
        }
        QVERIFY(fifteen);
        fifteen->trigger();
        QCOMPARE(*r->timeLimit(), 35 * 60);
        TimeOverPromptView again(services(), r);
        click(&again, "finish");
        QVERIFY(*r->hasFinished());
        QVERIFY(!app().running().item());
    }

    void theToDoPromptConfirmsOrLeavesAlone()
    {
        Item* todo = item(QStringLiteral("Water"), at(2026, 11, 23, 10, 15));
        todo->setRepeatOption(RepeatEnd::toDoMarker);
        TodoPromptView prompt(services(), todo);
        click(&prompt, "dismiss");
        QVERIFY(!*todo->hasFinished());
        TodoPromptView again(services(), todo);
        click(&again, "done");
        QVERIFY(*todo->hasFinished());
    }

    void theIdlePromptRefusesABlankName()
    {
        IdlePromptView prompt(services(), at(2026, 11, 23, 10, 0), false, nullptr);
        prompt.show();
        QCOMPARE(prompt.answerField()->placeholderText(),
                 QStringLiteral("What were you doing for last 15 minutes ?"));
        prompt.answerField()->setText(QStringLiteral("   "));
        click(&prompt, "answer");
        QPointer<Balloon> balloon = shownBalloon();
        QVERIFY(balloon);
        QCOMPARE(balloon->text(), QStringLiteral(" Task name is blank! Please enter task name. "));
        QVERIFY(!app().running().item());
        // A second blank answer replaces the balloon instead of stacking another.
        click(&prompt, "answer");
        QTRY_VERIFY(!balloon);
        QVERIFY(shownBalloon());

        // The return key answers from the field and leaves the item running.
        prompt.answerField()->setText(QStringLiteral("reading"));
        QTest::keyClick(prompt.answerField(), Qt::Key_Return);
        QVERIFY(app().running().item());
        QCOMPARE(*app().running().item()->title(), QStringLiteral("Reading"));
        // A valid answer takes its balloon away.
        QTRY_VERIFY(!shownBalloon());
    }

    void aDoubleClickRecordsOneItemInTheProjectChosenByPlace()
    {
        // A project may be named like the menu's first entry.
        Project* today = app().library().newProject();
        today->setName(QStringLiteral("Today"));
        app().library().addProject(today);
        IdlePromptView prompt(services(), at(2026, 11, 23, 10, 0), false, today);
        prompt.show();
        QCOMPARE(prompt.findChild<QComboBox*>(QStringLiteral("projects"))->currentIndex(), 1);
        prompt.answerField()->setText(QStringLiteral("planning"));
        auto* alreadyDone = prompt.findChild<QPushButton*>(QStringLiteral("alreadyDone"));
        alreadyDone->click();
        alreadyDone->click();
        QCOMPARE(app().library().items().size(), std::size_t(1));
        QCOMPARE(app().library().items().front()->toProject(), today);
    }

    // "Later" puts the question off: closed unanswered, its gap kept for the next question, and
    // the idle clock stamped so the next comes a whole period from now. Any prompt closes on
    // Escape.
    void laterAndEscapePutAQuestionOff()
    {
        MainWindow window;
        Shell shell(services(), window, m_app->presence, m_app->notifier);
        shell.setLoaded();
        m_app->clock.set(at(2026, 11, 23, 10, 20));
        askIdle(services().prompts, at(2026, 11, 23, 10, 0), false);
        QTRY_VERIFY(shell.tray().popover());
        Popover* popover = shell.tray().popover();
        click(popover->content(), "later");
        QTRY_VERIFY(!popover->isVisible());
        QCOMPARE(*app().running().lastPromptAt(), at(2026, 11, 23, 10, 20));
        QCOMPARE(*app().running().unansweredGapStart(), at(2026, 11, 23, 10, 0));
        QVERIFY(!app().running().item());

        Item* due = item(QStringLiteral("Stretch"), at(2026, 11, 23, 10, 20));
        remind(services().prompts, due, nullptr);
        QTRY_VERIFY(qobject_cast<ReminderPromptView*>(shell.tray().popover()->content()));
        popover = shell.tray().popover();
        QTest::keyClick(popover, Qt::Key_Escape);
        QTRY_VERIFY(!popover->isVisible());
        QVERIFY(!due->isStarted());
    }

    // A reminder that may go unseen is also a notification: its buttons answer as the prompt's
    // own, a click calls the prompt forward, and it goes with the prompt. A prompt under a
    // usable tray icon sends none.
    void anUnseenReminderIsAlsoANotification()
    {
        FakeNotifications server;
        QVERIFY(server.registerOnBus());
        MainWindow window;
        Shell shell(services(), window, m_app->presence, m_app->notifier);
        shell.setLoaded();
        const auto reminderShown = [&shell] {
            const Popover* popover = shell.tray().popover();
            return popover && popover->isShown() &&
                   qobject_cast<ReminderPromptView*>(popover->content());
        };
        remind(services().prompts, item(QStringLiteral("Seen"), at(2026, 11, 23, 10, 15)), nullptr);
        QTRY_VERIFY(reminderShown());
        shell.tray().closePopoverImmediate();

        m_app->presence.setTrayAvailable(false);
        Item* tea = item(QStringLiteral("Tea"), at(2026, 11, 23, 10, 15));
        remind(services().prompts, tea, nullptr);
        QTRY_COMPARE(server.shown.size(), std::size_t(1));
        QTRY_VERIFY(m_app->notifier.isShown());
        QTRY_VERIFY(reminderShown());
        const FakeNotifications::Shown first = server.shown.front();
        QCOMPARE(first.summary, QStringLiteral("Reminder"));
        QCOMPARE(first.body, qobject_cast<ReminderPromptView*>(shell.tray().popover()->content())
                                 ->prompt()
                                 .reminderText());
        QCOMPARE(first.actions,
                 (QStringList{QStringLiteral("default"), QStringLiteral("Show"),
                              QStringLiteral("start"), QStringLiteral("Start"),
                              QStringLiteral("postpone10"), QStringLiteral("In 10 min")}));
        QCOMPARE(first.hints.value(QStringLiteral("desktop-entry")).toString(),
                 QStringLiteral("org.lullet.Lullet"));
        Q_EMIT server.ActionInvoked(first.id, QStringLiteral("start"));
        QTRY_COMPARE(app().running().item(), tea);
        QTRY_VERIFY(!reminderShown());
        QTRY_COMPARE(server.closed, std::vector<uint>{first.id});
        QVERIFY(!m_app->notifier.isShown());

        Item* walk = item(QStringLiteral("Walk"), at(2026, 11, 23, 10, 15));
        remind(services().prompts, walk, nullptr);
        QTRY_COMPARE(server.shown.size(), std::size_t(2));
        QTRY_VERIFY(m_app->notifier.isShown());
        QTRY_VERIFY(reminderShown());
        const uint second = server.shown.back().id;
        // Another program's notification, and a click on this one, answer nothing.
        Q_EMIT server.ActionInvoked(second + 1, QStringLiteral("postpone10"));
        Q_EMIT server.ActionInvoked(second, QStringLiteral("default"));
        QTRY_VERIFY(shell.tray().popover()->isActiveWindow());
        QVERIFY(!walk->dtReminderPostponed());
        Q_EMIT server.ActionInvoked(second, QStringLiteral("postpone10"));
        QTRY_COMPARE(walk->dtReminderPostponed(), std::optional(at(2026, 11, 23, 10, 25)));
        QTRY_VERIFY(!reminderShown());
        QTRY_COMPARE(server.closed.size(), std::size_t(2));
        QCOMPARE(server.shown.size(), std::size_t(2));
    }

    void aBalloonClosesByItself()
    {
        QLineEdit field;
        field.show();
        QPointer<Balloon> balloon = Balloon::show(QStringLiteral("Nope"), &field, 20);
        QVERIFY(balloon && balloon->isVisible());
        QTRY_VERIFY(!balloon);
    }

    // Prompts take turns in the popover: a reminder waits for the one on show to be answered or
    // put away; the idle question waits behind reminders, and one on show gives way to a
    // reminder and comes back after it over the whole gap.
    void promptsTakeTurnsInThePopover()
    {
        MainWindow window;
        Shell shell(services(), window, m_app->presence, m_app->notifier);
        shell.setLoaded();
        const auto shown = [&shell]() -> QWidget* {
            const Popover* popover = shell.tray().popover();
            return popover && popover->isShown() ? popover->content() : nullptr;
        };
        const auto dueOnShow = [&shown]() -> Item* {
            auto* reminder = qobject_cast<ReminderPromptView*>(shown());
            return reminder ? reminder->prompt().due() : nullptr;
        };
        Item* first = item(QStringLiteral("First"), at(2026, 11, 23, 10, 15));
        Item* second = item(QStringLiteral("Second"), at(2026, 11, 23, 10, 15));
        remind(services().prompts, first);
        remind(services().prompts, second);
        askIdle(services().prompts, at(2026, 11, 23, 10, 0));
        QTRY_COMPARE(dueOnShow(), first);
        QTest::qWait(50);
        QCOMPARE(dueOnShow(), first);
        QTest::keyClick(shell.tray().popover(), Qt::Key_Escape);
        QTRY_COMPARE(dueOnShow(), second);
        click(shown(), "postpone10");
        QTRY_VERIFY(qobject_cast<IdlePromptView*>(shown()));

        // An idle question on show goes on counting instead of being replaced.
        Popover* idle = shell.tray().popover();
        askIdle(services().prompts, at(2026, 11, 23, 10, 5), true);
        QCOMPARE(shell.tray().popover(), idle);
        QVERIFY(qobject_cast<IdlePromptView*>(idle->content())->prompt().asksNow());

        // A reminder cannot wait behind it: the question gives way and comes back after.
        Item* third = item(QStringLiteral("Third"), at(2026, 11, 23, 10, 15));
        remind(services().prompts, third);
        QTRY_COMPARE(dueOnShow(), third);
        QCOMPARE(*app().running().unansweredGapStart(), at(2026, 11, 23, 10, 0));
        QTest::keyClick(shell.tray().popover(), Qt::Key_Escape);
        IdlePromptView* again = nullptr;
        QTRY_VERIFY((again = qobject_cast<IdlePromptView*>(shown())));
        QCOMPARE(again->prompt().gapStart(), at(2026, 11, 23, 10, 0));
    }

    // An unanswered question replaced by the next: the next counts from the first's start, and
    // the one after that from where the second was answered.
    void anUnansweredGapGoesToTheNextQuestion()
    {
        MainWindow window;
        Shell shell(services(), window, m_app->presence, m_app->notifier);
        shell.setLoaded();
        m_app->clock.set(at(2026, 11, 23, 10, 15));
        askIdle(services().prompts, at(2026, 11, 23, 10, 0), false);
        QTRY_VERIFY(shell.tray().popover());
        const QWidget* a = shell.tray().popover()->content();
        // The tray closes it without an answer: hidden, not answered.
        shell.tray().closePopover();
        m_app->clock.set(at(2026, 11, 23, 10, 30));
        askIdle(services().prompts, at(2026, 11, 23, 10, 15), false);
        IdlePromptView* b = nullptr;
        QTRY_VERIFY((b = qobject_cast<IdlePromptView*>(
                         shell.tray().popover() ? shell.tray().popover()->content() : nullptr)) &&
                    b != a);
        QCOMPARE(b->prompt().gapStart(), at(2026, 11, 23, 10, 0));
        QCOMPARE(b->prompt().questionText(),
                 QStringLiteral("What were you doing for last 30 minutes ?"));
        b->answerField()->setText(QStringLiteral("writing"));
        click(b, "answer");
        QVERIFY(!app().running().unansweredGapStart());
        app().running().finish(*app().running().item());
        m_app->clock.set(at(2026, 11, 23, 10, 50));
        askIdle(services().prompts, at(2026, 11, 23, 10, 30), false);
        IdlePromptView* c = nullptr;
        QTRY_VERIFY((c = qobject_cast<IdlePromptView*>(
                         shell.tray().popover() ? shell.tray().popover()->content() : nullptr)) &&
                    c != b);
        QCOMPARE(c->prompt().gapStart(), at(2026, 11, 23, 10, 30));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestPromptViews)
#include "tst_promptviews.moc"
