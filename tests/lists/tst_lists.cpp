#include "core/dates/CalendarContext.h"
#include "core/notify/Notifications.h"
#include "core/settings/SettingsKeys.h"
#include "core/store/ObjectContext.h"
#include "lists/ListActions.h"
#include "lists/LulletListBuilder.h"
#include "lists/RowValues.h"
#include "lists/TaskStats.h"
#include "scheduling/LulletGenerator.h"
#include "scheduling/RepeatTypes.h"
#include "support/DatePrinting.h"
#include "support/TestCalendar.h"
#include "support/TestLaunch.h"
#include "support/TestMain.h"

#include <QTemporaryDir>

#include <memory>
#include <tuple>

using namespace lullet;
using namespace lullet::test;

class TestLists : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TestLaunch> m_app;

    AppDelegate& app() { return m_app->delegate; }

    ReminderInfo* item(const QString& title, std::optional<Date> due, int remindBefore = 0)
    {
        ReminderInfo* r = app().managedObjectContext().insertReminderInfo();
        r->setTitle(title);
        r->setDtReminder(due);
        r->setRemindBefore(remindBefore);
        r->setShouldRemind(true);
        app().addLulletObject(r);
        return r;
    }

    QStringList titles(const LulletListBuilder::Scope& scope)
    {
        QStringList list;
        for (const ReminderInfo* r : LulletListBuilder::prepareLulletListArray(scope, app()))
            list << *r->title();
        return list;
    }

    QString timeText(ReminderInfo* r) { return RowValues::makeRow(r, app(), true).time; }
    QString at(Date d) { return d.toString(DateStyle::none, DateStyle::shortStyle); }

private Q_SLOTS:
    void initTestCase() { init(); }

    void init()
    {
        lullet::test::useTestCalendar();
        m_dir = std::make_unique<QTemporaryDir>();
        m_app = std::make_unique<TestLaunch>(m_dir->path(), test::at(2026, 11, 25, 12, 0));
        m_app->defaults.set(SettingsKeys::isShowFirst, 1);
        QVERIFY(app().awakeFromNib());
    }

    void cleanup()
    {
        m_app.reset();
        m_dir.reset();
    }

    void todayHoldsTheOverdueAndWhatIsWithinItsWindow()
    {
        ReminderInfo* yesterday = item(QStringLiteral("Overdue"), test::at(2026, 11, 24, 9, 0));
        ReminderInfo* inThree =
            item(QStringLiteral("In three"), test::at(2026, 11, 28, 9, 0), ID_3_DAYS);
        item(QStringLiteral("In four"), test::at(2026, 11, 29, 9, 0), ID_3_DAYS);
        // The form stores the menu's row for "10 days", which the lists know nothing of.
        item(QStringLiteral("Row eight"), test::at(2026, 11, 27, 9, 0), 8);
        ReminderInfo* doneYesterday =
            item(QStringLiteral("Done yesterday"), test::at(2026, 11, 24, 9, 0));
        doneYesterday->setHasFinished(true);
        ReminderInfo* doneToday = item(QStringLiteral("Done today"), test::at(2026, 11, 25, 8, 0));
        doneToday->setHasFinished(true);
        item(QStringLiteral("Anytime"), std::nullopt);

        QCOMPARE(titles({}), (QStringList{QStringLiteral("Overdue"), QStringLiteral("In three"),
                                          QStringLiteral("Done today")}));
        QCOMPARE(timeText(yesterday),
                 QStringLiteral("Overdue by 1 day at ") + at(*yesterday->dtReminder()));
        QVERIFY(RowValues::makeRow(yesterday, app(), true).dueOrOverdue);
        QCOMPARE(timeText(inThree), QStringLiteral("In 3 days at ") + at(*inThree->dtReminder()));
        QCOMPARE(titles({QStringLiteral("Anytime"), nullptr, false}),
                 QStringList{QStringLiteral("Anytime")});
    }

    void dueTodayTellsHowLate()
    {
        ReminderInfo* late = item(QStringLiteral("Late"), test::at(2026, 11, 25, 10, 30));
        QCOMPARE(timeText(late),
                 QStringLiteral("Due from 1 hr 30 min at ") + at(*late->dtReminder()));
        ReminderInfo* hour = item(QStringLiteral("Hour"), test::at(2026, 11, 25, 11, 0));
        // Whole hours leave the minutes out and keep the blank behind " hr ".
        QCOMPARE(timeText(hour), QStringLiteral("Due from 1 hr  at ") + at(*hour->dtReminder()));
        ReminderInfo* soon = item(QStringLiteral("Soon"), test::at(2026, 11, 25, 12, 5));
        QCOMPARE(timeText(soon), at(*soon->dtReminder()));
        QVERIFY(!RowValues::makeRow(soon, app(), true).dueOrOverdue);
        soon->setDurationHr(1);
        soon->setDurationMin(5);
        const LulletRow row = RowValues::makeRow(soon, app(), true);
        QCOMPARE(row.duration, QStringLiteral("01:05m"));
        QCOMPARE(row.projectName, QStringLiteral("Lullet"));
        soon->setHasFinished(true);
        soon->setElapsedTime(3725);
        QCOMPARE(RowValues::makeRow(soon, app(), true).timeUsed, QStringLiteral("01:02:05"));
    }

    void statisticsNeverPassAHundredPercent()
    {
        ReminderInfo* todo = item(QStringLiteral("Water"), test::at(2026, 11, 25, 9, 0));
        todo->setRepeatOption(RepeatOptionsToDo::TODO_VAL);
        todo->setHasFinished(true);
        ReminderInfo* done = item(QStringLiteral("Done"), test::at(2026, 11, 25, 9, 0));
        done->setDurationMin(10);
        done->setTimeLimit(600);
        done->setElapsedTime(1500);
        done->setHasFinished(true);
        ReminderInfo* running = item(QStringLiteral("Running"), test::at(2026, 11, 24, 9, 0));
        running->setHasStarted(true);
        running->setTimeLimit(1800);
        running->setElapsedTime(300);
        std::vector<LulletRow> rows;
        for (ReminderInfo* r : {todo, done, running})
            rows.push_back(RowValues::makeRow(r, app(), true));
        const TaskStats s = TaskStats::getTaskStats(rows, app());
        QCOMPARE(s.totalCount, 3);
        QCOMPARE(s.completedCount, 2);
        QCOMPARE(s.timeCompleted, 1500);
        QCOMPARE(s.countInToday, 1);
        // Running time counts as today's, whatever the running item's date.
        QCOMPARE(s.timeCompletedToday, 1800);
        QCOMPARE(s.timeCompletedRunning, 1800);
        // 600 planned for the finished one (capped at what it used) and 1800 for the running one.
        QCOMPARE(s.totalTimeAllotted, 2400);

        done->setTimeLimit(0);
        done->setDurationMin(0);
        rows[1] = RowValues::makeRow(done, app(), true);
        running->setTimeLimit(100);
        running->setElapsedTime(5000);
        const TaskStats capped = TaskStats::getTaskStats(rows, app());
        QVERIFY(capped.totalTimeAllotted >= capped.timeCompletedRunning);
        QCOMPARE(capped.totalTimeAllotted, 6500);
    }

    void startStopAndTheItemAlreadyRunning()
    {
        ReminderInfo* first = item(QStringLiteral("First"), test::at(2026, 11, 23, 9, 0));
        first->setDurationMin(20);
        QCOMPARE(ListActions::start(app(), *first), ListActions::StartResult::Started);
        QCOMPARE(app().objReminderRunningNow, first);
        QCOMPARE(*first->timeLimit(), 1200);
        QCOMPARE(*first->dtReminderPostponed(), test::at(2026, 11, 23, 12, 0));

        ReminderInfo* second = item(QStringLiteral("Second"), std::nullopt);
        QCOMPARE(ListActions::start(app(), *second), ListActions::StartResult::AnotherIsRunning);
        QVERIFY(!second->hasStarted().value_or(false));
        ListActions::confirmStart(app(), *second);
        QVERIFY(*first->hasFinished());
        QCOMPARE(app().objReminderRunningNow, second);
        QCOMPARE(*second->dtReminderPostponed(), test::at(2026, 11, 25, 12, 0));

        // Stopping is finishing, and then the question of what now may come.
        ListActions::finish(app(), *second);
        QVERIFY(*second->hasFinished() && !*second->hasStarted());
        QVERIFY(!app().objReminderRunningNow);
        QCoreApplication::processEvents();
        QCOMPARE(m_app->host.promptKinds(), QStringList{QStringLiteral("idle")});
    }

    void aToDoStartIsDoneWithItsNext()
    {
        RepeatReminderInfo* rule = app().managedObjectContext().insertRepeatReminderInfo();
        rule->setUniqueId(QStringLiteral("Water_1"));
        rule->setTitle(QStringLiteral("Water"));
        rule->setDtReminder(test::at(2026, 11, 25, 9, 0));
        rule->setRepeatIntervalType(ID_REPEAT_HOUR);
        rule->setRepeatInterval(1);
        rule->setIsCustom(true);
        rule->setIsActive(true);
        app().generator().addRepeatObject(rule);
        ReminderInfo* occurrence = app().mArrAllLullets.front();
        QCOMPARE(*occurrence->dtReminder(), test::at(2026, 11, 25, 12, 0));
        m_app->clock.advance(30);
        QCOMPARE(ListActions::start(app(), *occurrence), ListActions::StartResult::ToDoDone);
        QVERIFY(*occurrence->hasFinished());
        QVERIFY(!app().objReminderRunningNow);
        QCOMPARE(*app().mArrAllLullets.front()->dtReminder(), test::at(2026, 11, 25, 13, 0));
    }

    void aProjectListsItsItemsByDay()
    {
        Project* home = app().managedObjectContext().insertProject();
        home->setName(QStringLiteral("Home"));
        item(QStringLiteral("Later"), test::at(2026, 11, 27, 9, 0))->setToProject(home);
        ReminderInfo* done = item(QStringLiteral("Done"), test::at(2026, 11, 25, 8, 0));
        done->setToProject(home);
        done->setHasFinished(true);
        item(QStringLiteral("Soon"), test::at(2026, 11, 25, 15, 0))->setToProject(home);
        item(QStringLiteral("Whenever"), std::nullopt)->setToProject(home);
        item(QStringLiteral("Elsewhere"), test::at(2026, 11, 25, 9, 0));
        const LulletListBuilder::Scope scope{QStringLiteral("Project"), home, false};
        const std::vector<LulletRow> rows = LulletListBuilder::groupByDay(
            LulletListBuilder::prepareLulletListArray(scope, app()), app(), false);
        QStringList shown;
        for (const LulletRow& row : rows)
            shown << (row.type == LulletRow::DayHeading ? QStringLiteral("# ") : QString()) +
                         row.title;
        QCOMPARE(shown, (QStringList{QStringLiteral("# Wed 25, Nov 2026"), QStringLiteral("Done"),
                                     QStringLiteral("Soon"), QStringLiteral("# Fri 27, Nov 2026"),
                                     QStringLiteral("Later"), QStringLiteral("# AnyTime"),
                                     QStringLiteral("Whenever")}));
    }

    void upcomingAndCompletedByDay()
    {
        item(QStringLiteral("Past open"), test::at(2026, 11, 25, 9, 0));
        item(QStringLiteral("Tomorrow early"), test::at(2026, 11, 26, 8, 0));
        item(QStringLiteral("Tomorrow late"), test::at(2026, 11, 26, 17, 0));
        item(QStringLiteral("Later"), test::at(2026, 11, 30, 9, 0));
        item(QStringLiteral("No date"), std::nullopt);
        for (const auto& [title, due, used] :
             {std::tuple{"Done a", test::at(2026, 11, 24, 9, 0), 600},
              std::tuple{"Done b", test::at(2026, 11, 24, 15, 0), 900},
              std::tuple{"Done c", test::at(2026, 11, 24, 11, 0), 300},
              std::tuple{"Done d", test::at(2026, 11, 25, 8, 0), 60}}) {
            ReminderInfo* r = item(QString::fromLatin1(title), due);
            r->setHasFinished(true);
            r->setElapsedTime(used);
        }
        const auto shown = [this](const QString& segment) {
            QStringList list;
            for (const LulletRow& row : LulletListBuilder::customListing(segment, app()))
                list << (row.type == LulletRow::DayHeading ? QStringLiteral("# %1 %2 %3")
                                                                 .arg(row.title)
                                                                 .arg(row.countOnDay)
                                                                 .arg(row.timeUsed)
                                                           : row.title);
            return list;
        };
        // The nearest day first, the later first within a day; nothing past or undated.
        QCOMPARE(shown(QStringLiteral("Upcoming")),
                 (QStringList{QStringLiteral("# Thu 26, Nov 2026 2 00:00:00"),
                              QStringLiteral("Tomorrow late"), QStringLiteral("Tomorrow early"),
                              QStringLiteral("# Mon 30, Nov 2026 1 00:00:00"),
                              QStringLiteral("Later")}));
        QCOMPARE(
            shown(QStringLiteral("Completed")),
            (QStringList{QStringLiteral("# Wed 25, Nov 2026 1 00:01:00"), QStringLiteral("Done d"),
                         QStringLiteral("# Tue 24, Nov 2026 3 00:30:00"), QStringLiteral("Done b"),
                         QStringLiteral("Done c"), QStringLiteral("Done a")}));
        const auto byDay = LulletListBuilder::timeUsedByDay(
            LulletListBuilder::customListing(QStringLiteral("Completed"), app()));
        QCOMPARE(byDay.size(), std::size_t(2));
        QCOMPARE(byDay[0].second, 1800);
    }

    void deleteMoveAndDuplicate()
    {
        Project* home = app().managedObjectContext().insertProject();
        home->setName(QStringLiteral("Home"));
        Project* work = app().managedObjectContext().insertProject();
        work->setName(QStringLiteral("Work"));
        app().addProjectObject(home);
        app().addProjectObject(work);
        ReminderInfo* task = item(QStringLiteral("Paint"), test::at(2026, 11, 26, 9, 0));
        task->setDurationMin(40);
        task->setToProject(home);
        QCOMPARE(ListActions::getProjectsName(app(), home), QStringList{QStringLiteral("Work")});

        ListActions::moveToProject(app(), *task, QStringLiteral("Work"), false);
        QCOMPARE(task->toProject(), work);
        ListActions::moveToProject(app(), *task, QString(), true);
        QVERIFY(!task->toProject());

        ReminderInfo* copy =
            ListActions::duplicateToProject(app(), *task, QStringLiteral("Home"), false);
        QCOMPARE(*copy->title(), QStringLiteral("Paint"));
        QCOMPARE(*copy->durationMin(), 40);
        QVERIFY(!copy->dtReminder());
        QCOMPARE(copy->toProject(), home);

        int preRemoved = 0;
        QObject listener;
        m_app->center.addObserver(&listener, notification::preRemoveInOther,
                                  [&](const QVariant&) { ++preRemoved; });
        ListActions::deleteItem(app(), *task);
        QCOMPARE(preRemoved, 1);
        QVERIFY(!task->hasContext());
        QCOMPARE(app().mArrAllLullets, std::vector<ReminderInfo*>{copy});
        QVERIFY(!app().managedObjectContext().hasChanges());
    }
};

LULLET_TEST_MAIN(TestLists)
#include "tst_lists.moc"
