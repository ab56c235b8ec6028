#include "core/presentation/Sidebar.h"
#include "support/LaunchedTest.h"

using namespace lullet;
using namespace lullet::test;

class TestSidebar : public LaunchedTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 25, 12, 0); }

    ProjectActions& projects() { return services().projectActions; }
    Sidebar sidebar()
    {
        const Services& s = services();
        return Sidebar(s.clock, s.library, s.catalogue, s.running, s.history);
    }

    Item* item(const QString& title, std::optional<Date> due, Project* project = nullptr)
    {
        Item* r = app().addItem(title, due);
        r->setRemindBefore(0);
        r->setToProject(project);
        return r;
    }

    static std::optional<int> count(const std::vector<SidebarRow>& rows, const QString& name)
    {
        for (const SidebarRow& row : rows) {
            if (row.name == name)
                return row.count;
        }
        return std::nullopt;
    }

private Q_SLOTS:
    void theSidebarCounts()
    {
        Project* home = app().addProject(QStringLiteral("Home"));
        item(QStringLiteral("Walk the dog"), at(2026, 11, 25, 18, 0));
        item(QStringLiteral("Overdue"), at(2026, 11, 24, 9, 0));
        item(QStringLiteral("Next week"), at(2026, 12, 2, 9, 0), home);
        item(QStringLiteral("Someday"), std::nullopt, home);
        Item* done = item(QStringLiteral("Done"), at(2026, 11, 25, 8, 0));
        done->setHasFinished(true);

        const std::vector<SidebarRow> rows = sidebar().rows();
        QCOMPARE(rows.size(), std::size_t(8));
        QCOMPARE(rows[6].type, int(SidebarRow::Separator));
        QCOMPARE(rows[7].project, home);
        QVERIFY(!count(rows, QStringLiteral("Dashboard")));
        QCOMPARE(count(rows, QStringLiteral("Lullets")), std::optional<int>(16));
        QCOMPARE(count(rows, QStringLiteral("Today")), std::optional<int>(3));
        QCOMPARE(count(rows, QStringLiteral("Upcoming")), std::optional<int>(2));
        QCOMPARE(count(rows, QStringLiteral("Anytime")), std::optional<int>(1));
        QCOMPARE(count(rows, QStringLiteral("Completed")), std::optional<int>(1));
        QCOMPARE(count(rows, QStringLiteral("Home")), std::optional<int>(2));
        QCOMPARE(rows[7].progress, std::optional<double>(0.0));
        Item* half = item(QStringLiteral("Half"), at(2026, 11, 25, 8, 0), home);
        half->setDurationMin(20);
        half->setHasFinished(true);
        half->setElapsedTime(600);
        item(QStringLiteral("Planned"), at(2026, 11, 26, 8, 0), home)->setDurationMin(10);
        QCOMPARE(sidebar().projectProgress(*home), 0.5);
    }

    void aSearchForTodayAndWalk()
    {
        Project* errands = app().addProject(QStringLiteral("Errands"));
        item(QStringLiteral("Water the plants"), at(2026, 11, 25, 18, 0));
        item(QStringLiteral("Wälk to the park"), at(2026, 11, 28, 9, 0));
        item(QStringLiteral("Buy stamps"), at(2026, 11, 27, 9, 0), errands);
        item(QStringLiteral("Long walk"), std::nullopt, errands);
        const std::vector<SidebarRow> found =
            sidebar().search(QStringLiteral(" today , walk,, "), sidebar().rows());
        QStringList names;
        for (const SidebarRow& row : found)
            names << row.name;
        // The "Today" segment, the project holding a walk, today's item and both walks.
        QCOMPARE(names,
                 (QStringList{QStringLiteral("Today"), QStringLiteral("Errands"),
                              QStringLiteral("Water the plants"),
                              QStringLiteral("Wälk to the park"), QStringLiteral("Long walk")}));
    }

    void aSearchResultLeadsToItsList()
    {
        const auto segmentOf = [this](const Item* item) {
            return Sidebar::segmentFor(*item, clock().now());
        };
        Project* home = library().newProject();
        QCOMPARE(segmentOf(item(QStringLiteral("In project"), std::nullopt, home)),
                 Segment::Project);
        Item* done = item(QStringLiteral("Done"), at(2026, 11, 20));
        done->setHasFinished(true);
        QCOMPARE(segmentOf(done), Segment::Completed);
        QCOMPARE(segmentOf(item(QStringLiteral("No date"), std::nullopt)), Segment::Anytime);
        QCOMPARE(segmentOf(item(QStringLiteral("Late"), at(2026, 11, 1))), Segment::Today);
        QCOMPARE(segmentOf(item(QStringLiteral("Later"), at(2026, 11, 27))), Segment::Upcoming);
    }

    void projectsAreNamedDeletedAndDuplicated()
    {
        QCOMPARE(projects().addProject(QStringLiteral("  ")).refusal,
                 QStringLiteral("Name is blank\nPlease set a name"));
        Project* home = projects().addProject(QStringLiteral(" home ")).project;
        QVERIFY(home);
        QCOMPARE(*home->name(), QStringLiteral("Home"));
        QCOMPARE(projects().addProject(QStringLiteral("home")).refusal,
                 QStringLiteral("Project alreday exists\nPlease enter different name"));
        Project* work = projects().addProject(QStringLiteral("work")).project;
        QVERIFY(!projects().renameProject(*work, QStringLiteral("home")));
        QVERIFY(!projects().renameProject(*work, QStringLiteral("  ")));
        QVERIFY(projects().renameProject(*work, QStringLiteral("Another job")));
        QCOMPARE(library().projects().front(), work);

        Item* paint = item(QStringLiteral("Paint"), at(2026, 11, 26, 9, 0), home);
        paint->setDurationMin(30);
        paint->setHasFinished(true);
        Project* copy = projects().duplicateAsNew(*home);
        QCOMPARE(*copy->name(), QStringLiteral("Home Copy"));
        QCOMPARE(*copy->uniqueId(), QStringLiteral("<to make>"));
        QCOMPARE(copy->toReminders().size(), std::size_t(1));
        const Item* twin = copy->toReminders().front();
        QCOMPARE(*twin->durationMin(), 30);
        QVERIFY(!twin->dtReminder() && !twin->hasFinished().value_or(false));
        QCOMPARE(*projects().duplicateAsNew(*home)->name(), QStringLiteral("Home Copy"));

        QVERIFY(ProjectActions::deleteAsks(*home));
        QVERIFY(!ProjectActions::deleteAsks(*work));
        QSignalSpy removed(&library(), &Library::projectRemoved);
        projects().deleteProject(*home);
        QVERIFY(!paint->hasContext());
        QCOMPARE(removed.count(), 1);
        QCOMPARE(library().projects().size(), std::size_t(3));
        QVERIFY(!app().context().hasChanges());
    }
};

LULLET_TEST_MAIN(TestSidebar)
#include "tst_sidebar.moc"
