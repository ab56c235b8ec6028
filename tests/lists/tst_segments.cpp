#include "core/dates/CalendarContext.h"
#include "core/store/ObjectContext.h"
#include "lists/ProjectActions.h"
#include "lists/Segments.h"
#include "support/DatePrinting.h"
#include "support/TestCalendar.h"
#include "support/TestLaunch.h"
#include "support/TestMain.h"

#include <QTemporaryDir>

#include <memory>

using namespace lullet;
using namespace lullet::test;

class TestSegments : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TestLaunch> m_app;

    AppDelegate& app() { return m_app->delegate; }

    ReminderInfo* item(const QString& title, std::optional<Date> due, Project* project = nullptr)
    {
        ReminderInfo* r = app().managedObjectContext().insertReminderInfo();
        r->setTitle(title);
        r->setDtReminder(due);
        r->setRemindBefore(0);
        r->setToProject(project);
        app().addLulletObject(r);
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
    void initTestCase() { lullet::test::useTestCalendar(); }

    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_app = std::make_unique<TestLaunch>(m_dir->path(), at(2026, 11, 25, 12, 0));
        QVERIFY(app().awakeFromNib());
    }

    void cleanup()
    {
        m_app.reset();
        m_dir.reset();
    }

    void theSidebarCounts()
    {
        Project* home = app().managedObjectContext().insertProject();
        home->setName(QStringLiteral("Home"));
        app().addProjectObject(home);
        item(QStringLiteral("Walk the dog"), at(2026, 11, 25, 18, 0));
        item(QStringLiteral("Overdue"), at(2026, 11, 24, 9, 0));
        item(QStringLiteral("Next week"), at(2026, 12, 2, 9, 0), home);
        item(QStringLiteral("Someday"), std::nullopt, home);
        ReminderInfo* done = item(QStringLiteral("Done"), at(2026, 11, 25, 8, 0));
        done->setHasFinished(true);

        const std::vector<SidebarRow> rows = Segments::prepareSegments(app());
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
        ReminderInfo* half = item(QStringLiteral("Half"), at(2026, 11, 25, 8, 0), home);
        half->setDurationMin(20);
        half->setHasFinished(true);
        half->setElapsedTime(600);
        item(QStringLiteral("Planned"), at(2026, 11, 26, 8, 0), home)->setDurationMin(10);
        QCOMPARE(Segments::projectProgress(*home, app()), 0.5);
        QCOMPARE(Segments::viewFor(QStringLiteral("Upcoming")), QStringLiteral("CustomList"));
        QCOMPARE(Segments::viewFor(QStringLiteral("Project")), QStringLiteral("ProjectList"));
    }

    void aSearchForTodayAndWalk()
    {
        Project* errands = app().managedObjectContext().insertProject();
        errands->setName(QStringLiteral("Errands"));
        app().addProjectObject(errands);
        item(QStringLiteral("Water the plants"), at(2026, 11, 25, 18, 0));
        item(QStringLiteral("Wälk to the park"), at(2026, 11, 28, 9, 0));
        item(QStringLiteral("Buy stamps"), at(2026, 11, 27, 9, 0), errands);
        item(QStringLiteral("Long walk"), std::nullopt, errands);
        const std::vector<SidebarRow> found = Segments::search(
            QStringLiteral(" today , walk,, "), Segments::prepareSegments(app()), app());
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
        Project* home = app().managedObjectContext().insertProject();
        QCOMPARE(
            Segments::segmentFor(*item(QStringLiteral("In project"), std::nullopt, home), app()),
            QStringLiteral("Project"));
        ReminderInfo* done = item(QStringLiteral("Done"), at(2026, 11, 20));
        done->setHasFinished(true);
        QCOMPARE(Segments::segmentFor(*done, app()), QStringLiteral("Completed"));
        QCOMPARE(Segments::segmentFor(*item(QStringLiteral("No date"), std::nullopt), app()),
                 QStringLiteral("Anytime"));
        QCOMPARE(Segments::segmentFor(*item(QStringLiteral("Late"), at(2026, 11, 1)), app()),
                 QStringLiteral("Today"));
        QCOMPARE(Segments::segmentFor(*item(QStringLiteral("Later"), at(2026, 11, 27)), app()),
                 QStringLiteral("Upcoming"));
    }

    void projectsAreNamedDeletedAndDuplicated()
    {
        QCOMPARE(ProjectActions::addProject(app(), QStringLiteral("  ")).refusal,
                 QStringLiteral("Name is blank\nPlease set a name"));
        Project* home = ProjectActions::addProject(app(), QStringLiteral(" home ")).project;
        QVERIFY(home);
        QCOMPARE(*home->name(), QStringLiteral("Home"));
        QCOMPARE(ProjectActions::addProject(app(), QStringLiteral("home")).refusal,
                 QStringLiteral("Project alreday exists\nPlease enter different name"));
        Project* work = ProjectActions::addProject(app(), QStringLiteral("work")).project;
        QVERIFY(!ProjectActions::renameProject(app(), *work, QStringLiteral("home")));
        QVERIFY(!ProjectActions::renameProject(app(), *work, QStringLiteral("  ")));
        QVERIFY(ProjectActions::renameProject(app(), *work, QStringLiteral("Another job")));
        QCOMPARE(app().mArrAllProjects.front(), work);

        ReminderInfo* paint = item(QStringLiteral("Paint"), at(2026, 11, 26, 9, 0), home);
        paint->setDurationMin(30);
        paint->setHasFinished(true);
        Project* copy = ProjectActions::duplicateAsNew(app(), *home);
        QCOMPARE(*copy->name(), QStringLiteral("Home Copy"));
        QCOMPARE(*copy->uniqueId(), QStringLiteral("<to make>"));
        QCOMPARE(copy->toReminders().size(), std::size_t(1));
        const ReminderInfo* twin = copy->toReminders().front();
        QCOMPARE(*twin->durationMin(), 30);
        QVERIFY(!twin->dtReminder() && !twin->hasFinished().value_or(false));
        QCOMPARE(*ProjectActions::duplicateAsNew(app(), *home)->name(),
                 QStringLiteral("Home Copy"));

        QVERIFY(ProjectActions::deleteAsks(*home));
        QVERIFY(!ProjectActions::deleteAsks(*work));
        app().objProjectSelectedNow = home;
        ProjectActions::deleteProject(app(), *home);
        QVERIFY(!paint->hasContext());
        QVERIFY(!app().objProjectSelectedNow);
        QCOMPARE(app().mArrAllProjects.size(), std::size_t(3));
        QVERIFY(!app().managedObjectContext().hasChanges());
    }
};

LULLET_TEST_MAIN(TestSegments)
#include "tst_segments.moc"
