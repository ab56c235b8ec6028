#include "core/library/ItemOrder.h"
#include "core/monitor/IdlePrompt.h"
#include "core/monitor/ReminderPrompt.h"
#include "core/monitor/TimeOverPrompt.h"
#include "core/store/Db.h"
#include "support/LaunchedTest.h"

using namespace lullet;
using namespace lullet::test;

// The start and the stop of the program, and the shared lists it keeps.
class TestAppController : public LaunchedTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 9); }
    Open openedAs() const override { return Open::No; }

private Q_SLOTS:
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
        relaunch(launch);
        QCOMPARE(*app().running().lastPromptAt(), expected);
        // The launch day never moves, however long the run.
        clock().advance(3 * 86400);
        QCOMPARE(services().hours.onLaunchDay(at(2026, 1, 1, 9, 30)).dateAtStartOfDay(),
                 launch.dateAtStartOfDay());
    }

    void registeredDefaultsAnswerButAreNeverWritten()
    {
        QVERIFY(app().open(false));
        QCOMPARE(app().settings.promptDuration(), 15);
        QCOMPARE(app().running().promptPeriod(), 15);
        QVERIFY(!app().settings.contains(SettingsKeys::promptDuration));
        QVERIFY(app().settings.contains(SettingsKeys::disableAutoPrompt));
        app().settings.sync();
        const QByteArray written = readFile(path(QStringLiteral("Lullet.conf")));
        QVERIFY2(written.contains("disableAutoPrompt=0"), written.constData());
        for (const char* key : {"isShowFirst", "openAtLogIn", "isRating", "remindMe",
                                "promptDuration", "automaticBackup", "backupOption"})
            QVERIFY2(!written.contains(key), key);

        // A value the user set wins over the registered one.
        relaunch(at(2026, 11, 23, 9), Open::No);
        app().settings.setValue(SettingsKeys::promptDuration, 40);
        QVERIFY(app().open());
        QCOMPARE(app().running().promptPeriod(), 40);
    }

    void thePasswordIsNeverWrittenInClearText()
    {
        Settings settings(path(QStringLiteral("p.conf")));
        settings.setDictionary(SettingsKeys::passwordValues,
                               {{QString(SettingsKeys::isPassword), true},
                                {QString(SettingsKeys::password), QStringLiteral("hunter2")}});
        settings.sync();
        QVERIFY(!readFile(settings.filePath()).contains("hunter2"));
        const QVariantMap read = settings.dictionary(SettingsKeys::passwordValues);
        QCOMPARE(read.value(SettingsKeys::isPassword).toBool(), true);
        QCOMPARE(read.value(SettingsKeys::password).toString(), QString());
        settings.setValue(
            SettingsKeys::passwordValues,
            QVariantMap{{QString(SettingsKeys::password), QStringLiteral("hunter3")}});
        settings.sync();
        QVERIFY(!readFile(settings.filePath()).contains("hunter3"));

        // A password an earlier program wrote is gone as soon as the settings are read, as a
        // text, a list or a map.
        for (const QByteArray& left :
             {QByteArray("\\\"hunter4\\\""), QByteArray("[\\\"hunter4\\\"]"),
              QByteArray("{\\\"text\\\":\\\"hunter4\\\"}")}) {
            const QString conf = writeFile(QStringLiteral("old.conf"),
                                           "[General]\npasswordValues=\"{\\\"isPassword\\\":true,"
                                           "\\\"password\\\":" +
                                               left + "}\"\n");
            {
                Settings old(conf);
                QVERIFY(old.passwordProtected());
            }
            QVERIFY2(!readFile(conf).contains("hunter4"), left.constData());
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
        if (isShowFirst >= 0)
            app().settings.setValue(SettingsKeys::isShowFirst, isShowFirst);
        app().settings.setDictionary(SettingsKeys::passwordValues,
                                     {{QString(SettingsKeys::isPassword), password}});
        QVERIFY(app().open(false));
        QCOMPARE(services().lock.isLocked(), locked);
    }

    void theRunHoldsTheDisplayAwakeAndTicks()
    {
        QVERIFY(app().open());
        QVERIFY(!app().core.isMonitoring());
        clock().set(at(2026, 11, 23, 9, 0, 20));
        app().core.startMonitoring();
        QVERIFY(app().core.isMonitoring());
        QCOMPARE(app().inhibitor.reasons, QStringList{QStringLiteral("Reason for activity")});

        QSignalSpy ticks(&app().monitor(), &Monitor::ticked);
        app().monitor().tick();
        QCOMPARE(ticks.count(), 1);

        // Nothing runs: the program sleeps until the next whole minute, not a second.
        QVERIFY(app().core.nextTickIn() > std::chrono::seconds(39));
        QVERIFY(app().core.nextTickIn() <= std::chrono::milliseconds(40100));
        QCOMPARE(app().core.prepareToQuit(), AppController::QuitReply::Now);
        app().core.finishQuit();
        QVERIFY(!app().core.isMonitoring());
        QCOMPARE(app().inhibitor.released, std::vector<quint32>{77});
    }

    // Whatever starts an item, its clock moves each second from then on; whatever ends it, the
    // minute wait is back.
    void everyWayToStartAnItemTicksEachSecond()
    {
        QVERIFY(app().open());
        clock().set(at(2026, 11, 23, 9, 0, 5));
        app().settings.setValue(SettingsKeys::automaticBackup, false);
        app().core.startMonitoring();
        const auto secondPace = [this] {
            return app().core.nextTickIn() <= std::chrono::seconds(1);
        };
        const auto minutePace = [this] {
            return app().core.nextTickIn() > std::chrono::seconds(50);
        };
        const Services& s = services();
        QVERIFY(minutePace());

        Item* due = app().addItem(QStringLiteral("Walk break"), at(2026, 11, 23, 9));
        ReminderPrompt(s.postponing, app().running(), due, nullptr).start();
        QVERIFY(secondPace());
        TimeOverPrompt(app().running(), due).finish();
        QVERIFY(minutePace());

        IdlePrompt(clock(), library(), app().running(), at(2026, 11, 23, 8, 40), false)
            .answer(QStringLiteral("Reading"), nullptr, false);
        QVERIFY(secondPace());
        Item* answered = app().running().item();
        QVERIFY(answered);
        // More time for an item without a limit is told like any change of the running item.
        int extended = 0;
        connect(&app().running(), &RunningItem::extended, this, [&extended] { ++extended; });
        TimeOverPrompt(app().running(), answered).moreTime(15);
        QCOMPARE(extended, 1);
        s.itemActions.finish(*answered);
        QVERIFY(minutePace());

        Item* listed = app().addItem(QStringLiteral("Letters"), std::nullopt);
        QCOMPARE(s.itemActions.start(*listed), ItemActions::StartResult::Started);
        QVERIFY(secondPace());
        Item* other = app().addItem(QStringLiteral("Filing"), std::nullopt);
        s.itemActions.confirmStart(*other);
        QVERIFY(secondPace());

        // The store replaced under the running item: nothing runs any more.
        const QString copy = path(QStringLiteral("copy.sqlite"));
        QSignalSpy copied(&s.backups, &Backups::backedUp);
        s.backups.backUpTo(copy);
        QVERIFY(copied.wait(5000));
        QSignalSpy restored(&s.backups, &Backups::restored);
        s.backups.restoreFrom(copy, QString());
        QVERIFY(restored.wait(5000));
        QVERIFY(!app().running().item());
        QVERIFY(minutePace());
    }

    void aDesktopWithoutTheServiceIsNoError()
    {
        app().inhibitor.cookie.reset();
        QVERIFY(app().open());
        app().core.startMonitoring();
        app().core.finishQuit();
        QVERIFY(app().inhibitor.released.empty());
    }

    void quittingFinishesTheRunningItem()
    {
        QVERIFY(app().open());
        Item* walk = app().addItem(QStringLiteral("Walk break"), at(2026, 11, 23, 9));
        walk->setDurationMin(10);
        app().running().start(*walk);
        walk->setElapsedTime(120);
        library().save();
        QCOMPARE(app().core.prepareToQuit(), AppController::QuitReply::Now);
        QVERIFY(!app().running().item());
        relaunch(at(2026, 11, 23, 10));
        QCOMPARE(library().items().size(), std::size_t(1));
        const Item* item = library().items().front();
        QCOMPARE(item->hasStarted(), std::optional<bool>(false));
        QCOMPARE(item->hasFinished(), std::optional<bool>(true));
        QCOMPARE(*item->elapsedTime(), 120);
    }

    void aFailedSaveAtQuitIsToldToTheCaller()
    {
        QVERIFY(app().open());
        Db db(storePath());
        QVERIFY(db.exec("CREATE TRIGGER refuse BEFORE INSERT ON ReminderInfo "
                        "BEGIN SELECT RAISE(ABORT, 'disk is full'); END"));
        library().newItem();
        QCOMPARE(app().core.prepareToQuit(), AppController::QuitReply::SaveFailed);
        QVERIFY(app().context().hasChanges());

        // A save elsewhere tells its failure, once, and keeps the change.
        QSignalSpy failed(&library(), &Library::saveFailed);
        QVERIFY(!library().save());
        QVERIFY(!library().save());
        QTRY_COMPARE(failed.count(), 1);
        QVERIFY(failed.front().front().toString().contains(QStringLiteral("disk is full")));
        QVERIFY(app().context().hasChanges());
    }

    // The saves of a launch come before any window listens: their failure is told after it.
    void aLaunchsFailedSaveIsToldAfterTheLaunch()
    {
        QVERIFY(app().open());
        Rule* rule =
            app().addRule(QStringLiteral("Water"), RepeatUnit::Day, 1, at(2026, 11, 20, 10));
        rule->setIsCustom(std::nullopt);
        library().addRule(rule);
        QVERIFY(library().save());
        Db db(storePath());
        QVERIFY(db.exec("CREATE TRIGGER refuse BEFORE INSERT ON ReminderInfo "
                        "BEGIN SELECT RAISE(ABORT, 'disk is full'); END"));
        relaunch(at(2026, 11, 24, 9));
        QSignalSpy failed(&library(), &Library::saveFailed);
        QTRY_COMPARE(failed.count(), 1);
        QVERIFY(failed.front().front().toString().startsWith(
            QStringLiteral("Your changes could not be saved: disk is full.")));
    }

    void aStoreThatCannotBeOpenedEndsTheLaunch()
    {
        writeFile(QStringLiteral("data"), {});
        QCOMPARE(app().core.open().outcome, Store::Outcome::FolderIsFile);
        QCOMPARE(app().core.prepareToQuit(), AppController::QuitReply::Now);
    }

    void sharedListsStayOrdered()
    {
        QVERIFY(app().open());
        const auto make = [&](const char* title, std::optional<Date> due, bool finished,
                              std::optional<Date> postponed = std::nullopt) {
            Item* r = library().newItem();
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
        library().save();
        library().loadItems();
        QCOMPARE(titlesOf(library().items()),
                 (QStringList{QStringLiteral("no value"), QStringLiteral("soon"),
                              QStringLiteral("later"), QStringLiteral("postponed"),
                              QStringLiteral("anytime"), QStringLiteral("done late"),
                              QStringLiteral("done early")}));
        // The lists read the finished ones the other way round.
        std::vector<Item*> forList = library().items();
        ItemOrder::sortForList(forList);
        QCOMPARE(*forList[5]->title(), QStringLiteral("done early"));

        Item* extra = make("extra", at(2026, 11, 23, 8), false);
        library().addItem(extra);
        library().addItem(extra);
        const auto& items = library().items();
        QCOMPARE(std::count(items.begin(), items.end(), extra), 1);
        QCOMPARE(items.front(), extra);

        // Taking the running item out of the list stops it and counts as an event for the idle
        // clock.
        app().running().start(*extra);
        clock().advance(125);
        library().removeItem(extra);
        QVERIFY(!app().running().item());
        QCOMPARE(*app().running().lastPromptAt(), clock().now());
        QCOMPARE(library().items().size(), std::size_t(7));
    }

    void projectsAreListedByNameAndLeaveCleanly()
    {
        QVERIFY(app().open());
        for (const char* name : {"work", "Éducation", "Home"})
            library().newProject()->setName(QString::fromUtf8(name));
        library().save();
        library().loadProjects();
        QStringList names;
        for (const Project* p : library().projects())
            names << *p->name();
        QCOMPARE(names, (QStringList{QStringLiteral("Éducation"), QStringLiteral("Home"),
                                     QStringLiteral("work")}));

        Project* home = library().projects()[1];
        Item* task = library().newItem();
        task->setToProject(home);
        library().addItem(task);
        QSignalSpy changed(&library(), &Library::projectsChanged);
        QSignalSpy removed(&library(), &Library::projectRemoved);
        library().removeProject(home);
        QCOMPARE(removed.count(), 1);
        QCOMPARE(library().projects().size(), std::size_t(2));
        QVERIFY(library().items().empty());
        // Told after the caller's work, not during it.
        QCOMPARE(changed.count(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(changed.count(), 1);
    }

    void itemNewsInABatchIsToldOnce()
    {
        QVERIFY(app().open());
        QSignalSpy changed(&library(), &Library::itemsChanged);
        {
            const Library::Batch batch(library());
            for (int i = 0; i < 5; ++i)
                library().announceItemChanged(app().addItem(QStringLiteral("Item"), {}));
        }
        QCOMPARE(changed.count(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.front().front().value<Item*>(), nullptr);
    }
};

LULLET_TEST_MAIN(TestAppController)
#include "tst_appcontroller.moc"
