#include "core/app/AppDelegate.h"
#include "core/dates/CalendarContext.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "core/settings/SettingsKeys.h"
#include "core/settings/UserDefaults.h"
#include "core/store/Db.h"
#include "core/store/ObjectContext.h"
#include "core/store/StoreStack.h"
#include "support/DatePrinting.h"
#include "support/FakeClock.h"
#include "support/RecordingHost.h"
#include "support/TestLaunch.h"
#include "support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <memory>

using namespace lullet;
using namespace lullet::test;

namespace {

using Launch = TestLaunch;

QByteArray fileText(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

class TestAppDelegate : public QObject {
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
        Launch app(dir(), launch);
        QVERIFY(app.delegate.awakeFromNib());
        QCOMPARE(*app.delegate.dtLastAnyALertOn, expected);
        // The launch stamps never move, however long the run.
        app.clock.advance(3 * 86400);
        QCOMPARE(app.delegate.fetchedDate, launch);
        QCOMPARE(app.delegate.cDate, launch);
    }

    void registeredDefaultsAnswerButAreNeverWritten()
    {
        {
            Launch app(dir(), at(2026, 11, 23, 9));
            QVERIFY(app.delegate.awakeFromNib());
            QCOMPARE(app.defaults.integer(SettingsKeys::promptDuration), 15);
            QCOMPARE(app.delegate.intNoTaskDuration, 15);
            QCOMPARE(app.defaults.integer(SettingsKeys::remindMe), 2);
            QVERIFY(app.defaults.boolean(SettingsKeys::automaticBackup));
            QVERIFY(!app.defaults.hasValue(SettingsKeys::promptDuration));
            QVERIFY(app.defaults.hasValue(SettingsKeys::disableAutoPrompt));
            app.defaults.synchronize();
        }
        const QByteArray written = fileText(QDir(dir()).filePath(QStringLiteral("Lullet.conf")));
        QVERIFY2(written.contains("disableAutoPrompt=0"), written.constData());
        for (const char* key : {"isShowFirst", "openAtLogIn", "isRating", "remindMe",
                                "promptDuration", "automaticBackup", "backupOption"})
            QVERIFY2(!written.contains(key), key);

        // A value the user set wins over the registered one.
        Launch again(dir(), at(2026, 11, 23, 9));
        again.defaults.set(SettingsKeys::promptDuration, 40);
        QVERIFY(again.delegate.awakeFromNib());
        QCOMPARE(again.delegate.intNoTaskDuration, 40);
    }

    void thePasswordIsNeverWrittenInClearText()
    {
        UserDefaults defaults(QDir(dir()).filePath(QStringLiteral("p.conf")));
        defaults.setDictionary(SettingsKeys::passwordValues,
                               {{QString(SettingsKeys::isPassword), true},
                                {QString(SettingsKeys::password), QStringLiteral("hunter2")}});
        defaults.synchronize();
        QVERIFY(!fileText(defaults.filePath()).contains("hunter2"));
        const QVariantMap read = defaults.dictionary(SettingsKeys::passwordValues);
        QCOMPARE(read.value(SettingsKeys::isPassword).toBool(), true);
        QCOMPARE(read.value(SettingsKeys::password).toString(), QString());
    }

    void theWindowFollowsTheWelcomeAndPasswordState_data()
    {
        QTest::addColumn<int>("isShowFirst");
        QTest::addColumn<bool>("password");
        QTest::addColumn<QString>("expectedCall");
        QTest::addColumn<bool>("isLogin");
        QTest::newRow("first run")
            << -1 << false << QStringLiteral("prepareMainWindow(welcome,open)") << true;
        QTest::newRow("welcome not done")
            << 0 << true << QStringLiteral("prepareMainWindow(welcome,open)") << true;
        QTest::newRow("welcome done")
            << 1 << false << QStringLiteral("prepareMainWindow(welcomeDone,open)") << true;
        QTest::newRow("password on")
            << 1 << true << QStringLiteral("prepareMainWindow(welcomeDone,locked)") << false;
    }

    void theWindowFollowsTheWelcomeAndPasswordState()
    {
        QFETCH(int, isShowFirst);
        QFETCH(bool, password);
        QFETCH(QString, expectedCall);
        QFETCH(bool, isLogin);
        Launch app(dir(), at(2026, 11, 23, 9));
        if (isShowFirst >= 0)
            app.defaults.set(SettingsKeys::isShowFirst, isShowFirst);
        app.defaults.setDictionary(SettingsKeys::passwordValues,
                                   {{QString(SettingsKeys::isPassword), password}});
        QVERIFY(app.delegate.awakeFromNib());
        app.delegate.applicationWillFinishLaunching();
        QCOMPARE(app.host.calls, (QStringList{QStringLiteral("openStatusMenu"), expectedCall,
                                              QStringLiteral("bringMainWindowForward")}));
        QCOMPARE(app.delegate.isLogin, isLogin);
    }

    void theRunHoldsTheDisplayAwakeAndTicks()
    {
        Launch app(dir(), at(2026, 11, 23, 9));
        QVERIFY(app.delegate.awakeFromNib());
        app.delegate.applicationWillFinishLaunching();
        QVERIFY(!app.delegate.isMonitorTimerRunning());
        app.delegate.applicationDidFinishLaunching();
        QVERIFY(app.delegate.isMonitorTimerRunning());
        QCOMPARE(app.inhibitor.reasons, QStringList{QStringLiteral("Reason for activity")});
        QCOMPARE(app.delegate.assertionIDInHold, std::optional<quint32>(77));

        int ticks = 0;
        QObject listener;
        app.center.addObserver(&listener, notification::onMonitoringDone,
                               [&](const QVariant&) { ++ticks; });
        app.delegate.doMonitorTime();
        QCOMPARE(ticks, 1);

        QCOMPARE(app.delegate.applicationShouldTerminate(),
                 AppDelegate::TerminateReply::TerminateNow);
        app.delegate.applicationWillTerminate();
        QVERIFY(!app.delegate.isMonitorTimerRunning());
        QCOMPARE(app.inhibitor.released, std::vector<quint32>{77});
    }

    void aDesktopWithoutTheServiceIsNoError()
    {
        Launch app(dir(), at(2026, 11, 23, 9));
        app.inhibitor.cookie.reset();
        QVERIFY(app.delegate.awakeFromNib());
        app.delegate.applicationDidFinishLaunching();
        QVERIFY(!app.delegate.assertionIDInHold);
        app.delegate.applicationWillTerminate();
        QVERIFY(app.inhibitor.released.empty());
    }

    void quittingFinishesTheRunningItem()
    {
        {
            Launch app(dir(), at(2026, 11, 23, 9));
            QVERIFY(app.delegate.awakeFromNib());
            ReminderInfo* item = app.delegate.managedObjectContext().insertReminderInfo();
            item->setTitle(QStringLiteral("Walk break"));
            item->setHasStarted(true);
            item->setTimeLimit(600);
            item->setElapsedTime(120);
            app.delegate.saveAction();
            app.delegate.objReminderRunningNow = item;
            QCOMPARE(app.delegate.applicationShouldTerminate(),
                     AppDelegate::TerminateReply::TerminateNow);
            QVERIFY(!app.delegate.objReminderRunningNow);
            QVERIFY(app.host.questions.isEmpty());
        }
        Launch next(dir(), at(2026, 11, 23, 10));
        QVERIFY(next.delegate.awakeFromNib());
        QCOMPARE(next.delegate.mArrAllLullets.size(), std::size_t(1));
        const ReminderInfo* item = next.delegate.mArrAllLullets.front();
        QCOMPARE(item->hasStarted(), std::optional<bool>(false));
        QCOMPARE(item->hasFinished(), std::optional<bool>(true));
        QCOMPARE(*item->elapsedTime(), 120);
    }

    void aFailedSaveAtQuitAsksTheUser()
    {
        Launch app(dir(), at(2026, 11, 23, 9));
        QVERIFY(app.delegate.awakeFromNib());
        QVERIFY(app.store.db().exec("CREATE TRIGGER refuse BEFORE INSERT ON ReminderInfo "
                                    "BEGIN SELECT RAISE(ABORT, 'disk is full'); END"));
        app.delegate.managedObjectContext().insertReminderInfo();

        app.host.quitAnyway = false;
        QCOMPARE(app.delegate.applicationShouldTerminate(),
                 AppDelegate::TerminateReply::TerminateCancel);
        QCOMPARE(app.host.questions,
                 (QStringList{QStringLiteral("Could not save changes while quitting. Quit anyway?"),
                              QStringLiteral("Quitting now will lose any changes you have made "
                                             "since the last successful save")}));
        QVERIFY(app.delegate.managedObjectContext().hasChanges());

        app.host.quitAnyway = true;
        QCOMPARE(app.delegate.applicationShouldTerminate(),
                 AppDelegate::TerminateReply::TerminateNow);

        // saveAction presents the failure and keeps the change.
        app.delegate.saveAction();
        QCOMPARE(app.host.errors.size(), 1);
        QVERIFY(app.host.errors.front().contains(QStringLiteral("disk is full")));
        QVERIFY(app.delegate.managedObjectContext().hasChanges());
    }

    void aStoreThatCannotBeBuiltEndsTheLaunchSilently()
    {
        QVERIFY(QFile(QDir(dir()).filePath(QStringLiteral("data"))).open(QIODevice::WriteOnly));
        Launch app(dir(), at(2026, 11, 23, 9));
        QVERIFY(!app.delegate.awakeFromNib());
        QVERIFY(app.delegate.bIsCoreDataCorrupted);
        QVERIFY(app.host.calls.isEmpty());
        QCOMPARE(app.delegate.applicationShouldTerminate(),
                 AppDelegate::TerminateReply::TerminateNow);
    }

    void sharedListsStayOrdered()
    {
        Launch app(dir(), at(2026, 11, 23, 9));
        QVERIFY(app.delegate.awakeFromNib());
        ObjectContext& ctx = app.delegate.managedObjectContext();
        const auto make = [&](const char* title, std::optional<Date> due, bool finished,
                              std::optional<Date> postponed = std::nullopt) {
            ReminderInfo* r = ctx.insertReminderInfo();
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
        ReminderInfo* noValue = make("no value", at(2026, 11, 23, 12), false);
        noValue->setHasFinished(std::nullopt);
        app.delegate.saveAction();
        app.delegate.prepareAllLulletLists();
        QStringList order;
        for (const ReminderInfo* r : app.delegate.mArrAllLullets)
            order << *r->title();
        QCOMPARE(order, (QStringList{QStringLiteral("no value"), QStringLiteral("soon"),
                                     QStringLiteral("later"), QStringLiteral("postponed"),
                                     QStringLiteral("anytime"), QStringLiteral("done late"),
                                     QStringLiteral("done early")}));

        ReminderInfo* extra = make("extra", at(2026, 11, 23, 8), false);
        app.delegate.addLulletObject(extra);
        app.delegate.addLulletObject(extra);
        QCOMPARE(std::count(app.delegate.mArrAllLullets.begin(), app.delegate.mArrAllLullets.end(),
                            extra),
                 1);
        QCOMPARE(app.delegate.mArrAllLullets.front(), extra);

        // Taking the running item out of the list stops it and counts as an event for the idle
        // clock.
        app.delegate.objReminderRunningNow = extra;
        app.clock.advance(125);
        app.delegate.removeLulletObject(extra);
        QVERIFY(!app.delegate.objReminderRunningNow);
        QCOMPARE(*app.delegate.dtLastAnyALertOn, app.clock.now());
        QCOMPARE(app.delegate.mArrAllLullets.size(), std::size_t(7));
    }

    void projectsAreListedByNameAndLeaveCleanly()
    {
        Launch app(dir(), at(2026, 11, 23, 9));
        QVERIFY(app.delegate.awakeFromNib());
        ObjectContext& ctx = app.delegate.managedObjectContext();
        for (const char* name : {"work", "Éducation", "Home"})
            ctx.insertProject()->setName(QString::fromUtf8(name));
        app.delegate.saveAction();
        app.delegate.prepareAllProjectLists();
        QStringList names;
        for (const Project* p : app.delegate.mArrAllProjects)
            names << *p->name();
        QCOMPARE(names, (QStringList{QStringLiteral("Éducation"), QStringLiteral("Home"),
                                     QStringLiteral("work")}));

        Project* home = app.delegate.mArrAllProjects[1];
        ReminderInfo* task = ctx.insertReminderInfo();
        task->setToProject(home);
        app.delegate.addLulletObject(task);
        app.delegate.objProjectSelectedNow = home;
        int posted = 0;
        QObject listener;
        app.center.addObserver(&listener, notification::onProjectAddedOrRemoved,
                               [&](const QVariant&) { ++posted; });
        app.delegate.removeProjectObject(home);
        QVERIFY(!app.delegate.objProjectSelectedNow);
        QCOMPARE(app.delegate.mArrAllProjects.size(), std::size_t(2));
        QVERIFY(app.delegate.mArrAllLullets.empty());
        // Posted after the caller's work, not during it.
        QCOMPARE(posted, 0);
        QCoreApplication::processEvents();
        QCOMPARE(posted, 1);
    }

    void anImportReloadsAndTellsWhatWasSelected()
    {
        Launch app(dir(), at(2026, 11, 23, 9));
        QVERIFY(app.delegate.awakeFromNib());
        ObjectContext& ctx = app.delegate.managedObjectContext();
        Project* home = ctx.insertProject();
        home->setName(QStringLiteral("Home"));
        ReminderInfo* running = ctx.insertReminderInfo();
        ReminderInfo* kept = ctx.insertReminderInfo();
        app.delegate.saveAction();
        app.delegate.prepareAllProjectLists();
        app.delegate.prepareAllLulletLists();
        app.delegate.objProjectSelectedNow = home;
        app.delegate.objReminderRunningNow = running;

        QVariant heard;
        QObject listener;
        app.center.addObserver(&listener, notification::onSynciCloud,
                               [&](const QVariant& o) { heard = o; });
        // Another machine deleted the selected project and the running item.
        app.delegate.importedUbiquitousContentChanges([&](ObjectContext& c) {
            c.deleteObject(home);
            c.deleteObject(running);
        });
        QVERIFY(!app.delegate.objProjectSelectedNow);
        QVERIFY(!app.delegate.objReminderRunningNow);
        QCOMPARE(heard.toString(), QStringLiteral("Home"));
        QVERIFY(app.delegate.mArrAllProjects.empty());
        QCOMPARE(app.delegate.mArrAllLullets, std::vector<ReminderInfo*>{kept});

        // Before the store changes under it, the context saves and starts afresh.
        app.delegate.storesWillChange();
        QVERIFY(!kept->hasContext());
        app.delegate.prepareAllLulletLists();
        QCOMPARE(app.delegate.mArrAllLullets.size(), std::size_t(1));
    }
};

LULLET_TEST_MAIN(TestAppDelegate)
#include "tst_appdelegate.moc"
