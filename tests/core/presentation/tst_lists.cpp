#include "core/presentation/HistoryTotals.h"
#include "core/presentation/ListBuilder.h"
#include "core/presentation/ListLines.h"
#include "core/presentation/ListTexts.h"
#include "core/presentation/RowTexts.h"
#include "core/presentation/RunningStatus.h"
#include "core/presentation/TaskStats.h"
#include "support/LaunchedTest.h"

#include <tuple>

using namespace lullet;
using namespace lullet::test;

class TestLists : public LaunchedTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 25, 12, 0); }

    ItemActions& actions() { return services().itemActions; }

    Item* item(const QString& title, std::optional<Date> due, int remindBefore = 0)
    {
        Item* r = app().addItem(title, due);
        r->setRemindBefore(remindBefore);
        r->setShouldRemind(true);
        return r;
    }

    QStringList titles(const ListBuilder::Scope& scope)
    {
        return titlesOf(ListBuilder::itemsFor(scope, library(), clock().now()));
    }

    QString timeText(Item* r)
    {
        return RowTexts::makeRow(r, clock(), RowTexts::ProjectName::InList).time;
    }

    // A list's rows as it shows them: "# " and the heading's texts, or the item's title.
    QStringList shown(const ListBuilder::Scope& scope)
    {
        const Services& s = services();
        ListLines lines(s.clock, s.library, s.history, s.running);
        lines.build(scope);
        QStringList list;
        for (const ListRow& row :
             ListTexts(lines, s.library, s.clock, RowTexts::ProjectName::None).allRows()) {
            if (row.type != ListRow::DayHeading)
                list << row.title;
            else if (lines.headingsCounted())
                list << QStringLiteral("# %1 %2 %3")
                            .arg(row.title)
                            .arg(row.countOnDay)
                            .arg(row.timeUsed);
            else
                list << QStringLiteral("# ") + row.title;
        }
        return list;
    }
    static QString timeOf(Date d) { return d.toString(DateStyle::None, DateStyle::Short); }

private Q_SLOTS:
    void todayHoldsTheOverdueAndWhatIsWithinItsWindowAndTellsWhen()
    {
        Item* yesterday = item(QStringLiteral("Overdue"), at(2026, 11, 24, 9, 0));
        Item* inThree = item(QStringLiteral("In three"), at(2026, 11, 28, 9, 0), 3);
        item(QStringLiteral("In four"), at(2026, 11, 29, 9, 0), 3);
        // The form stores the menu's row for "10 days", which the lists know nothing of.
        item(QStringLiteral("Row eight"), at(2026, 11, 27, 9, 0), 8);
        Item* doneYesterday = item(QStringLiteral("Done yesterday"), at(2026, 11, 24, 9, 0));
        doneYesterday->setHasFinished(true);
        Item* doneToday = item(QStringLiteral("Done today"), at(2026, 11, 25, 8, 0));
        doneToday->setHasFinished(true);
        item(QStringLiteral("Anytime"), std::nullopt);

        QCOMPARE(titles({}), (QStringList{QStringLiteral("Overdue"), QStringLiteral("In three"),
                                          QStringLiteral("Done today")}));
        QCOMPARE(timeText(yesterday),
                 QStringLiteral("Overdue by 1 day at ") + timeOf(*yesterday->dtReminder()));
        QVERIFY(RowTexts::makeRow(yesterday, clock(), RowTexts::ProjectName::InList).dueOrOverdue);
        QCOMPARE(timeText(inThree),
                 QStringLiteral("In 3 days at ") + timeOf(*inThree->dtReminder()));
        QCOMPARE(titles({Segment::Anytime, nullptr, false}),
                 QStringList{QStringLiteral("Anytime")});

        // Due today: how late, or the time alone.
        Item* late = item(QStringLiteral("Late"), at(2026, 11, 25, 10, 30));
        QCOMPARE(timeText(late),
                 QStringLiteral("Due from 1 hr 30 min at ") + timeOf(*late->dtReminder()));
        Item* hour = item(QStringLiteral("Hour"), at(2026, 11, 25, 11, 0));
        // Whole hours leave the minutes out and keep the blank behind " hr ".
        QCOMPARE(timeText(hour),
                 QStringLiteral("Due from 1 hr  at ") + timeOf(*hour->dtReminder()));
        Item* soon = item(QStringLiteral("Soon"), at(2026, 11, 25, 12, 5));
        QCOMPARE(timeText(soon), timeOf(*soon->dtReminder()));
        QVERIFY(!RowTexts::makeRow(soon, clock(), RowTexts::ProjectName::InList).dueOrOverdue);
        soon->setDurationHr(1);
        soon->setDurationMin(5);
        const ListRow row = RowTexts::makeRow(soon, clock(), RowTexts::ProjectName::InList);
        QCOMPARE(row.duration, QStringLiteral("01:05m"));
        QCOMPARE(row.projectName, QStringLiteral("Lullet"));
        soon->setHasFinished(true);
        soon->setElapsedTime(3725);
        QCOMPARE(RowTexts::makeRow(soon, clock(), RowTexts::ProjectName::InList).timeUsed,
                 QStringLiteral("01:02:05"));
    }

    void statisticsNeverPassAHundredPercent()
    {
        Item* todo = item(QStringLiteral("Water"), at(2026, 11, 25, 9, 0));
        todo->setRepeatOption(RepeatEnd::toDoMarker);
        todo->setHasFinished(true);
        Item* done = item(QStringLiteral("Done"), at(2026, 11, 25, 9, 0));
        done->setDurationMin(10);
        done->setTimeLimit(600);
        done->setElapsedTime(1500);
        done->setHasFinished(true);
        Item* running = item(QStringLiteral("Running"), at(2026, 11, 24, 9, 0));
        running->setHasStarted(true);
        running->setTimeLimit(1800);
        running->setElapsedTime(300);
        const std::vector<Item*> items = {todo, done, running};
        const TaskStats s = TaskStats::of(items, clock(), app().running());
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
        running->setTimeLimit(100);
        running->setElapsedTime(5000);
        const TaskStats capped = TaskStats::of(items, clock(), app().running());
        QVERIFY(capped.totalTimeAllotted >= capped.timeCompletedRunning);
        QCOMPARE(capped.totalTimeAllotted, 6500);
    }

    void startStopAndTheItemAlreadyRunning()
    {
        Item* first = item(QStringLiteral("First"), at(2026, 11, 23, 9, 0));
        first->setDurationMin(20);
        QCOMPARE(actions().start(*first), ItemActions::StartResult::Started);
        QCOMPARE(app().running().item(), first);
        QCOMPARE(*first->timeLimit(), 1200);
        QCOMPARE(*first->dtReminderPostponed(), at(2026, 11, 23, 12, 0));

        Item* second = item(QStringLiteral("Second"), std::nullopt);
        QCOMPARE(actions().start(*second), ItemActions::StartResult::AnotherIsRunning);
        QVERIFY(!second->hasStarted().value_or(false));
        actions().confirmStart(*second);
        QVERIFY(*first->hasFinished());
        QCOMPARE(app().running().item(), second);
        QCOMPARE(*second->dtReminderPostponed(), at(2026, 11, 25, 12, 0));

        // Stopping is finishing, and then the question of what now may come.
        QVERIFY(actions().finish(*second));
        QVERIFY(*second->hasFinished() && !*second->hasStarted());
        QVERIFY(!app().running().item());

        // A to-do's start is its confirmation, and makes its next occurrence.
        services().catalogue.registerRule(
            app().addRule(QStringLiteral("Water"), RepeatUnit::Hour, 1, at(2026, 11, 25, 9, 0)));
        Item* occurrence = library().items().front();
        QCOMPARE(*occurrence->dtReminder(), at(2026, 11, 25, 12, 0));
        clock().advance(30);
        QCOMPARE(actions().start(*occurrence), ItemActions::StartResult::ToDoDone);
        QVERIFY(*occurrence->hasFinished());
        QVERIFY(!app().running().item());
        QCOMPARE(*library().items().front()->dtReminder(), at(2026, 11, 25, 13, 0));
    }

    void aProjectListsItsItemsByDay()
    {
        Project* home = app().addProject(QStringLiteral("Home"));
        item(QStringLiteral("Later"), at(2026, 11, 27, 9, 0))->setToProject(home);
        Item* done = item(QStringLiteral("Done"), at(2026, 11, 25, 8, 0));
        done->setToProject(home);
        done->setHasFinished(true);
        item(QStringLiteral("Soon"), at(2026, 11, 25, 15, 0))->setToProject(home);
        item(QStringLiteral("Whenever"), std::nullopt)->setToProject(home);
        item(QStringLiteral("Elsewhere"), at(2026, 11, 25, 9, 0));
        QCOMPARE(shown({Segment::Project, home, false}),
                 (QStringList{QStringLiteral("# Wed 25, Nov 2026"), QStringLiteral("Done"),
                              QStringLiteral("Soon"), QStringLiteral("# Fri 27, Nov 2026"),
                              QStringLiteral("Later"), QStringLiteral("# Anytime"),
                              QStringLiteral("Whenever")}));
    }

    void upcomingAndCompletedByDay()
    {
        item(QStringLiteral("Past open"), at(2026, 11, 25, 9, 0));
        item(QStringLiteral("Tomorrow early"), at(2026, 11, 26, 8, 0));
        item(QStringLiteral("Tomorrow late"), at(2026, 11, 26, 17, 0));
        item(QStringLiteral("Later"), at(2026, 11, 30, 9, 0));
        item(QStringLiteral("No date"), std::nullopt);
        for (const auto& [title, due, used] : {std::tuple{"Done a", at(2026, 11, 24, 9, 0), 600},
                                               std::tuple{"Done b", at(2026, 11, 24, 15, 0), 900},
                                               std::tuple{"Done c", at(2026, 11, 24, 11, 0), 300},
                                               std::tuple{"Done d", at(2026, 11, 25, 8, 0), 60}}) {
            Item* r = item(QString::fromLatin1(title), due);
            r->setHasFinished(true);
            r->setElapsedTime(used);
        }
        // The nearest day first, the later first within a day; nothing past or undated.
        QCOMPARE(shown({Segment::Upcoming, nullptr, false}),
                 (QStringList{QStringLiteral("# Thu 26, Nov 2026 2 00:00:00"),
                              QStringLiteral("Tomorrow late"), QStringLiteral("Tomorrow early"),
                              QStringLiteral("# Mon 30, Nov 2026 1 00:00:00"),
                              QStringLiteral("Later")}));
        QCOMPARE(
            shown({Segment::Completed, nullptr, false}),
            (QStringList{QStringLiteral("# Wed 25, Nov 2026 1 00:01:00"), QStringLiteral("Done d"),
                         QStringLiteral("# Tue 24, Nov 2026 3 00:30:00"), QStringLiteral("Done b"),
                         QStringLiteral("Done c"), QStringLiteral("Done a")}));
        const Services& s = services();
        ListLines completed(s.clock, s.library, s.history, s.running);
        completed.build({Segment::Completed, nullptr, false});
        const auto byDay = completed.usedByDay();
        QCOMPARE(byDay.size(), std::size_t(2));
        QCOMPARE(byDay[0].second, 1800);
    }

    void deleteMoveAndDuplicate()
    {
        Project* home = app().addProject(QStringLiteral("Home"));
        Project* work = app().addProject(QStringLiteral("Work"));
        Item* task = item(QStringLiteral("Paint"), at(2026, 11, 26, 9, 0));
        task->setDurationMin(40);
        task->setToProject(home);
        QCOMPARE(actions().otherProjects(*task), std::vector<Project*>{work});

        actions().moveToProject(*task, work);
        QCOMPARE(task->toProject(), work);
        actions().moveToProject(*task, nullptr);
        QVERIFY(!task->toProject());

        Item* copy = actions().duplicateToProject(*task, home);
        QCOMPARE(*copy->title(), QStringLiteral("Paint"));
        QCOMPARE(*copy->durationMin(), 40);
        QVERIFY(!copy->dtReminder());
        QCOMPARE(copy->toProject(), home);

        QSignalSpy removed(&library(), &Library::itemRemoved);
        actions().deleteItem(*task);
        QCOMPARE(removed.count(), 1);
        QVERIFY(!task->hasContext());
        QCOMPARE(library().items(), std::vector<Item*>{copy});
        QVERIFY(!app().context().hasChanges());
    }

    // The tray's tooltip: what runs, else the next open item still ahead, else the name alone.
    // Whole minutes, so that the text changes once a minute at most.
    void theTrayTellsWhatRunsOrComesNext()
    {
        const auto tip = [this] {
            return RunningStatus::toolTip(library(), app().running(), clock());
        };
        QCOMPARE(tip(), QStringLiteral("Lullet"));
        item(QStringLiteral("Overdue"), at(2026, 11, 25, 11, 0));
        Item* done = item(QStringLiteral("Done"), at(2026, 11, 25, 12, 30));
        done->setHasFinished(true);
        item(QStringLiteral("Tomorrow"), at(2026, 11, 26, 9, 0));
        library().save();
        QCOMPARE(tip(), QStringLiteral("Next: Tomorrow on ") +
                            at(2026, 11, 26).toString(DateStyle::Medium, DateStyle::None) +
                            QStringLiteral(" at ") + timeOf(at(2026, 11, 26, 9, 0)));
        item(QStringLiteral("Stretch"), at(2026, 11, 25, 12, 40));
        library().save();
        QCOMPARE(tip(), QStringLiteral("Next: Stretch at ") + timeOf(at(2026, 11, 25, 12, 40)));

        Item* walk = item(QStringLiteral("Walk"), at(2026, 11, 25, 12, 0));
        walk->setDurationMin(30);
        app().running().start(*walk);
        app().runUntil(at(2026, 11, 25, 12, 12, 59));
        QCOMPARE(tip(), QStringLiteral("Walk: 12 of 30 min"));
        QCOMPARE(RunningStatus::clockText(*walk), QStringLiteral("Walk  00:12:59 / 00:30:00"));
    }
};

LULLET_TEST_MAIN(TestLists)
#include "tst_lists.moc"
