#include "core/activity/ItemActions.h"
#include "core/activity/Postponing.h"
#include "core/backup/Backups.h"
#include "core/dates/CalendarContext.h"
#include "core/library/ItemOrder.h"
#include "core/model/RepeatCodes.h"
#include "core/monitor/IdlePrompt.h"
#include "core/monitor/Monitor.h"
#include "core/monitor/ReminderPrompt.h"
#include "core/monitor/TimeOverPrompt.h"
#include "core/scheduling/WorkingHours.h"
#include "core/security/Lock.h"
#include "core/store/Db.h"
#include "support/DatePrinting.h"
#include "support/Launched.h"
#include "support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

using namespace lullet;
using namespace lullet::test;

namespace {

QByteArray fileText(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

// The start and the stop of the program, and the shared lists it keeps.
class TestAppController : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_dir;

    QString dir() const { return m_dir->path(); }

private Q_SLOTS:
    void init()
    {
        CalendarContext::setLocale(QStringLiteral("en_US"));
        CalendarContext::setTimeZone(QStringLiteral("America/New_York"));
        m_dir = std::make_unique<QTemporaryDir>();
    }

    void launchRoundsTheIdleClockToTheNearestMinute_data()
    {
        QTest::addColumn<Date>("launch");
        QTest::addColumn<Date>("expected");
        QTest::newRow("hh:mm:30 rounds down")
            << at(2026, 11, 23, 10, 0, 30) << at(2026, 11, 23, 10, 0);
        QTest::newRow("hh:mm:31 rounds up")
            << at(2026, 11, 23, 10, 0, 31) << at(2026, 11, 23, 10, 1);
        QTest::newRow("fraction of :30 rounds down")
            << Date(at(2026, 11, 23, 10, 0, 30).timeIntervalSince1970() + 0.9)
            << at(2026, 11, 23, 10, 0);
        QTest::newRow("hh:59:59 rolls the hour")
            << at(2026, 11, 23, 10, 59, 59) << at(2026, 11, 23, 11, 0);
    }

    void launchRoundsTheIdleClockToTheNearestMinute()
    {
        QFETCH(Date, launch);
        QFETCH(Date, expected);
        Launched app(dir(), launch);
        QVERIFY(app.open());
        QCOMPARE(*app.running().lastPromptAt(), expected);
        // The launch day never moves, however long the run.
        app.clock.advance(3 * 86400);
        QCOMPARE(app.services().hours.onLaunchDay(at(2026, 1, 1, 9, 30)).dateAtStartOfDay(),
                 launch.dateAtStartOfDay());
    }

    void registeredDefaultsAnswerButAreNeverWritten()
    {
        {
            Launched app(dir(), at(2026, 11, 23, 9));
            QVERIFY(app.open(false));
            QCOMPARE(app.settings.promptDuration(), 15);
            QCOMPARE(app.running().promptPeriod(), 15);
            QCOMPARE(app.settings.integer(SettingsKeys::remindMe), 2);
            QVERIFY(app.settings.boolean(SettingsKeys::automaticBackup));
            QVERIFY(!app.settings.contains(SettingsKeys::promptDuration));
            QVERIFY(app.settings.contains(SettingsKeys::disableAutoPrompt));
            app.settings.sync();
        }
        const QByteArray written = fileText(QDir(dir()).filePath(QStringLiteral("Lullet.conf")));
        QVERIFY2(written.contains("disableAutoPrompt=0"), written.constData());
        for (const char* key : {"isShowFirst", "openAtLogIn", "isRating", "remindMe",
                                "promptDuration", "automaticBackup", "backupOption"})
            QVERIFY2(!written.contains(key), key);

        // A value the user set wins over the registered one.
        Launched again(dir(), at(2026, 11, 23, 9));
        again.settings.setValue(SettingsKeys::promptDuration, 40);
        QVERIFY(again.open());
        QCOMPARE(again.running().promptPeriod(), 40);
    }

    void thePasswordIsNeverWrittenInClearText()
    {
        Settings settings(QDir(dir()).filePath(QStringLiteral("p.conf")));
        settings.setDictionary(SettingsKeys::passwordValues,
                               {{QString(SettingsKeys::isPassword), true},
                                {QString(SettingsKeys::password), QStringLiteral("hunter2")}});
        settings.sync();
        QVERIFY(!fileText(settings.filePath()).contains("hunter2"));
        const QVariantMap read = settings.dictionary(SettingsKeys::passwordValues);
        QCOMPARE(read.value(SettingsKeys::isPassword).toBool(), true);
        QCOMPARE(read.value(SettingsKeys::password).toString(), QString());
        settings.setValue(
            SettingsKeys::passwordValues,
            QVariantMap{{QString(SettingsKeys::password), QStringLiteral("hunter3")}});
        settings.sync();
        QVERIFY(!fileText(settings.filePath()).contains("hunter3"));

        // A password an earlier program wrote is gone as soon as the settings are read, as a
        // text, a list or a map.
        for (const QByteArray& left :
             {QByteArray("\\\"hunter4\\\""), QByteArray("[\\\"hunter4\\\"]"),
              QByteArray("{\\\"text\\\":\\\"hunter4\\\"}")}) {
            QFile file(QDir(dir()).filePath(QStringLiteral("old.conf")));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("[General]\npasswordValues=\"{\\\"isPassword\\\":true,"
                       "\\\"password\\\":" +
                       left + "}\"\n");
            file.close();
            {
                Settings old(file.fileName());
                QVERIFY(old.passwordProtected());
            }
            QVERIFY2(!fileText(file.fileName()).contains("hunter4"), left.constData());
        }
    }

    void aProtectedProgramStartsLockedAfterTheWelcome_data()
    {
        QTest::addColumn<int>("isShowFirst");
        QTest::addColumn<bool>("password");
        QTest::addColumn<bool>("locked");
        QTest::newRow("first run") << -1 << true << false;
        QTest::newRow("welcome not done") << 0 << true << false;
        QTest::newRow("welcome done") << 1 << false << false;
        QTest::newRow("password on") << 1 << true << true;
    }

    void aProtectedProgramStartsLockedAfterTheWelcome()
    {
        QFETCH(int, isShowFirst);
        QFETCH(bool, password);
        QFETCH(bool, locked);
        Launched app(dir(), at(2026, 11, 23, 9));
        if (isShowFirst >= 0)
            app.settings.setValue(SettingsKeys::isShowFirst, isShowFirst);
        app.settings.setDictionary(SettingsKeys::passwordValues,
                                   {{QString(SettingsKeys::isPassword), password}});
        QVERIFY(app.open(false));
        QCOMPARE(app.services().lock.isLocked(), locked);
    }

    void theRunHoldsTheDisplayAwakeAndTicks()
    {
        Launched app(dir(), at(2026, 11, 23, 9));
        QVERIFY(app.open());
        QVERIFY(!app.core.isMonitoring());
        app.clock.set(at(2026, 11, 23, 9, 0, 20));
        app.core.startMonitoring();
        QVERIFY(app.core.isMonitoring());
        QCOMPARE(app.inhibitor.reasons, QStringList{QStringLiteral("Reason for activity")});

        QSignalSpy ticks(&app.monitor(), &Monitor::ticked);
        app.monitor().tick();
        QCOMPARE(ticks.count(), 1);

        // Nothing runs: the program sleeps until the next whole minute, not a second.
        QVERIFY(app.core.nextTickIn() > std::chrono::seconds(39));
        QVERIFY(app.core.nextTickIn() <= std::chrono::milliseconds(40100));
        QCOMPARE(app.core.prepareToQuit(), AppController::QuitReply::Now);
        app.core.finishQuit();
        QVERIFY(!app.core.isMonitoring());
        QCOMPARE(app.inhibitor.released, std::vector<quint32>{77});
    }

    // Whatever starts an item, its clock moves each second from then on; whatever ends it, the
    // minute wait is back.
    void everyWayToStartAnItemTicksEachSecond()
    {
        Launched app(dir(), at(2026, 11, 23, 9));
        QVERIFY(app.open());
        app.clock.set(at(2026, 11, 23, 9, 0, 5));
        app.settings.setValue(SettingsKeys::automaticBackup, false);
        app.core.startMonitoring();
        const auto secondPace = [&app] { return app.core.nextTickIn() <= std::chrono::seconds(1); };
        const auto minutePace = [&app] { return app.core.nextTickIn() > std::chrono::seconds(50); };
        const Services& s = app.services();
        QVERIFY(minutePace());

        Item* due = app.addItem(QStringLiteral("Walk break"), at(2026, 11, 23, 9));
        ReminderPrompt(s.postponing, app.running(), due, nullptr).start();
        QVERIFY(secondPace());
        TimeOverPrompt(app.running(), due).finish();
        QVERIFY(minutePace());

        IdlePrompt(app.clock, app.library(), app.running(), at(2026, 11, 23, 8, 40), false)
            .answer(QStringLiteral("Reading"), nullptr, false);
        QVERIFY(secondPace());
        Item* answered = app.running().item();
        QVERIFY(answered);
        // More time for an item without a limit is told like any change of the running item.
        int extended = 0;
        connect(&app.running(), &RunningItem::extended, this, [&extended] { ++extended; });
        TimeOverPrompt(app.running(), answered).moreTime(15);
        QCOMPARE(extended, 1);
        s.itemActions.finish(*answered);
        QVERIFY(minutePace());

        Item* listed = app.addItem(QStringLiteral("Letters"), std::nullopt);
        QCOMPARE(s.itemActions.start(*listed), ItemActions::StartResult::Started);
        QVERIFY(secondPace());
        Item* other = app.addItem(QStringLiteral("Filing"), std::nullopt);
        s.itemActions.confirmStart(*other);
        QVERIFY(secondPace());

        // The store replaced under the running item: nothing runs any more.
        const QString copy = QDir(dir()).filePath(QStringLiteral("copy.sqlite"));
        QSignalSpy copied(&s.backups, &Backups::backedUp);
        s.backups.backUpTo(copy);
        QVERIFY(copied.wait(5000));
        QSignalSpy restored(&s.backups, &Backups::restored);
        s.backups.restoreFrom(copy, QString());
        QVERIFY(restored.wait(5000));
        QVERIFY(!app.running().item());
        QVERIFY(minutePace());
    }

    void aDesktopWithoutTheServiceIsNoError()
    {
        Launched app(dir(), at(2026, 11, 23, 9));
        app.inhibitor.cookie.reset();
        QVERIFY(app.open());
        app.core.startMonitoring();
        app.core.finishQuit();
        QVERIFY(app.inhibitor.released.empty());
    }

    void quittingFinishesTheRunningItem()
    {
        {
            Launched app(dir(), at(2026, 11, 23, 9));
            QVERIFY(app.open());
            Item* item = app.addItem(QStringLiteral("Walk break"), at(2026, 11, 23, 9));
            item->setDurationMin(10);
            app.running().start(*item);
            item->setElapsedTime(120);
            app.library().save();
            QCOMPARE(app.core.prepareToQuit(), AppController::QuitReply::Now);
            QVERIFY(!app.running().item());
        }
        Launched next(dir(), at(2026, 11, 23, 10));
        QVERIFY(next.open());
        QCOMPARE(next.library().items().size(), std::size_t(1));
        const Item* item = next.library().items().front();
        QCOMPARE(item->hasStarted(), std::optional<bool>(false));
        QCOMPARE(item->hasFinished(), std::optional<bool>(true));
        QCOMPARE(*item->elapsedTime(), 120);
    }

    void aFailedSaveAtQuitIsToldToTheCaller()
    {
        Launched app(dir(), at(2026, 11, 23, 9));
        QVERIFY(app.open());
        Db db(QDir(dir()).filePath(QStringLiteral("data/Lullet.sqlite")));
        QVERIFY(db.exec("CREATE TRIGGER refuse BEFORE INSERT ON ReminderInfo "
                        "BEGIN SELECT RAISE(ABORT, 'disk is full'); END"));
        app.library().newItem();
        QCOMPARE(app.core.prepareToQuit(), AppController::QuitReply::SaveFailed);
        QVERIFY(app.context().hasChanges());

        // A save elsewhere tells its failure, once, and keeps the change.
        QSignalSpy failed(&app.library(), &Library::saveFailed);
        QVERIFY(!app.library().save());
        QVERIFY(!app.library().save());
        QTRY_COMPARE(failed.count(), 1);
        QVERIFY(failed.front().front().toString().contains(QStringLiteral("disk is full")));
        QVERIFY(app.context().hasChanges());
    }

    // The saves of a launch come before any window listens: their failure is told after it.
    void aLaunchsFailedSaveIsToldAfterTheLaunch()
    {
        {
            Launched first(dir(), at(2026, 11, 23, 9));
            QVERIFY(first.open());
            Rule* rule = first.library().newRule();
            rule->setUniqueId(QStringLiteral("Water_1795424400"));
            rule->setTitle(QStringLiteral("Water"));
            rule->setDtReminder(at(2026, 11, 20, 10));
            rule->setRepeatInterval(1);
            rule->setRepeatIntervalType(RepeatUnit::Day);
            rule->setRepeatOption(RepeatEnd::never);
            rule->setIsActive(true);
            first.library().addRule(rule);
            QVERIFY(first.library().save());
        }
        Db db(QDir(dir()).filePath(QStringLiteral("data/Lullet.sqlite")));
        QVERIFY(db.exec("CREATE TRIGGER refuse BEFORE INSERT ON ReminderInfo "
                        "BEGIN SELECT RAISE(ABORT, 'disk is full'); END"));
        Launched next(dir(), at(2026, 11, 24, 9));
        QVERIFY(next.open());
        QSignalSpy failed(&next.library(), &Library::saveFailed);
        QTRY_COMPARE(failed.count(), 1);
        QVERIFY(failed.front().front().toString().startsWith(
            QStringLiteral("Your changes could not be saved: disk is full.")));
    }

    void aStoreThatCannotBeOpenedEndsTheLaunch()
    {
        QVERIFY(QFile(QDir(dir()).filePath(QStringLiteral("data"))).open(QIODevice::WriteOnly));
        Launched app(dir(), at(2026, 11, 23, 9));
        QCOMPARE(app.core.open().outcome, Store::Outcome::FolderIsFile);
        QCOMPARE(app.core.prepareToQuit(), AppController::QuitReply::Now);
    }

    void sharedListsStayOrdered()
    {
        Launched app(dir(), at(2026, 11, 23, 9));
        QVERIFY(app.open());
        const auto make = [&](const char* title, std::optional<Date> due, bool finished,
                              std::optional<Date> postponed = std::nullopt) {
            Item* r = app.library().newItem();
            r->setTitle(QString::fromUtf8(title));
            r->setDtReminder(due);
            r->setDtReminderPostponed(postponed);
            r->setHasFinished(finished);
            return r;
        };
        make("done early", at(2026, 11, 20), true);
        make("anytime", std::nullopt, false);
        make("later", at(2026, 11, 25), false);
        make("postponed", at(2026, 11, 21), false, at(2026, 11, 26));
        make("soon", at(2026, 11, 24), false);
        make("done late", at(2026, 11, 22), true);
        Item* noValue = make("no value", at(2026, 11, 23, 12), false);
        noValue->setHasFinished(std::nullopt);
        app.library().save();
        app.library().loadItems();
        QStringList order;
        for (const Item* r : app.library().items())
            order << *r->title();
        QCOMPARE(order, (QStringList{QStringLiteral("no value"), QStringLiteral("soon"),
                                     QStringLiteral("later"), QStringLiteral("postponed"),
                                     QStringLiteral("anytime"), QStringLiteral("done late"),
                                     QStringLiteral("done early")}));
        // The lists read the finished ones the other way round.
        std::vector<Item*> forList = app.library().items();
        ItemOrder::sortForList(forList);
        QCOMPARE(*forList[5]->title(), QStringLiteral("done early"));

        Item* extra = make("extra", at(2026, 11, 23, 8), false);
        app.library().addItem(extra);
        app.library().addItem(extra);
        const auto& items = app.library().items();
        QCOMPARE(std::count(items.begin(), items.end(), extra), 1);
        QCOMPARE(items.front(), extra);

        // Taking the running item out of the list stops it and counts as an event for the idle
        // clock.
        app.running().start(*extra);
        app.clock.advance(125);
        app.library().removeItem(extra);
        QVERIFY(!app.running().item());
        QCOMPARE(*app.running().lastPromptAt(), app.clock.now());
        QCOMPARE(app.library().items().size(), std::size_t(7));
    }

    void projectsAreListedByNameAndLeaveCleanly()
    {
        Launched app(dir(), at(2026, 11, 23, 9));
        QVERIFY(app.open());
        for (const char* name : {"work", "Éducation", "Home"})
            app.library().newProject()->setName(QString::fromUtf8(name));
        app.library().save();
        app.library().loadProjects();
        QStringList names;
        for (const Project* p : app.library().projects())
            names << *p->name();
        QCOMPARE(names, (QStringList{QStringLiteral("Éducation"), QStringLiteral("Home"),
                                     QStringLiteral("work")}));

        Project* home = app.library().projects()[1];
        Item* task = app.library().newItem();
        task->setToProject(home);
        app.library().addItem(task);
        QSignalSpy changed(&app.library(), &Library::projectsChanged);
        QSignalSpy removed(&app.library(), &Library::projectRemoved);
        app.library().removeProject(home);
        QCOMPARE(removed.count(), 1);
        QCOMPARE(app.library().projects().size(), std::size_t(2));
        QVERIFY(app.library().items().empty());
        // Told after the caller's work, not during it.
        QCOMPARE(changed.count(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(changed.count(), 1);
    }

    void itemNewsInABatchIsToldOnce()
    {
        Launched app(dir(), at(2026, 11, 23, 9));
        QVERIFY(app.open());
        QSignalSpy changed(&app.library(), &Library::itemsChanged);
        {
            const Library::Batch batch(app.library());
            for (int i = 0; i < 5; ++i)
                app.library().announceItemChanged(app.addItem(QStringLiteral("Item"), {}));
        }
        QCOMPARE(changed.count(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.front().front().value<Item*>(), nullptr);
    }
};

LULLET_TEST_MAIN(TestAppController)
#include "tst_appcontroller.moc"
