// A store of months: the history stays on disk at launch, and every list and count must read
// as it would with every item in memory.
#include "core/presentation/DashboardSummary.h"
#include "core/presentation/HistoryTotals.h"
#include "core/presentation/ListBuilder.h"
#include "core/presentation/ListLines.h"
#include "core/presentation/ListTexts.h"
#include "core/presentation/Sidebar.h"
#include "core/reports/Report.h"
#include "core/store/Db.h"
#include "support/LaunchedTest.h"

#include <QSet>

using namespace lullet;
using namespace lullet::test;

namespace {

// What the sidebar shows: segment counts, then each project's count and progress.
struct SidebarNumbers {
    QList<int> counts;
    QList<double> progress;
    bool operator==(const SidebarNumbers&) const = default;
};

} // namespace

// Each test function starts from a launch at now() over the store that makeStore() made.
class TestHistory : public LaunchedTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 10, 1, 12, 0); }
    static Date now() { return at(2026, 11, 25, 12, 0); }

    Sidebar sidebar()
    {
        const Services& s = services();
        return Sidebar(s.clock, s.library, s.catalogue, s.running, s.history);
    }

    SidebarNumbers sidebarNumbers()
    {
        const Sidebar bar = sidebar();
        SidebarNumbers numbers;
        const Sidebar::Counts c = bar.counts();
        numbers.counts = {c.today, c.upcoming, c.anytime, c.completed};
        for (const SidebarRow& row : bar.rows()) {
            if (row.project) {
                numbers.counts << row.count.value_or(-1);
                numbers.progress << row.progress.value_or(-1);
            }
        }
        return numbers;
    }

    Project* project(const QString& name) { return library().projectNamed(name); }

    // The titles of a list's items, the history's among them, as the list shows them.
    QStringList lineTitles(const ListBuilder::Scope& scope)
    {
        const Services& s = services();
        ListLines lines(s.clock, s.library, s.history, s.running);
        lines.build(scope);
        QStringList list;
        for (const ListRow& row :
             ListTexts(lines, s.library, s.clock, RowTexts::ProjectName::None).allRows()) {
            if (row.type == ListRow::ItemRow)
                list << row.title;
        }
        return list;
    }

    // The garden's history, read into memory one by one as a user acting on it would.
    std::vector<Item*> gardenHistory()
    {
        const Services& s = services();
        ListLines lines(s.clock, s.library, s.history, s.running);
        lines.build({Segment::Project, project(QStringLiteral("Garden")), false});
        std::vector<Item*> read;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (!lines.at(i).isHeading() && !lines.at(i).item())
                read.push_back(lines.itemAt(i));
        }
        return read;
    }

    // What a search finds, as the sidebar lists it: each row's name, and where it is read from.
    QStringList found(Sidebar& bar, const QString& text)
    {
        QStringList list;
        for (const SidebarRow& row : bar.search(text, bar.rows()))
            list << QStringLiteral("%1 %2 %3").arg(row.name).arg(row.rowId).arg(bool(row.item));
        return list;
    }

    Item* finished(const QString& title, Date when, Project* in, int elapsed)
    {
        Item* item = app().addItem(title, when);
        item->setToProject(in);
        item->setHasFinished(true);
        item->setElapsedTime(elapsed);
        return item;
    }

    // Two projects with months of finished work, loose history, and the items that stay in
    // memory whatever their age: open, undated, started, or finished lately.
    void makeStore()
    {
        Project* garden = app().addProject(QStringLiteral("Garden"));
        Project* kitchen = app().addProject(QStringLiteral("Kitchen"));
        for (int i = 0; i < 30; ++i) {
            Item* item = finished(QStringLiteral("Weed %1").arg(i), at(2026, 9, 1 + i, 9, 0),
                                  garden, 600 + 60 * i);
            item->setDurationMin(i % 3 == 0 ? 0 : 20);
            item->setTimeLimit(i % 5 == 0 ? 900 : 0);
            if (i % 7 == 0)
                item->setRepeatOption(RepeatEnd::toDoMarker);
        }
        for (int i = 0; i < 5; ++i)
            finished(QStringLiteral("Bake %1").arg(i), at(2026, 9, 10 + i, 15, 0), kitchen, 1200);
        for (int i = 0; i < 20; ++i)
            finished(QStringLiteral("Loose %1").arg(i), at(2026, 8, 1 + i, 8, 0), nullptr, 300);
        // Open and planned: the project's progress is short of whole by its hour.
        Item* plan = app().addItem(QStringLiteral("Plan beds"), std::nullopt);
        plan->setToProject(garden);
        plan->setDurationHr(1);
        finished(QStringLiteral("Undated done"), at(2026, 9, 2), nullptr, 60)
            ->setDtReminder(std::nullopt);
        finished(QStringLiteral("Still started"), at(2026, 9, 3, 10, 0), garden, 120)
            ->setHasStarted(true);
        // Finished at launch time's recent past: within the last two weeks of the relaunch.
        finished(QStringLiteral("Recent done"), at(2026, 11, 20, 9, 0), kitchen, 400);
        finished(QStringLiteral("Recent two"), at(2026, 11, 21, 9, 0), nullptr, 400);
        app().addItem(QStringLiteral("Overdue"), at(2026, 9, 20, 9, 0));
        QVERIFY(library().save());
    }

private Q_SLOTS:
    void init()
    {
        LaunchedTest::init();
        makeStore();
        relaunch(now());
    }

    void theHistoryStaysOnDiskAndTheCountsStayTheSame()
    {
        QVERIFY(library().holdsHistory());
        QCOMPARE(library().items().size(), std::size_t(6));
        const SidebarNumbers held = sidebarNumbers();
        QCOMPARE(held.counts[3], 59);
        QCOMPARE(held.counts[4], 32);
        // An item read in to be acted on is counted from memory now, not twice.
        const std::vector<Item*> garden = gardenHistory();
        QCOMPARE(garden.size(), std::size_t(30));
        QCOMPARE(library().items().size(), std::size_t(36));
        QCOMPARE(sidebarNumbers(), held);
        QCOMPARE(library().bringIn(garden.front()->rowId()), garden.front());
        QCOMPARE(library().items().size(), std::size_t(36));
    }

    // Completed, a project's list, the "Not in Project" report and search, from the history on
    // disk: the lists are whole, and none of them reads the history into memory.
    void everyListShowsTheHistoryWithoutReadingItIn()
    {
        // Every finished item with a date: all but "Undated done" of the 59 completed.
        const QStringList completed = lineTitles({Segment::Completed, nullptr, false});
        QCOMPARE(completed.size(), 58);
        QCOMPARE(completed.first(), QStringLiteral("Recent two"));
        QCOMPARE(completed.last(), QStringLiteral("Loose 0"));
        QCOMPARE(lineTitles({Segment::Project, project(QStringLiteral("Garden")), false}).size(),
                 32);
        const Services& s = services();
        const Report loose = Report::ofProject(s.library, s.history, nullptr, s.clock, s.running);
        QCOMPARE(loose.stats.totalCount, 23);
        QCOMPARE(loose.stats.completedCount, 22);
        QStringList found;
        for (const SidebarRow& row : sidebar().search(QStringLiteral("loose 1"), {}))
            found << row.name;
        QCOMPARE(found.size(), 11);
        QVERIFY(found.contains(QStringLiteral("Loose 19")));
        QCOMPARE(library().items().size(), std::size_t(6));

        // The totals of the list's head and the dashboard count the history, as they would with
        // it all in memory.
        ListLines lines(s.clock, s.library, s.history, s.running);
        lines.build({Segment::Project, project(QStringLiteral("Garden")), false});
        const TaskStats onDisk = lines.stats();
        const auto dashboard = [&s] {
            const DashboardSummary d = DashboardSummary::of(s.library.items(), s.library.projects(),
                                                            s.history, s.clock, s.running);
            QStringList rows;
            for (const DashboardSummary::ProjectRow& row : d.rows)
                rows << QStringLiteral("%1 %2 %3")
                            .arg(row.title)
                            .arg(row.count)
                            .arg(row.plannedSeconds);
            return std::pair(d.months, rows);
        };
        const auto dashboardOnDisk = dashboard();
        (void)gardenHistory();
        lines.build({Segment::Project, project(QStringLiteral("Garden")), false});
        const TaskStats inMemory = lines.stats();
        QCOMPARE(onDisk.totalCount, inMemory.totalCount);
        QCOMPARE(onDisk.totalTimeAllotted, inMemory.totalTimeAllotted);
        QCOMPARE(onDisk.timeCompletedRunning, inMemory.timeCompletedRunning);
        QCOMPARE(dashboard(), dashboardOnDisk);
        QCOMPARE(dashboardOnDisk.first[8], 37);
    }

    // Typing narrows the last search, which then looks only at what that one found; a deletion,
    // a new term or a change of the history between keystrokes reads the history again. Each
    // keystroke finds what a search of the whole history finds.
    void aSearchTypedFindsWhatAWholeSearchFinds()
    {
        Sidebar typing = sidebar();
        const auto type = [&](const QStringList& texts) {
            for (const QString& text : texts) {
                Sidebar whole = sidebar();
                QCOMPARE(found(typing, text), found(whole, text));
            }
        };
        type({QStringLiteral("w"), QStringLiteral("we"), QStringLiteral("wee"),
              QStringLiteral("Wéed 1"), QStringLiteral("weed"), QStringLiteral("weed,"),
              QStringLiteral("weed, b"), QStringLiteral("weed, ba"),
              QStringLiteral("today, weed 2, ba"), QStringLiteral("weed 2, bake 3"),
              QStringLiteral("weed")});

        // Narrowing reads nothing: a history that can't be read now is not missed.
        QSignalSpy told(&library(), &Library::readFailed);
        QVERIFY(Db(storePath()).exec("ALTER TABLE ReminderInfo RENAME TO Elsewhere"));
        // Garden, holding them, and eleven weedings.
        QCOMPARE(found(typing, QStringLiteral("weed 1")).size(), 12);
        QCOMPARE(told.count(), 0);
        QVERIFY(found(typing, QStringLiteral("weed")).isEmpty());
        QCOMPARE(told.count(), 1);
        QVERIFY(Db(storePath()).exec("ALTER TABLE Elsewhere RENAME TO ReminderInfo"));
        type({QStringLiteral("weed"), QStringLiteral("weed 1")});

        // Items read into memory are listed from there, once; a project deleted with its history
        // takes that history out of the next keystroke's results.
        (void)gardenHistory();
        type({QStringLiteral("weed 12"), QStringLiteral("b")});
        services().projectActions.deleteProject(*project(QStringLiteral("Kitchen")));
        type({QStringLiteral("ba"), QStringLiteral("bake 3")});
    }

    void editsAndDeletionsAreNeverListedTwice()
    {
        // Saved as history, and one of them deleted and not yet saved: neither may come back
        // from the disk as a second row.
        Item* kept = nullptr;
        Item* gone = nullptr;
        for (Item* item : library().items()) {
            if (item->title() == QStringLiteral("Recent done"))
                kept = item;
            if (item->title() == QStringLiteral("Recent two"))
                gone = item;
        }
        QVERIFY(kept && gone);
        kept->setDtReminder(at(2026, 9, 1, 9, 0));
        gone->setDtReminder(at(2026, 9, 1, 9, 0));
        QVERIFY(library().save());
        library().deleteItem(gone);
        const QStringList completed = lineTitles({Segment::Completed, nullptr, false});
        QCOMPARE(completed.count(QStringLiteral("Recent done")), 1);
        QVERIFY(!completed.contains(QStringLiteral("Recent two")));
        QVERIFY(library().save());

        // A project deleted takes its history on disk along.
        relaunch(now());
        services().projectActions.deleteProject(*project(QStringLiteral("Kitchen")));
        relaunch(now());
        const QStringList left = lineTitles({Segment::Completed, nullptr, false});
        QVERIFY(!left.contains(QStringLiteral("Bake 2")));
        QCOMPARE(left.size(), 51);
    }

    void aProjectCopiedTakesItsHistory()
    {
        Project* copy =
            services().projectActions.duplicateAsNew(*project(QStringLiteral("Kitchen")));
        QCOMPARE(copy->toReminders().size(), std::size_t(6));
    }

    void aHistoryThatCannotBeReadIsToldOnceAndReadLater()
    {
        QSignalSpy told(&library(), &Library::readFailed);
        QVERIFY(Db(storePath()).exec("ALTER TABLE ReminderInfo RENAME TO Elsewhere"));
        QVERIFY(lineTitles({Segment::Completed, nullptr, false}).size() < 58);
        (void)sidebar().counts();
        QCOMPARE(told.count(), 1);
        QVERIFY(Db(storePath()).exec("ALTER TABLE Elsewhere RENAME TO ReminderInfo"));
        QCOMPARE(lineTitles({Segment::Completed, nullptr, false}).size(), 58);
    }

    void valuesReadOtherwiseKeepTheirItemInMemory()
    {
        {
            Db db(storePath());
            QVERIFY(db.exec("INSERT INTO ReminderInfo (title, hasFinished, dtReminder) "
                            "VALUES ('Text flag', 'yes', 0)"));
            QVERIFY(db.exec("INSERT INTO ReminderInfo (title, hasFinished, dtReminder, "
                            "dtReminderPostponed) VALUES ('Far date', 1, 0, 1e300)"));
        }
        relaunch(now());
        const QStringList held = titlesOf(library().items());
        // One reads as unfinished, the other as finished in 1970 by its plain date: the store's
        // query takes neither for history, so both are read at the launch, and listed once.
        QVERIFY(held.contains(QStringLiteral("Text flag")));
        QVERIFY(held.contains(QStringLiteral("Far date")));
        QCOMPARE(lineTitles({Segment::Completed, nullptr, false}).count(QStringLiteral("Far date")),
                 1);
    }
};

LULLET_TEST_MAIN(TestHistory)
#include "tst_history.moc"
