#include "core/dates/CalendarContext.h"
#include "core/notify/Notifications.h"
#include "core/settings/SettingsKeys.h"
#include "core/store/ObjectContext.h"
#include "monitor/Monitor.h"
#include "scheduling/LulletGenerator.h"
#include "scheduling/RepeatTypes.h"
#include "support/DatePrinting.h"
#include "support/TestCalendar.h"
#include "support/TestLaunch.h"
#include "support/TestMain.h"

#include <QTemporaryDir>

#include <memory>

using namespace lullet;
using namespace lullet::test;

// A working day on the fake clock: the monitor runs second by second, headless.
class TestMonitor : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TestLaunch> m_app;
    int m_ticksDone = 0;

    AppDelegate& app() { return m_app->delegate; }
    RecordingHost& host() { return m_app->host; }

    void launch(Date at, bool welcomeDone = true)
    {
        m_app = std::make_unique<TestLaunch>(m_dir->path(), at);
        if (welcomeDone)
            m_app->defaults.set(SettingsKeys::isShowFirst, 1);
        QVERIFY(app().awakeFromNib());
        QObject::connect(&m_app->center, &QObject::destroyed, [] {});
        m_app->center.addObserver(&m_app->center, notification::onMonitoringDone,
                                  [this](const QVariant&) { ++m_ticksDone; });
    }

    // Moves the clock one second at a time, ticking each, until `until`.
    void runUntil(Date until)
    {
        while (m_app->clock.now() < until) {
            m_app->clock.advance(1);
            app().doMonitorTime();
            QCoreApplication::processEvents();
        }
    }

    ReminderInfo* item(const QString& title, Date due, bool remind = true)
    {
        ReminderInfo* r = app().managedObjectContext().insertReminderInfo();
        r->setTitle(title);
        r->setDtReminder(due);
        r->setShouldRemind(remind);
        app().addLulletObject(r);
        return r;
    }

    ReminderInfo* running(int timeLimit)
    {
        ReminderInfo* r = item(QStringLiteral("Running"), m_app->clock.now(), false);
        r->setHasStarted(true);
        r->setTimeLimit(timeLimit);
        r->setElapsedTime(0);
        app().objReminderRunningNow = r;
        return r;
    }

private Q_SLOTS:
    void initTestCase() { init(); }

    void init()
    {
        lullet::test::useTestCalendar();
        m_dir = std::make_unique<QTemporaryDir>();
        m_ticksDone = 0;
    }

    void cleanup()
    {
        m_app.reset();
        m_dir.reset();
    }

    void aDueItemPromptsOncePerMinute()
    {
        launch(at(2026, 11, 23, 10, 0));
        ReminderInfo* first = item(QStringLiteral("First"), at(2026, 11, 23, 10, 15));
        ReminderInfo* second = item(QStringLiteral("Second"), at(2026, 11, 23, 10, 15, 30));
        item(QStringLiteral("Quiet"), at(2026, 11, 23, 10, 16), false);
        ReminderInfo* started = item(QStringLiteral("Started"), at(2026, 11, 23, 10, 17));
        started->setHasStarted(true);
        runUntil(at(2026, 11, 23, 10, 14, 59));
        QVERIFY(host().prompts.empty());
        runUntil(at(2026, 11, 23, 10, 15, 0));
        QCOMPARE(host().promptKinds(), QStringList{QStringLiteral("reminder")});
        QCOMPARE(host().prompts[0].item, first);
        QVERIFY(!host().prompts[0].previous);
        QCOMPARE(*app().dtLastAnyALertOn, at(2026, 11, 23, 10, 15));
        // The second item of that minute is passed over, and its moment passes.
        runUntil(at(2026, 11, 23, 10, 20));
        QCOMPARE(host().prompts.size(), std::size_t(1));
        Q_UNUSED(second);
    }

    void theRunningItemIsAskedAboutWithTheDueOne()
    {
        launch(at(2026, 11, 23, 10, 0));
        ReminderInfo* runningItem = item(QStringLiteral("Writing"), at(2026, 11, 23, 9, 0), false);
        runningItem->setHasStarted(true);
        ReminderInfo* due = item(QStringLiteral("Tea"), at(2026, 11, 23, 10, 1));
        runUntil(at(2026, 11, 23, 10, 1));
        QCOMPARE(host().prompts.size(), std::size_t(1));
        QCOMPARE(host().prompts[0].item, due);
        QCOMPARE(host().prompts[0].previous, runningItem);
    }

    void aToDoFromLastWeekPromptsAtItsTimeToday()
    {
        launch(at(2026, 11, 23, 9, 0));
        app().intNoTaskDuration = 60;
        ReminderInfo* todo = item(QStringLiteral("Water"), at(2026, 11, 16, 9, 30), false);
        todo->setRepeatOption(RepeatOptionsToDo::TODO_VAL);
        const Date alertBefore = *app().dtLastAnyALertOn;
        ReminderInfo* due = item(QStringLiteral("Call"), at(2026, 11, 23, 9, 30));
        runUntil(at(2026, 11, 23, 9, 30));
        // The earlier to-do is raised too, and doesn't count for the idle clock.
        QCOMPARE(host().promptKinds(),
                 (QStringList{QStringLiteral("todo"), QStringLiteral("reminder")}));
        QCOMPARE(host().prompts[0].item, todo);
        QCOMPARE(host().prompts[1].item, due);
        QVERIFY(alertBefore != *app().dtLastAnyALertOn);
        todo->setHasFinished(true);
        runUntil(at(2026, 11, 24, 9, 31));
        QCOMPARE(host().promptKinds().count(QStringLiteral("todo")), 1);
    }

    void theIdleQuestionComesAtItsEarlyEdge()
    {
        launch(at(2026, 11, 23, 9, 0, 0));
        // Stamped at second 10, a 15-minute period is over at the pass 14:50 later: more than
        // 14 minutes and 30 seconds.
        app().dtLastAnyALertOn = at(2026, 11, 23, 9, 0, 10);
        runUntil(at(2026, 11, 23, 9, 14, 59));
        QVERIFY(host().prompts.empty());
        runUntil(at(2026, 11, 23, 9, 15, 0));
        QCOMPARE(host().promptKinds(), QStringList{QStringLiteral("idle")});
        QCOMPARE(host().prompts[0].since, at(2026, 11, 23, 9, 0, 10));
        QVERIFY(!host().prompts[0].autoPromptMode);
        QCOMPARE(*app().dtLastAnyALertOn, at(2026, 11, 23, 9, 15));

        // With a period of one minute, a stamp at second 0 is asked about a minute later.
        app().intNoTaskDuration = 1;
        runUntil(at(2026, 11, 23, 9, 16, 0));
        QCOMPARE(host().prompts.size(), std::size_t(2));
        QCOMPARE(host().prompts[1].since, at(2026, 11, 23, 9, 15));
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
        const bool evening = gate == QStringLiteral("hours");
        launch(evening ? at(2026, 11, 23, 18, 0) : at(2026, 11, 23, 10, 0),
               gate != QStringLiteral("welcome"));
        if (gate == QStringLiteral("disable"))
            m_app->defaults.set(SettingsKeys::disableAutoPrompt, 1);
        if (gate == QStringLiteral("locked"))
            app().isLogin = false;
        if (gate == QStringLiteral("period"))
            app().intNoTaskDuration = 0;
        if (gate == QStringLiteral("running"))
            running(0)->setTimeLimitExtendedBy(3 * 3600);
        runUntil(m_app->clock.now().dateByAddingMinutes(40));
        QCOMPARE(host().promptKinds(), QStringList());
        app().monitor().doPromptExternally();
        QCoreApplication::processEvents();
        const bool asks = gate == QStringLiteral("period") || gate == QStringLiteral("running");
        QCOMPARE(host().promptKinds(), asks ? QStringList{QStringLiteral("idle")} : QStringList());
    }

    void aRunThatCrossesMidnightSeesNoHours()
    {
        // Launched ten minutes before the end of Monday's hours: Tuesday's hours are never seen.
        launch(at(2026, 11, 23, 17, 50));
        ReminderInfo* due = item(QStringLiteral("Tomorrow's"), at(2026, 11, 24, 10, 0));
        runUntil(at(2026, 11, 24, 10, 0));
        QCOMPARE(host().promptKinds(), QStringList{QStringLiteral("reminder")});
        QCOMPARE(host().prompts[0].item, due);
    }

    void aLimitedItemIsOverOnceOnTheTickThatReachesItsLimit()
    {
        launch(at(2026, 11, 23, 10, 13, 0));
        ReminderInfo* r = running(120);
        ReminderInfo* due = item(QStringLiteral("Missed"), at(2026, 11, 23, 10, 15));
        const int before = m_ticksDone;
        // The limit is reached on the tick of 10:15:00: that tick neither posts nor passes, so
        // the item due in that very second is missed.
        runUntil(at(2026, 11, 23, 10, 15, 0));
        QCOMPARE(*r->elapsedTime(), 120);
        QCOMPARE(host().promptKinds(), QStringList{QStringLiteral("timeOver")});
        QCOMPARE(host().prompts[0].item, r);
        QCOMPARE(m_ticksDone - before, 119);
        QCOMPARE(*app().dtLastAnyALertOn, at(2026, 11, 23, 10, 15));
        runUntil(at(2026, 11, 23, 10, 30));
        QCOMPARE(host().prompts.size(), std::size_t(1));
        Q_UNUSED(due);
    }

    void anUnlimitedItemIsAskedAboutEveryPeriod()
    {
        launch(at(2026, 11, 23, 10, 0, 0));
        app().intNoTaskDuration = 2;
        app().dtLastAnyALertOn = at(2026, 11, 23, 10, 0, 0);
        ReminderInfo* r = running(0);
        runUntil(at(2026, 11, 23, 10, 1, 59));
        QVERIFY(host().prompts.empty());
        runUntil(at(2026, 11, 23, 10, 2, 1));
        QCOMPARE(host().promptKinds(), QStringList{QStringLiteral("timeOver")});
        QCOMPARE(*app().dtLastAnyALertOn, at(2026, 11, 23, 10, 2, 1));

        // The chosen extension replaces the period.
        r->setTimeLimitExtendedBy(5 * 60);
        runUntil(at(2026, 11, 23, 10, 7, 1));
        QCOMPARE(host().prompts.size(), std::size_t(2));
        QCOMPARE(*app().dtLastAnyALertOn, at(2026, 11, 23, 10, 7, 1));
    }

    void aPeriodOfZeroMovesTheClockButAsksNothing()
    {
        launch(at(2026, 11, 23, 10, 0, 0));
        app().intNoTaskDuration = 0;
        app().dtLastAnyALertOn = at(2026, 11, 23, 10, 0, 0);
        running(0);
        runUntil(at(2026, 11, 23, 10, 0, 5));
        QVERIFY(host().prompts.empty());
        // Every tick finds its period of 0 minutes over.
        QCOMPARE(*app().dtLastAnyALertOn, at(2026, 11, 23, 10, 0, 5));
    }

    void theLaunchAsksRightAfterTheWindowAppears()
    {
        launch(at(2026, 11, 23, 10, 0, 10));
        app().applicationWillFinishLaunching();
        QCoreApplication::processEvents();
        QCOMPARE(host().promptKinds(), QStringList{QStringLiteral("idle")});
        QVERIFY(host().prompts[0].autoPromptMode);
        QCOMPARE(host().prompts[0].since, at(2026, 11, 23, 10, 0));
    }

    void theRulesMoveOnAtEachMinute()
    {
        launch(at(2026, 11, 23, 10, 0, 0));
        RepeatReminderInfo* rule = app().managedObjectContext().insertRepeatReminderInfo();
        rule->setUniqueId(QStringLiteral("Stretch_1"));
        rule->setTitle(QStringLiteral("Stretch"));
        rule->setDtReminder(at(2026, 11, 23, 9, 30));
        rule->setRepeatIntervalType(ID_REPEAT_HOUR);
        rule->setRepeatInterval(1);
        rule->setIsCustom(true);
        rule->setIsActive(true);
        app().generator().addRepeatObject(rule);
        QCOMPARE(app().mArrAllLullets.size(), std::size_t(1));
        ReminderInfo* first = app().mArrAllLullets.front();
        QCOMPARE(*first->dtReminder(), at(2026, 11, 23, 10, 30));
        int updates = 0;
        QObject listener;
        m_app->center.addObserver(&listener, notification::updateDueStatusDisplay,
                                  [&](const QVariant&) { ++updates; });
        runUntil(at(2026, 11, 23, 10, 35, 30));
        QCOMPARE(app().mArrAllLullets.size(), std::size_t(1));
        // Finished without its follower: the next minute's pass makes it.
        first->setHasFinished(true);
        runUntil(at(2026, 11, 23, 10, 36, 0));
        QCOMPARE(updates, 36);
        QCOMPARE(app().mArrAllLullets.size(), std::size_t(2));
        QCOMPARE(*app().mArrAllLullets.front()->dtReminder(), at(2026, 11, 23, 11, 30));
    }
};

LULLET_TEST_MAIN(TestMonitor)
#include "tst_monitor.moc"
