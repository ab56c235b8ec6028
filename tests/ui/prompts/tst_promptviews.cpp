#include "core/monitor/IdlePrompt.h"
#include "support/Asking.h"
#include "support/DesktopTest.h"
#include "support/FakeNotifications.h"
#include "support/Shots.h"
#include "ui/prompts/IdlePromptView.h"
#include "ui/prompts/ReminderPromptView.h"
#include "ui/prompts/TimeOverPromptView.h"
#include "ui/prompts/TodoPromptView.h"
#include "ui/widgets/Balloon.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTextLayout>

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
class TestPromptViews : public DesktopTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 10, 15, 0); }

    Item* item(const QString& title, Date due, int minutes = 0)
    {
        Item* r = app().addItem(title, due);
        r->setShouldRemind(true);
        r->setDurationMin(minutes);
        return r;
    }

private Q_SLOTS:
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
        QVERIFY(!child<QPushButton>(&alone, "finishPrevious")->isVisibleTo(&alone));
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

    // The time-over prompt's menu extends the running item, its Finish ends it; the to-do
    // prompt confirms or leaves alone.
    void theTimeOverAndToDoPrompts()
    {
        Item* r = item(QStringLiteral("Nap"), at(2026, 11, 23, 10, 0), 20);
        app().running().start(*r);
        TimeOverPromptView prompt(services(), r);
        QMenu* more = child<QPushButton>(&prompt, "moreTime")->menu();
        QVERIFY(more);
        QAction* fifteen = nullptr;
        for (QAction* a : more->actions()) {
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

        Item* todo = item(QStringLiteral("Water"), at(2026, 11, 23, 10, 15));
        todo->setRepeatOption(RepeatEnd::toDoMarker);
        TodoPromptView dismissed(services(), todo);
        click(&dismissed, "dismiss");
        QVERIFY(!*todo->hasFinished());
        TodoPromptView done(services(), todo);
        click(&done, "done");
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
        // A balloon left alone closes by itself.
        QPointer<Balloon> brief = Balloon::show(QStringLiteral("Nope"), prompt.answerField(), 20);
        QVERIFY(brief && brief->isVisible());
        QTRY_VERIFY(!brief);
    }

    // A double click records one item, in the project chosen by its place in the menu.
    void aDoubleClickRecordsOneItemInTheProjectChosenByPlace()
    {
        // A project may be named like the menu's first entry.
        Project* today = app().addProject(QStringLiteral("Today"));
        IdlePromptView prompt(services(), at(2026, 11, 23, 10, 0), false, today);
        prompt.show();
        QCOMPARE(child<QComboBox>(&prompt, "projects")->currentIndex(), 1);
        prompt.answerField()->setText(QStringLiteral("planning"));
        auto* alreadyDone = child<QPushButton>(&prompt, "alreadyDone");
        alreadyDone->click();
        alreadyDone->click();
        QCOMPARE(library().items().size(), std::size_t(1));
        QCOMPARE(library().items().front()->toProject(), today);
    }

    // "Later" puts the question off: closed unanswered, its gap kept for the next question, and
    // the idle clock stamped so the next comes a whole period from now. Any prompt closes on
    // Escape.
    void laterAndEscapePutAQuestionOff()
    {
        ShellWindows ui(app());
        Shell& shell = ui.shell;
        app().clock.set(at(2026, 11, 23, 10, 20));
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
        ShellWindows ui(app());
        Shell& shell = ui.shell;
        const auto reminderShown = [&ui] {
            return qobject_cast<ReminderPromptView*>(ui.shownInPopover()) != nullptr;
        };
        remind(services().prompts, item(QStringLiteral("Seen"), at(2026, 11, 23, 10, 15)), nullptr);
        QTRY_VERIFY(reminderShown());
        shell.tray().closePopoverImmediate();

        app().presence.setTrayAvailable(false);
        Item* tea = item(QStringLiteral("Tea"), at(2026, 11, 23, 10, 15));
        remind(services().prompts, tea, nullptr);
        QTRY_COMPARE(server.shown.size(), std::size_t(1));
        QTRY_VERIFY(app().notifier.isShown());
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
        QVERIFY(!app().notifier.isShown());

        Item* walk = item(QStringLiteral("Walk"), at(2026, 11, 23, 10, 15));
        remind(services().prompts, walk, nullptr);
        QTRY_COMPARE(server.shown.size(), std::size_t(2));
        QTRY_VERIFY(app().notifier.isShown());
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

    // Prompts take turns in the popover: a reminder waits for the one on show to be answered or
    // put away; the idle question waits behind reminders, and one on show gives way to a
    // reminder and comes back after it over the whole gap.
    void promptsTakeTurnsInThePopover()
    {
        ShellWindows ui(app());
        Shell& shell = ui.shell;
        const auto shown = [&ui] { return ui.shownInPopover(); };
        const auto dueOnShow = [&ui]() -> Item* {
            auto* reminder = qobject_cast<ReminderPromptView*>(ui.shownInPopover());
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
        ShellWindows ui(app());
        Shell& shell = ui.shell;
        app().clock.set(at(2026, 11, 23, 10, 15));
        askIdle(services().prompts, at(2026, 11, 23, 10, 0), false);
        QTRY_VERIFY(shell.tray().popover());
        const QWidget* a = shell.tray().popover()->content();
        // The tray closes it without an answer: hidden, not answered.
        shell.tray().closePopover();
        app().clock.set(at(2026, 11, 23, 10, 30));
        askIdle(services().prompts, at(2026, 11, 23, 10, 15), false);
        IdlePromptView* b = nullptr;
        QTRY_VERIFY((b = qobject_cast<IdlePromptView*>(ui.shownInPopover())) && b != a);
        QCOMPARE(b->prompt().gapStart(), at(2026, 11, 23, 10, 0));
        QCOMPARE(b->prompt().questionText(),
                 QStringLiteral("What were you doing for last 30 minutes ?"));
        b->answerField()->setText(QStringLiteral("writing"));
        click(b, "answer");
        QVERIFY(!app().running().unansweredGapStart());
        app().running().finish(*app().running().item());
        app().clock.set(at(2026, 11, 23, 10, 50));
        askIdle(services().prompts, at(2026, 11, 23, 10, 30), false);
        IdlePromptView* c = nullptr;
        QTRY_VERIFY((c = qobject_cast<IdlePromptView*>(ui.shownInPopover())) && c != b);
        QCOMPARE(c->prompt().gapStart(), at(2026, 11, 23, 10, 30));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestPromptViews)
#include "tst_promptviews.moc"
