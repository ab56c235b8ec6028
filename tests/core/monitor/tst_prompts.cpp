#include "core/monitor/IdlePrompt.h"
#include "core/monitor/ReminderPrompt.h"
#include "core/monitor/TimeOverPrompt.h"
#include "core/monitor/TodoPrompt.h"
#include "core/presentation/ProjectChoices.h"
#include "support/Heard.h"
#include "support/LaunchedTest.h"

using namespace lullet;
using namespace lullet::test;

// What each prompt's answers do to the records, and what they announce.
class TestPrompts : public LaunchedTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 10, 15, 20); }

    std::unique_ptr<Heard> m_heard;

    Date now() const { return clock().now(); }
    QStringList& heard() { return m_heard->events; }

    Item* item(const QString& title, Date due, int hours = 0, int minutes = 0)
    {
        Item* r = app().addItem(title, due);
        r->setShouldRemind(true);
        r->setDurationHr(hours);
        r->setDurationMin(minutes);
        library().save();
        return r;
    }

    ReminderPrompt reminder(Item* due, Item* previous)
    {
        return ReminderPrompt(services().postponing, app().running(), due, previous);
    }

    TimeOverPrompt timeOver(Item* item) { return TimeOverPrompt(app().running(), item); }

    IdlePrompt idle(Date since, bool askNow)
    {
        return IdlePrompt(clock(), library(), app().running(), since, askNow);
    }

private Q_SLOTS:
    void init()
    {
        LaunchedTest::init();
        m_heard = std::make_unique<Heard>(library(), app().running());
    }

    void startingMakesTheItemRun()
    {
        Item* due = item(QStringLiteral("Walk"), at(2026, 11, 21, 10, 15), 1, 30);
        ReminderPrompt prompt = reminder(due, nullptr);
        QCOMPARE(prompt.reminderText(),
                 QStringLiteral("Time for : Walk, at :") +
                     at(2026, 11, 21, 10, 15).toString(DateStyle::None, DateStyle::Short));
        QVERIFY(prompt.previousText().isEmpty());
        QCOMPARE(prompt.start(), PromptOutcome::Close);
        QCOMPARE(app().running().item(), due);
        QVERIFY(*due->hasStarted());
        QCOMPARE(*due->timeLimit(), 5400);
        QCOMPARE(*due->elapsedTime(), 0);
        // Its own day, at the present time of day; nothing saved.
        QCOMPARE(*due->dtReminderPostponed(), at(2026, 11, 21, 10, 15, 20));
        QVERIFY(app().context().hasChanges());
        // The start is told once, by the running item.
        QCOMPARE(heard(), QStringList{QStringLiteral("started:Walk")});

        Item* open = item(QStringLiteral("Read"), at(2026, 11, 23, 10, 15));
        reminder(open, nullptr).start();
        QCOMPARE(*open->timeLimit(), 0);
    }

    void delaysAndWhatReachesTheDisk()
    {
        Item* due = item(QStringLiteral("Tea"), at(2026, 11, 23, 10, 15));
        due->setDtReminderPostponed(at(2026, 11, 23, 10, 20));
        library().save();
        const Date alert = *app().running().lastPromptAt();
        QCOMPARE(reminder(due, nullptr).postpone10(), PromptOutcome::Close);
        QCOMPARE(*due->dtReminderPostponed(), at(2026, 11, 23, 10, 30));
        QVERIFY(app().context().hasChanges());
        reminder(due, nullptr).postpone30();
        QCOMPARE(*due->dtReminderPostponed(), at(2026, 11, 23, 11, 0));
        QVERIFY(!app().context().hasChanges());
        QCOMPARE(*app().running().lastPromptAt(), alert);
        QCOMPARE(heard(),
                 (QStringList{QStringLiteral("postponed:Tea"), QStringLiteral("postponed:Tea")}));
    }

    void finishingThePreviousStartsTheDueOne()
    {
        Item* previous = item(QStringLiteral("Write"), at(2026, 11, 23, 9, 0), 1, 0);
        reminder(previous, nullptr).start();
        previous->setRunningTimeCovered(40);
        Item* due = item(QStringLiteral("Tea"), at(2026, 11, 23, 10, 15));
        heard().clear();
        clock().advance(5);
        ReminderPrompt prompt = reminder(due, previous);
        QCOMPARE(prompt.previousText(), QStringLiteral("Have you finished : Write ?"));
        QCOMPARE(prompt.finishPrevious(), PromptOutcome::Close);
        QVERIFY(*previous->hasFinished());
        QVERIFY(!*previous->hasStarted());
        QVERIFY(!previous->runningTimeCovered());
        QCOMPARE(*previous->dtReminder(), at(2026, 11, 23, 9, 0));
        QCOMPARE(*app().running().lastPromptAt(), now());
        QCOMPARE(app().running().item(), due);
        QCOMPARE(heard(),
                 (QStringList{QStringLiteral("finished:Write"), QStringLiteral("started:Tea")}));
    }

    void moreTimeForBothKindsOfItem()
    {
        Item* limited = item(QStringLiteral("Limited"), at(2026, 11, 23, 9, 0), 1, 30);
        reminder(limited, nullptr).start();
        Item* due = item(QStringLiteral("Due"), at(2026, 11, 23, 10, 15));
        heard().clear();
        reminder(due, limited).moreTime(15);
        QCOMPARE(*limited->timeLimit(), 6300);
        QCOMPARE(*limited->durationHr(), 1);
        QCOMPARE(*limited->durationMin(), 45);
        QCOMPARE(*due->dtReminderPostponed(), at(2026, 11, 23, 10, 30));
        QCOMPARE(heard(), (QStringList{QStringLiteral("extended:Limited"),
                                       QStringLiteral("postponed:Due")}));

        // A limit without a planned length grows alone.
        limited->setDurationHr(0);
        limited->setDurationMin(0);
        timeOver(limited).moreTime(10);
        QCOMPARE(*limited->timeLimit(), 6900);
        QCOMPARE(*limited->durationMin(), 0);

        Item* open = item(QStringLiteral("Open"), at(2026, 11, 23, 9, 0));
        reminder(open, nullptr).start();
        open->setElapsedTime(333);
        heard().clear();
        ReminderPrompt none = reminder(nullptr, open);
        QCOMPARE(none.reminderText(), QStringLiteral("None"));
        none.moreTime(20);
        QCOMPARE(*open->timeLimit(), 0);
        QCOMPARE(*open->timeLimitExtendedBy(), 1200);
        QCOMPARE(*open->runningTimeCovered(), 333);
        QCOMPARE(heard(), QStringList{QStringLiteral("extended:Open")});
        QVERIFY(!app().context().hasChanges());
    }

    void timeOverFinishFilesTheItemNowAndAsksAgain()
    {
        Item* r = item(QStringLiteral("Nap"), at(2026, 11, 23, 9, 50), 0, 20);
        reminder(r, nullptr).start();
        r->setRunningTimeCovered(5);
        clock().set(at(2026, 11, 23, 10, 40, 7));
        heard().clear();
        QCOMPARE(timeOver(r).finish(), PromptOutcome::CloseAndAsk);
        QCOMPARE(*r->dtReminder(), now());
        QCOMPARE(*r->dtReminderPostponed(), now());
        QVERIFY(*r->hasFinished() && !*r->hasStarted() && !r->runningTimeCovered());
        QVERIFY(!app().running().item());
        QCOMPARE(heard(), QStringList{QStringLiteral("finished:Nap")});
    }

    void aToDoConfirmedMakesItsNextOccurrence()
    {
        services().catalogue.registerRule(
            app().addRule(QStringLiteral("Water"), RepeatUnit::Hour, 2, at(2026, 11, 23, 9, 0)));
        Item* occurrence = library().items().front();
        QCOMPARE(*occurrence->dtReminder(), at(2026, 11, 23, 11, 0));
        occurrence->setDtReminderPostponed(at(2026, 11, 23, 11, 30));

        TodoPrompt cancel(services().itemActions, occurrence);
        QCOMPARE(cancel.text(), QStringLiteral("Time for : Water. Done ?"));
        QCOMPARE(TodoPrompt::dismiss(), PromptOutcome::Close);
        QVERIFY(!*occurrence->hasFinished());

        clock().set(at(2026, 11, 23, 11, 0, 5));
        heard().clear();
        TodoPrompt(services().itemActions, occurrence).done();
        QVERIFY(*occurrence->hasFinished());
        QCOMPARE(*occurrence->dtReminder(), now());
        // The next one steps from the postponed date it was due on.
        QCOMPARE(library().items().size(), std::size_t(2));
        QCOMPARE(*library().items().front()->dtReminder(), at(2026, 11, 23, 13, 30));
        QCOMPARE(heard().first(), QStringLiteral("finished:Water"));
        // The confirmed to-do is no event for the idle clock.
        QCOMPARE(*app().running().lastPromptAt(), at(2026, 11, 23, 10, 15));
    }

    void theIdleAnswerBecomesTheRunningItem()
    {
        Project* home = app().addProject(QStringLiteral("Home"));
        clock().set(at(2026, 11, 23, 10, 20));
        app().running().setPromptPeriod(15);
        IdlePrompt prompt = idle(at(2026, 11, 23, 10, 0), false);
        const ProjectChoices choices(library(), IdlePrompt::noProjectChoice());
        QCOMPARE(choices.titles(), (QStringList{QStringLiteral("Today"), QStringLiteral("Home")}));
        QCOMPARE(choices.projectAt(1), home);
        QVERIFY(!choices.projectAt(0));
        clock().set(at(2026, 11, 23, 10, 25));
        QCOMPARE(prompt.questionText(),
                 QStringLiteral("What were you doing for last 25 minutes ?"));
        QVERIFY(prompt.rangeText().startsWith(QStringLiteral("(10:00")));
        QCOMPARE(prompt.answer(QStringLiteral("   "), nullptr, false), PromptOutcome::Stay);
        QCOMPARE(prompt.answer(QStringLiteral(" walk "), home, false), PromptOutcome::Close);
        // An answer is acted on once.
        QCOMPARE(prompt.answer(QStringLiteral("again"), home, false), PromptOutcome::Stay);
        QCOMPARE(library().items().size(), std::size_t(1));

        Item* r = app().running().item();
        QVERIFY(r);
        QCOMPARE(*r->title(), QStringLiteral("Walk"));
        QCOMPARE(*r->dtReminder(), at(2026, 11, 23, 10, 0));
        QCOMPARE(*r->elapsedTime(), 1500);
        QCOMPARE(*r->timeLimitExtendedBy(), 900);
        QCOMPARE(*r->uniqueId(), QStringLiteral("<to make>"));
        QVERIFY(*r->hasStarted());
        QCOMPARE(r->toProject(), home);
        QCOMPARE(*app().running().lastPromptAt(), at(2026, 11, 23, 10, 20));
        QVERIFY(!app().running().unansweredGapStart());
        // A new item that runs at once is one change, told once.
        QCOMPARE(heard(), QStringList{QStringLiteral("started:Walk")});
    }

    void anUnansweredQuestionHandsOnItsStart()
    {
        clock().set(at(2026, 11, 23, 10, 30));
        idle(at(2026, 11, 23, 10, 0), false).leaveUnanswered();
        QCOMPARE(*app().running().unansweredGapStart(), at(2026, 11, 23, 10, 0));
        IdlePrompt next = idle(at(2026, 11, 23, 10, 30), false);
        QCOMPARE(next.gapStart(), at(2026, 11, 23, 10, 0));
        QVERIFY(!app().running().unansweredGapStart());
        QCOMPARE(next.questionText(), QStringLiteral("What were you doing for last 30 minutes ?"));
        // An answered question hands nothing on.
        next.answer(QStringLiteral("reading"), nullptr, false);
        next.leaveUnanswered();
        QVERIFY(!app().running().unansweredGapStart());
    }

    void anAnswerAlreadyDoneFinishesAndAsksAgain()
    {
        clock().set(at(2026, 11, 23, 10, 30));
        app().running().setPromptPeriod(0);
        IdlePrompt prompt = idle(at(2026, 11, 23, 10, 0), true);
        QCOMPARE(prompt.questionText(), QStringLiteral("What are you doing now ?"));
        clock().set(at(2026, 11, 23, 10, 37));
        QCOMPARE(prompt.answer(QStringLiteral("email"), nullptr, true),
                 PromptOutcome::CloseAtOnceAndAsk);
        QVERIFY(!app().running().item());
        const Item* r = library().items().back();
        QCOMPARE(*r->title(), QStringLiteral("Email"));
        QVERIFY(*r->hasFinished() && !*r->hasStarted());
        // Counted from the moment of asking in the "now" mode; a period of 0 gives 60 × P.
        QCOMPARE(*r->elapsedTime(), 420);
        QCOMPARE(*r->timeLimitExtendedBy(), 420);
        QVERIFY(!r->toProject());
        QCOMPARE(*app().running().lastPromptAt(), now());
    }
};

LULLET_TEST_MAIN(TestPrompts)
#include "tst_prompts.moc"
