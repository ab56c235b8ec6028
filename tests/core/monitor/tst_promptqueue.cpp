#include "core/activity/RunningItem.h"
#include "core/app/AppController.h"
#include "core/library/Library.h"
#include "core/model/RepeatCodes.h"
#include "core/monitor/IdlePrompt.h"
#include "core/monitor/PromptHold.h"
#include "core/monitor/PromptPort.h"
#include "core/monitor/PromptQueue.h"
#include "core/monitor/ReminderPause.h"
#include "core/monitor/UserPresence.h"
#include "core/settings/Settings.h"
#include "support/FakeClock.h"
#include "support/FakeInhibitor.h"
#include "support/FakeSecretStore.h"
#include "support/FolderTest.h"

#include <QDir>

using namespace lullet;
using namespace lullet::test;

namespace {

// A moment of the test's Monday.
Date monday(int h, int mi = 0, int s = 0)
{
    return Date::dateFromComponents(2026, 11, 23, h, mi, s);
}

// The desktop as the test makes it: locked or not, and the moment of the last input, none while
// the user keeps typing.
class FakePresence final : public UserPresence {
public:
    explicit FakePresence(const FakeClock& clock)
        : m_clock(clock)
    {
    }
    bool isLocked() const override { return locked; }
    std::optional<qint64> idleMilliseconds() const override
    {
        if (!lastInput)
            return 0;
        const double idle =
            m_clock.now().timeIntervalSince1970() - lastInput->timeIntervalSince1970();
        return qint64(idle * 1000);
    }
    bool isOtherProgramFullScreen() const override { return fullScreen; }
    bool notificationsInhibited() const override { return false; }
    void refresh() override {}
    void set(bool lock) // the screen saver's signal
    {
        locked = lock;
        Q_EMIT changed();
    }

    bool locked = false;
    bool fullScreen = false;
    std::optional<Date> lastInput;

private:
    const FakeClock& m_clock;
};

// The windows, as the test sees them: what is on show, and the user putting it away.
class ShownPrompts final : public PromptPort {
public:
    void present(const PromptRequest& request) override { shown.push_back(request); }
    void extendIdleQuestion(bool) override {}
    void withdrawIdleQuestion() override { queue->closed(); }

    QString title(const PromptRequest& request) const
    {
        if (request.kind == PromptRequest::Kind::IdleQuestion)
            return QStringLiteral("idle");
        return request.item->title().value_or(QString());
    }
    QStringList titles() const
    {
        QStringList list;
        for (const PromptRequest& request : shown)
            list << title(request);
        return list;
    }
    // The user puts every prompt away as it comes, and reads its title.
    QStringList putAwayAll()
    {
        QStringList read;
        QCoreApplication::processEvents();
        while (queue->shown()) {
            read << title(*queue->shown());
            queue->closed();
            QCoreApplication::processEvents();
        }
        return read;
    }

    PromptQueue* queue = nullptr;
    std::vector<PromptRequest> shown;
};

// A day on the fake clock with the desktop's presence and the prompts' windows stood in for.
struct Day {
    Day(const QString& dir, Date start)
        : clock(start)
        , settings(QDir(dir).filePath(QStringLiteral("Lullet.conf")))
        , presence(clock)
        , core(clock, settings, QDir(dir).filePath(QStringLiteral("data")), inhibitor, secrets,
               &presence)
    {
        settings.setWelcomeDone();
        // Only the reminders of the test: no idle question in its way.
        settings.setIdleQuestionsOff(true);
        core.open();
        port.queue = &core.services().prompts;
        core.services().prompts.setPort(&port);
    }
    ~Day() { core.services().prompts.setPort(nullptr); }

    const Services& services() const { return core.services(); }

    Item* reminder(const QString& title, Date due, bool ofARule = false, int minutes = 0)
    {
        Item* item = services().library.newTask(title);
        if (ofARule)
            item->setUniqueId(title + QStringLiteral("_1800000000"));
        item->setDtReminder(due);
        item->setShouldRemind(true);
        item->setDurationMin(minutes);
        services().library.addItem(item);
        return item;
    }

    void runUntil(Date until)
    {
        while (clock.now() < until) {
            clock.advance(1);
            services().monitor.tick();
            QCoreApplication::processEvents();
        }
        QCoreApplication::processEvents();
    }

    FakeClock clock;
    Settings settings;
    FakePresence presence;
    FakeInhibitor inhibitor;
    FakeSecretStore secrets;
    AppController core;
    ShownPrompts port;
};

} // namespace

// No reminder is lost, and none comes at the wrong moment: prompts wait their turn, and wait
// while the user paused them, locked the screen or is away.
class TestPromptQueue : public FolderTest {
    Q_OBJECT
private Q_SLOTS:
    void itemsDueInTheSameMinuteAreAllShown_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("two") << 2;
        QTest::newRow("five") << 5;
        QTest::newRow("sixteen") << 16;
    }

    void itemsDueInTheSameMinuteAreAllShown()
    {
        QFETCH(int, count);
        Day day(folder(), monday(8, 58));
        QStringList due;
        for (int i = 0; i < count; ++i) {
            due << QStringLiteral("Break %1").arg(i, 2, 10, QLatin1Char('0'));
            day.reminder(due.back(), monday(9));
        }
        day.runUntil(monday(9, 0, 1));
        // One at a time, each after the other is put away, in the lists' order.
        QCOMPARE(day.port.shown.size(), std::size_t(1));
        QCOMPARE(day.port.putAwayAll(), due);
        day.runUntil(monday(9, 30));
        QCOMPARE(day.port.shown.size(), std::size_t(count));
    }

    // The idle question gives way to a reminder, and comes back after it.
    void aReminderDuringTheIdleQuestion()
    {
        Day day(folder(), monday(9, 40));
        day.settings.setIdleQuestionsOff(false);
        day.services().running.setPromptPeriod(15);
        day.reminder(QStringLiteral("Tea"), monday(10, 0));
        day.runUntil(monday(9, 55, 1));
        QCOMPARE(day.port.titles(), QStringList{QStringLiteral("idle")});
        day.runUntil(monday(10, 0, 1));
        QCOMPARE(day.port.titles(), (QStringList{QStringLiteral("idle"), QStringLiteral("Tea")}));
        day.core.services().prompts.closed();
        QCoreApplication::processEvents();
        QCOMPARE(day.port.titles().last(), QStringLiteral("idle"));
        // Asked again, it covers the whole gap.
        QCOMPARE(day.port.shown.back().since, monday(9, 40));
    }

    // Paused: nothing shows; at the pause's end what fell due shows, in order, and the items
    // stay as they were. The pause outlives a restart.
    void aPauseOverThreeDueReminders()
    {
        {
            Day day(folder(), monday(9, 50));
            std::vector<Item*> items = {day.reminder(QStringLiteral("Tea"), monday(10, 0)),
                                        day.reminder(QStringLiteral("Walk"), monday(10, 15)),
                                        day.reminder(QStringLiteral("Stretch"), monday(10, 30))};
            day.services().library.save();
            day.services().pause.pauseFor(60);
            QCOMPARE(day.services().hold.reason(), PromptHold::Reason::Paused);
            day.runUntil(monday(10, 49, 59));
            QVERIFY(day.port.shown.empty());
            for (const Item* item : items)
                QVERIFY(!item->isStarted() && !item->isFinished() && !item->dtReminderPostponed());
            day.runUntil(monday(10, 50, 1));
            QVERIFY(!day.services().pause.isPaused());
            QCOMPARE(day.port.putAwayAll(),
                     (QStringList{QStringLiteral("Tea"), QStringLiteral("Walk"),
                                  QStringLiteral("Stretch")}));
            day.services().pause.pauseUntilResumed();
        }
        Day again(folder(), monday(11, 0));
        QVERIFY(again.services().pause.isPaused());
        QVERIFY(!again.services().pause.until());
        QVERIFY(again.services().hold.isHeld());
        again.services().pause.resume();
        QVERIFY(!again.services().hold.isHeld());
    }

    void aLockOfAnHour()
    {
        Day day(folder(), monday(12, 0));
        day.reminder(QStringLiteral("Water"), monday(12, 10));
        day.reminder(QStringLiteral("Stand up"), monday(12, 40));
        day.presence.set(true);
        QCOMPARE(day.services().hold.reason(), PromptHold::Reason::Locked);
        day.runUntil(monday(13, 0));
        QVERIFY(day.port.shown.empty());
        day.presence.set(false);
        QCOMPARE(day.port.putAwayAll(),
                 (QStringList{QStringLiteral("Water"), QStringLiteral("Stand up")}));
    }

    // Away across a break: held while away; back, the break counts as taken when the absence was
    // at least its length, by preference, and the user's own task is still asked about.
    void anAwayPeriodAcrossABreak_data()
    {
        QTest::addColumn<bool>("naturalBreaks");
        QTest::newRow("natural breaks on") << true;
        QTest::newRow("natural breaks off") << false;
    }

    void anAwayPeriodAcrossABreak()
    {
        QFETCH(bool, naturalBreaks);
        Day day(folder(), monday(14, 50));
        day.settings.setNaturalBreaks(naturalBreaks);
        Item* walk = day.reminder(QStringLiteral("Walk break"), monday(15, 0), true, 10);
        Item* nap = day.reminder(QStringLiteral("Power nap"), monday(15, 5), true, 45);
        day.reminder(QStringLiteral("Call Anna"), monday(15, 10));
        day.presence.lastInput = monday(14, 55);
        day.runUntil(monday(15, 0, 1));
        QCOMPARE(day.services().hold.reason(), PromptHold::Reason::Away);
        day.runUntil(monday(15, 24, 30));
        QVERIFY(day.port.shown.empty());
        day.presence.lastInput = monday(15, 24, 59);
        day.runUntil(monday(15, 25, 1));
        QCOMPARE(walk->isFinished(), naturalBreaks);
        QVERIFY(!nap->isFinished());
        if (naturalBreaks)
            QCOMPARE(*walk->elapsedTime(), 600);
        const QStringList expected =
            naturalBreaks ? QStringList{QStringLiteral("Power nap"), QStringLiteral("Call Anna")}
                          : QStringList{QStringLiteral("Walk break"), QStringLiteral("Power nap"),
                                        QStringLiteral("Call Anna")};
        QCOMPARE(day.port.putAwayAll(), expected);
    }

    // A question put off keeps its gap for the next, but the gap ends where an item ran: the next
    // answer never books minutes another task timed.
    void aGapNeverCoversATimedItem()
    {
        Day day(folder(), monday(10, 0));
        RunningItem& running = day.services().running;
        running.setUnansweredGapStart(monday(10, 0));
        Item* letters = day.services().library.newTask(QStringLiteral("Letters"));
        day.services().library.addItem(letters);
        day.clock.set(monday(10, 10));
        running.start(*letters);
        day.clock.set(monday(10, 30));
        running.finish(*letters);
        day.clock.set(monday(10, 45));
        const IdlePrompt next(day.clock, day.services().library, running, monday(10, 30), false);
        QCOMPARE(next.gapStart(), monday(10, 30));
    }

    // A full-screen program holds prompts by preference.
    void fullScreenHoldsByPreference()
    {
        Day day(folder(), monday(16, 0));
        day.presence.fullScreen = true;
        day.reminder(QStringLiteral("Tea"), monday(16, 5));
        day.runUntil(monday(16, 5, 1));
        QVERIFY(day.port.shown.empty());
        day.settings.setHoldWhileFullScreen(false);
        QCOMPARE(day.port.putAwayAll(), QStringList{QStringLiteral("Tea")});
    }
};

LULLET_TEST_MAIN(TestPromptQueue)

#include "tst_promptqueue.moc"
