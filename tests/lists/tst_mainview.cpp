#include "authoring/QuickAddViewController.h"
#include "core/dates/CalendarContext.h"
#include "core/notify/Notifications.h"
#include "core/settings/SettingsKeys.h"
#include "core/store/ObjectContext.h"
#include "lists/ListActions.h"
#include "lists/LulletListViewController.h"
#include "lists/MainViewController.h"
#include "shell/ContainerViewController.h"
#include "shell/ViewSwitcher.h"
#include "support/DatePrinting.h"
#include "support/TestCalendar.h"
#include "support/TestLaunch.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace lullet;
using namespace lullet::test;

// The main window's content: every segment walked, a project added, a search.
class TestMainView : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TestLaunch> m_app;

    AppDelegate& app() { return m_app->delegate; }

    static void saveShot(QWidget* widget, const QString& name)
    {
        const QString folder = qEnvironmentVariable("LULLET_SHOTS");
        if (!folder.isEmpty())
            widget->grab().save(QDir(folder).filePath(name + QStringLiteral(".png")));
    }

private Q_SLOTS:
    void initTestCase() { lullet::test::useTestCalendar(); }

    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_app = std::make_unique<TestLaunch>(m_dir->path(), at(2026, 11, 25, 12, 0));
        QVERIFY(app().awakeFromNib());
        ReminderInfo* walk = app().managedObjectContext().insertReminderInfo();
        walk->setTitle(QStringLiteral("Walk the dog"));
        walk->setDtReminder(at(2026, 11, 25, 18, 0));
        app().addLulletObject(walk);
    }

    void cleanup()
    {
        m_app.reset();
        m_dir.reset();
    }

    void everySegmentShowsItsView()
    {
        MainViewController view(app());
        view.resize(900, 600);
        view.show();
        QCOMPARE(view.switcher().currentName(), QStringLiteral("LulletList"));
        QCOMPARE(view.rows()[2].count, std::optional<int>(1));
        const std::pair<QString, QString> expected[] = {
            {QStringLiteral("Dashboard"), QStringLiteral("Chart")},
            {QStringLiteral("Lullets"), QStringLiteral("RepeatList")},
            {QStringLiteral("Today"), QStringLiteral("LulletList")},
            {QStringLiteral("Upcoming"), QStringLiteral("CustomList")},
            {QStringLiteral("Anytime"), QStringLiteral("LulletList")},
            {QStringLiteral("Completed"), QStringLiteral("CustomList")},
        };
        for (const auto& [segment, viewName] : expected) {
            view.onSelectSegment(segment);
            QCOMPARE(app().strSegmentSelectedNow, segment);
            QCOMPARE(view.switcher().currentName(), viewName);
            saveShot(&view, QStringLiteral("segment-") + segment);
        }
        // The separator can't be chosen.
        view.tblSegments()->setCurrentRow(6);
        QCOMPARE(app().strSegmentSelectedNow, QStringLiteral("Completed"));
    }

    void upcomingGivesWayToTodayWhenAnItemStarts()
    {
        MainViewController view(app());
        view.onSelectSegment(QStringLiteral("Upcoming"));
        QCOMPARE(view.switcher().currentName(), QStringLiteral("CustomList"));
        ListActions::start(app(), *app().mArrAllLullets.front());
        QTRY_COMPARE(app().strSegmentSelectedNow, QStringLiteral("Today"));
        QTRY_COMPARE(view.switcher().currentName(), QStringLiteral("LulletList"));
    }

    void theWelcomeLeadsToTheMainView()
    {
        ContainerViewController container(app());
        QVERIFY(container.showsWelcome());
        QVERIFY(!container.findChild<MainViewController*>());
        QSignalSpy proceeded(&container, &ContainerViewController::proceededFromWelcome);
        container.findChild<QPushButton*>(QStringLiteral("skipIntro"))->click();
        QCOMPARE(proceeded.count(), 1);
        QVERIFY(m_app->defaults.boolean(SettingsKeys::isShowFirst));
        QVERIFY(container.findChild<MainViewController*>());
        // With the welcome done, the idle question may come at once.
        QCoreApplication::processEvents();
        QCOMPARE(m_app->host.promptKinds(), QStringList{QStringLiteral("idle")});
        // Next time the main view comes first.
        ContainerViewController again(app());
        QVERIFY(!again.showsWelcome());
    }

    void theQuickAddBarAndWhereTheTaskShows()
    {
        MainViewController view(app());
        view.show();
        QVERIFY(!view.quickAddBar()->isVisible());
        m_app->center.post(notification::doAskQuickAdd);
        QVERIFY(view.quickAddBar()->isVisible());
        // Without a date the task belongs to "Anytime", where the view moves.
        view.quickAddBar()->model().doUnsetDate();
        view.quickAddBar()->txtTaskQuickAdd->setText(QStringLiteral("read a book"));
        view.onQuickAddTask();
        QVERIFY(!view.quickAddBar()->isVisible());
        QCOMPARE(*app().mArrAllLullets.back()->title(), QStringLiteral("Read a book"));
        QTRY_COMPARE(app().strSegmentSelectedNow, QStringLiteral("Anytime"));
        QTRY_COMPARE(view.tblSegments()->currentRow(), 4);
    }

    void aNewProjectIsSelectedAndListed()
    {
        MainViewController view(app());
        auto* field = view.findChild<QLineEdit*>(QStringLiteral("newProject"));
        field->setText(QStringLiteral("garden"));
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(app().strSegmentSelectedNow, QStringLiteral("Project"));
        QVERIFY(app().objProjectSelectedNow);
        QCOMPARE(*app().objProjectSelectedNow->name(), QStringLiteral("Garden"));
        QCOMPARE(view.switcher().currentName(), QStringLiteral("ProjectList"));
        QCOMPARE(view.rows().back().name, QStringLiteral("Garden"));
        QVERIFY(field->text().isEmpty());
    }

    void projectsAreRenamedDuplicatedAndDeleted()
    {
        MainViewController view(app());
        auto* field = view.findChild<QLineEdit*>(QStringLiteral("newProject"));
        for (const char* name : {"Home", "Work"}) {
            field->setText(QString::fromLatin1(name));
            QTest::keyClick(field, Qt::Key_Return);
        }
        Project* home = app().mArrAllProjects.front();
        view.onEditProject(home);
        view.tblSegments()->item(7)->setText(QStringLiteral("house"));
        QCOMPARE(*home->name(), QStringLiteral("House"));

        view.onDuplicateProject(home);
        QCOMPARE(*app().objProjectSelectedNow->name(), QStringLiteral("House Copy"));
        // Without items, no question; the selection moves to a neighbour.
        Project* copy = app().objProjectSelectedNow;
        view.onDeleteProject(copy);
        QVERIFY(!copy->hasContext());
        QVERIFY(app().objProjectSelectedNow && app().objProjectSelectedNow != copy);
        QCOMPARE(view.rows().size(), std::size_t(9));
    }

    void aSearchResultLeadsToItsList()
    {
        MainViewController view(app());
        auto* search = view.findChild<QLineEdit*>(QStringLiteral("searchField"));
        search->setText(QStringLiteral("today, walk"));
        QStringList shown;
        for (int i = 0; i < view.tblSegments()->count(); ++i)
            shown << view.tblSegments()->item(i)->text();
        QCOMPARE(shown.size(), 2);
        QVERIFY(shown[0].startsWith(QStringLiteral("Today")));
        QCOMPARE(shown[1], QStringLiteral("• Walk the dog"));
        view.tblSegments()->setCurrentRow(1);
        QVERIFY(search->text().isEmpty());
        QCOMPARE(app().strSegmentSelectedNow, QStringLiteral("Today"));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestMainView)
#include "tst_mainview.moc"
