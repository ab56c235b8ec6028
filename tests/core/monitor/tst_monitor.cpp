#include "core/monitor/IdlePrompt.h"
#include "support/LaunchedTest.h"

using namespace lullet;
using namespace lullet::test;

// A working day on the fake clock: the monitor runs second by second, headless.
class TestMonitor : public LaunchedTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 10, 0); }

    PromptRecorder& host() { return app().prompts; }

    void runUntil(Date until) { app().runUntil(until); }

    Item* item(const QString& title, Date due, bool remind = true)
    {
        Item* r = app().addItem(title, due);
        r->setShouldRemind(remind);
        return r;
    }

    Item* running(int timeLimit)
    {
        Item* r = item(QStringLiteral("Running"), clock().now(), false);
        app().running().start(*r);
        r->setTimeLimit(timeLimit);
        return r;
    }

private Q_SLOTS:
    void aDueItemPromptsOncePerMinute()
    {
        Item* first = item(QStringLiteral("First"), at(2026, 11, 23, 10, 15));
        Item* second = item(QStringLiteral("Second"), at(2026, 11, 23, 10, 15, 30));
        item(QStringLiteral("Quiet"), at(2026, 11, 23, 10, 16), false);
        Item* started = item(QStringLiteral("Started"), at(2026, 11, 23, 10, 17));
        started->setHasStarted(true);
        runUntil(at(2026, 11, 23, 10, 14, 59));
        QVERIFY(host().prompts.empty());
        runUntil(at(2026, 11, 23, 10, 15, 0));
        // Both items of that minute are asked about, in the lists' order, and only once.
        QCOMPARE(host().kinds(),
                 (QStringList{QStringLiteral("reminder"), QStringLiteral("reminder")}));
        QCOMPARE(host().prompts[0].item, first);
        QCOMPARE(host().prompts[1].item, second);
        QVERIFY(!host().prompts[0].previous);
        QCOMPARE(*app().running().lastPromptAt(), at(2026, 11, 23, 10, 15));
        // A minute is passed once however often it ticks.
        app().monitor().tick();
        QCoreApplication::processEvents();
        runUntil(at(2026, 11, 23, 10, 20));
        QCOMPARE(host().prompts.size(), std::size_t(2));
    }

    void theRunningItemIsAskedAboutWithTheDueOne()
    {
        Item* runningItem = item(QStringLiteral("Writing"), at(2026, 11, 23, 9, 0), false);
        runningItem->setHasStarted(true);
        Item* due = item(QStringLiteral("Tea"), at(2026, 11, 23, 10, 1));
        runUntil(at(2026, 11, 23, 10, 1));
        QCOMPARE(host().prompts.size(), std::size_t(1));
        QCOMPARE(host().prompts[0].item, due);
        QCOMPARE(host().prompts[0].previous, runningItem);
    }

    void aToDoFromLastWeekPromptsAtItsTimeToday()
    {
        relaunch(at(2026, 11, 23, 9, 0));
        app().running().setPromptPeriod(60);
        Item* todo = item(QStringLiteral("Water"), at(2026, 11, 16, 9, 30), false);
        todo->setRepeatOption(RepeatEnd::toDoMarker);
        const Date alertBefore = *app().running().lastPromptAt();
        Item* due = item(QStringLiteral("Call"), at(2026, 11, 23, 9, 30));
        runUntil(at(2026, 11, 23, 9, 30));
        // The earlier to-do is raised too, and doesn't count for the idle clock.
        QCOMPARE(host().kinds(), (QStringList{QStringLiteral("todo"), QStringLiteral("reminder")}));
        QCOMPARE(host().prompts[0].item, todo);
        QCOMPARE(host().prompts[1].item, due);
        QVERIFY(alertBefore != *app().running().lastPromptAt());
        todo->setHasFinished(true);
        runUntil(at(2026, 11, 24, 9, 31));
        QCOMPARE(host().kinds().count(QStringLiteral("todo")), 1);
    }

    void theIdleQuestionComesAtItsEarlyEdgeAndAfterAPutOff()
    {
        relaunch(at(2026, 11, 23, 9, 0, 0));
        // Stamped at second 10, a 15-minute period is over at the pass 14:50 later: more than
        // 14 minutes and 30 seconds.
        app().running().stampPrompt(at(2026, 11, 23, 9, 0, 10));
        runUntil(at(2026, 11, 23, 9, 14, 59));
        QVERIFY(host().prompts.empty());
        runUntil(at(2026, 11, 23, 9, 15, 0));
        QCOMPARE(host().kinds(), QStringList{QStringLiteral("idle")});
        QCOMPARE(host().prompts[0].since, at(2026, 11, 23, 9, 0, 10));
        QVERIFY(!host().prompts[0].askNow);
        QCOMPARE(*app().running().lastPromptAt(), at(2026, 11, 23, 9, 15));

        // With a period of one minute, a stamp at second 0 is asked about a minute later.
        app().running().setPromptPeriod(1);
        runUntil(at(2026, 11, 23, 9, 16, 0));
        QCOMPARE(host().prompts.size(), std::size_t(2));
        QCOMPARE(host().prompts[1].since, at(2026, 11, 23, 9, 15));

        // Put off ("Later", Escape), the question comes back one full period after the
        // dismissal, over the whole gap, however long it stood open: the user notices it at
        // 9:27 and puts it off.
        app().running().setPromptPeriod(15);
        clock().set(at(2026, 11, 23, 9, 27, 0));
        IdlePrompt question(clock(), library(), app().running(), host().prompts[1].since, false);
        question.putOff();
        runUntil(at(2026, 11, 23, 9, 41, 59));
        QCOMPARE(host().prompts.size(), std::size_t(2));
        runUntil(at(2026, 11, 23, 9, 42, 0));
        QCOMPARE(host().prompts.size(), std::size_t(3));
        IdlePrompt again(clock(), library(), app().running(), host().prompts[2].since, false);
        QCOMPARE(again.gapStart(), at(2026, 11, 23, 9, 15));
    }

    void theIdleQuestionHasItsGates_data()
    {
        QTest::addColumn<QString>("gate");
        QTest::newRow("welcome not done") << QStringLiteral("welcome");
        QTest::newRow("switched off") << QStringLiteral("disable");
        QTest::newRow("locked") << QStringLiteral("locked");
        QTest::newRow("outside working hours") << QStringLiteral("hours");
        QTest::newRow("a period of 0") << QStringLiteral("period");
        QTest::newRow("an item running") << QStringLiteral("running");
    }

    void theIdleQuestionHasItsGates()
    {
        QFETCH(QString, gate);
        if (gate == QStringLiteral("hours"))
            relaunch(at(2026, 11, 23, 18, 0));
        if (gate == QStringLiteral("welcome"))
            app().settings.setValue(SettingsKeys::isShowFirst, 0);
        if (gate == QStringLiteral("disable"))
            app().settings.setValue(SettingsKeys::disableAutoPrompt, 1);
        if (gate == QStringLiteral("locked"))
            services().lock.lock();
        if (gate == QStringLiteral("period"))
            app().running().setPromptPeriod(0);
        if (gate == QStringLiteral("running"))
            running(0)->setTimeLimitExtendedBy(3 * 3600);
        runUntil(clock().now().dateByAddingMinutes(40));
        QCOMPARE(host().kinds(), QStringList());
        app().monitor().askWhatNow();
        QCoreApplication::processEvents();
        const bool asks = gate == QStringLiteral("period") || gate == QStringLiteral("running");
        QCOMPARE(host().kinds(), asks ? QStringList{QStringLiteral("idle")} : QStringList());
    }

    void aChangedScheduleCountsAtOnce()
    {
        relaunch(at(2026, 11, 23, 19, 0));
        app().running().setPromptPeriod(15);
        runUntil(at(2026, 11, 23, 19, 40));
        QVERIFY(host().prompts.empty());
        // Monday's hours now run to 21:00; the monitor needs no relaunch to see it.
        services().schedule.entriesFor(2).front()->endTime = at(2026, 11, 23, 21, 0);
        runUntil(at(2026, 11, 23, 19, 41));
        QCOMPARE(host().kinds(), QStringList{QStringLiteral("idle")});
    }

    void aRunThatCrossesMidnightSeesNoHours()
    {
        // Launched ten minutes before the end of Monday's hours: Tuesday's hours are never seen.
        relaunch(at(2026, 11, 23, 17, 50));
        Item* due = item(QStringLiteral("Tomorrow's"), at(2026, 11, 24, 10, 0));
        runUntil(at(2026, 11, 24, 10, 0));
        QCOMPARE(host().kinds(), QStringList{QStringLiteral("reminder")});
        QCOMPARE(host().prompts[0].item, due);
    }

    void aLimitedItemIsOverOnceOnTheTickThatReachesItsLimit()
    {
        relaunch(at(2026, 11, 23, 10, 13, 0));
        Item* r = running(120);
        Item* due = item(QStringLiteral("Missed"), at(2026, 11, 23, 10, 15));
        QSignalSpy ticks(&app().monitor(), &Monitor::ticked);
        // The limit is reached on the tick of 10:15:00: that tick neither posts nor passes, so
        // the item due in that very second is missed.
        runUntil(at(2026, 11, 23, 10, 15, 0));
        QCOMPARE(*r->elapsedTime(), 120);
        QCOMPARE(host().kinds(), QStringList{QStringLiteral("timeOver")});
        QCOMPARE(host().prompts[0].item, r);
        QCOMPARE(ticks.count(), 119);
        QCOMPARE(*app().running().lastPromptAt(), at(2026, 11, 23, 10, 15));
        runUntil(at(2026, 11, 23, 10, 30));
        QCOMPARE(host().prompts.size(), std::size_t(1));
        Q_UNUSED(due);
    }

    void anUnlimitedItemIsAskedAboutEveryPeriod()
    {
        app().running().setPromptPeriod(2);
        app().running().stampPrompt(at(2026, 11, 23, 10, 0, 0));
        Item* r = running(0);
        runUntil(at(2026, 11, 23, 10, 1, 59));
        QVERIFY(host().prompts.empty());
        runUntil(at(2026, 11, 23, 10, 2, 1));
        QCOMPARE(host().kinds(), QStringList{QStringLiteral("timeOver")});
        QCOMPARE(*app().running().lastPromptAt(), at(2026, 11, 23, 10, 2, 1));

        // The chosen extension replaces the period.
        r->setTimeLimitExtendedBy(5 * 60);
        runUntil(at(2026, 11, 23, 10, 7, 1));
        QCOMPARE(host().prompts.size(), std::size_t(2));
        QCOMPARE(*app().running().lastPromptAt(), at(2026, 11, 23, 10, 7, 1));
    }

    void aPeriodOfZeroMovesTheClockButAsksNothing()
    {
        app().running().setPromptPeriod(0);
        app().running().stampPrompt(at(2026, 11, 23, 10, 0, 0));
        running(0);
        runUntil(at(2026, 11, 23, 10, 0, 5));
        QVERIFY(host().prompts.empty());
        // Every tick finds its period of 0 minutes over.
        QCOMPARE(*app().running().lastPromptAt(), at(2026, 11, 23, 10, 0, 5));
    }

    void theLaunchAsksRightAfterTheWindowAppears()
    {
        relaunch(at(2026, 11, 23, 10, 0, 10));
        app().monitor().askWhatNow();
        QCoreApplication::processEvents();
        QCOMPARE(host().kinds(), QStringList{QStringLiteral("idle")});
        QVERIFY(host().prompts[0].askNow);
        QCOMPARE(host().prompts[0].since, at(2026, 11, 23, 10, 0));
    }

    void theRulesMoveOnAtEachMinute()
    {
        services().catalogue.registerRule(
            app().addRule(QStringLiteral("Stretch"), RepeatUnit::Hour, 1, at(2026, 11, 23, 9, 30)));
        QCOMPARE(library().items().size(), std::size_t(1));
        Item* first = library().items().front();
        QCOMPARE(*first->dtReminder(), at(2026, 11, 23, 10, 30));
        QSignalSpy updates(&app().monitor(), &Monitor::minutePassed);
        runUntil(at(2026, 11, 23, 10, 35, 30));
        QCOMPARE(library().items().size(), std::size_t(1));
        // Finished without its follower: the next minute's pass makes it.
        first->setHasFinished(true);
        runUntil(at(2026, 11, 23, 10, 36, 0));
        QCOMPARE(updates.count(), 36);
        QCOMPARE(library().items().size(), std::size_t(2));
        QCOMPARE(*library().items().front()->dtReminder(), at(2026, 11, 23, 11, 30));
    }
};

LULLET_TEST_MAIN(TestMonitor)
#include "tst_monitor.moc"
