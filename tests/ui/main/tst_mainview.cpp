#include "support/DesktopTest.h"
#include "support/Shots.h"
#include "ui/authoring/DateChooser.h"
#include "ui/authoring/QuickAddView.h"
#include "ui/authoring/RuleFormView.h"
#include "ui/main/AddTaskView.h"
#include "ui/main/DashboardView.h"
#include "ui/main/ItemListModel.h"
#include "ui/main/ItemListView.h"
#include "ui/main/MainView.h"
#include "ui/main/SidebarView.h"
#include "ui/main/ViewSwitcher.h"
#include "ui/shell/RunningListView.h"
#include "ui/shell/WindowContent.h"
#include "ui/widgets/BarChart.h"
#include "ui/widgets/CircularProgress.h"
#include "ui/widgets/ElidedLabel.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QToolButton>
#include <QTreeWidget>

using namespace lullet;
using namespace lullet::test;

// The main window's content: every segment walked, a project added, a search.
class TestMainView : public DesktopTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 25, 12, 0); }
    Open openedAs() const override { return Open::BeforeWelcome; }

    static ItemListView* shownList(MainView& view)
    {
        auto* list = qobject_cast<ItemListView*>(view.switcher().currentWidget());
        if (!list)
            qFatal("The view shows no list");
        return list;
    }

private Q_SLOTS:
    void init()
    {
        DesktopTest::init();
        app().addItem(QStringLiteral("Walk the dog"), at(2026, 11, 25, 18, 0));
    }

    void everySegmentShowsItsView()
    {
        MainView view(services());
        view.resize(900, 600);
        view.show();
        QCOMPARE(*view.switcher().current(), View::LulletList);
        QCOMPARE(view.sidebar().rows()[2].count, std::optional<int>(1));
        const std::pair<Segment, View> expected[] = {
            {Segment::Dashboard, View::Chart},    {Segment::Lullets, View::RepeatList},
            {Segment::Today, View::LulletList},   {Segment::Upcoming, View::CustomList},
            {Segment::Anytime, View::LulletList}, {Segment::Completed, View::CustomList},
        };
        for (const auto& [segment, shown] : expected) {
            view.sidebar().list()->setCurrentRow(int(segment));
            QCOMPARE(view.shownSegment(), segment);
            QCOMPARE(*view.switcher().current(), shown);
            saveShot(&view, QStringLiteral("segment-") + Segments::name(segment));
        }
        // The separator can't be chosen.
        view.sidebar().list()->setCurrentRow(6);
        QCOMPARE(view.shownSegment(), Segment::Completed);

        // Counts stay true while nothing runs: at midnight tomorrow's task joins Today.
        app().addItem(QStringLiteral("Plant the bulbs"), at(2026, 11, 26, 9, 0));
        QCoreApplication::processEvents();
        clock().set(at(2026, 11, 25, 23, 59, 0));
        QCOMPARE(view.sidebar().rows()[2].count, std::optional<int>(1));
        app().runUntil(at(2026, 11, 26, 0, 0, 1));
        QCoreApplication::processEvents();
        QCOMPARE(view.sidebar().rows()[2].count, std::optional<int>(2));
    }

    void upcomingGivesWayToTodayWhenAnItemStarts()
    {
        MainView view(services());
        view.showSegment(Segment::Upcoming);
        QCOMPARE(*view.switcher().current(), View::CustomList);
        services().itemActions.start(*library().items().front());
        QTRY_COMPARE(view.shownSegment(), Segment::Today);
        QTRY_COMPARE(*view.switcher().current(), View::LulletList);
    }

    void theWelcomeLeadsToTheMainView()
    {
        WindowContent container(services());
        QVERIFY(container.showsWelcome());
        QVERIFY(!container.findChild<MainView*>());
        QSignalSpy proceeded(&container, &WindowContent::proceededFromWelcome);
        child<QPushButton>(&container, "skip")->click();
        QCOMPARE(proceeded.count(), 1);
        QVERIFY(app().settings.welcomeDone());
        QCOMPARE(app().settings.integer(SettingsKeys::introPageShown), 1);
        QVERIFY(container.findChild<MainView*>());
        // With the welcome done, the idle question may come at once.
        QCoreApplication::processEvents();
        QCOMPARE(app().prompts.kinds(), QStringList{QStringLiteral("idle")});
        // Next time the main view comes first.
        WindowContent again(services());
        QVERIFY(!again.showsWelcome());
    }

    // The add button opens the quick-add bar and Escape closes it; asked for again while open,
    // it adds the task typed.
    void theQuickAddBarAndWhereTheTaskShows()
    {
        MainView view(services());
        view.show();
        QVERIFY(!view.quickAddBar()->isVisible());
        child<QToolButton>(&view, "addTask")->click();
        QVERIFY(view.quickAddBar()->isVisible());
        QTest::keyClick(view.quickAddBar()->nameField(), Qt::Key_Escape);
        QVERIFY(!view.quickAddBar()->isVisible());
        view.showQuickAddBar();
        // Without a date the task belongs to "Anytime", where the view moves.
        child<QPushButton>(view.quickAddBar(), "chooseDate")->click();
        Q_EMIT child<DateChooser>(view.quickAddBar())->unset();
        view.quickAddBar()->nameField()->setText(QStringLiteral("read a book"));
        view.showQuickAddBar();
        QVERIFY(!view.quickAddBar()->isVisible());
        QCOMPARE(*library().items().back()->title(), QStringLiteral("Read a book"));
        QTRY_COMPARE(view.shownSegment(), Segment::Anytime);
        QTRY_COMPARE(view.sidebar().list()->currentRow(), 4);
        // Added from "Completed", where it does not belong, it is shown where it does.
        view.showSegment(Segment::Completed);
        view.showQuickAddBar();
        view.quickAddBar()->nameField()->setText(QStringLiteral("call the plumber"));
        view.showQuickAddBar();
        QTRY_COMPARE(view.shownSegment(), Segment::Today);
    }

    // A new project is selected and listed, then renamed, duplicated and deleted.
    void projectsAreAddedRenamedDuplicatedAndDeleted()
    {
        MainView view(services());
        auto* field = child<QLineEdit>(&view, "newProject");
        field->setText(QStringLiteral("home"));
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(view.shownSegment(), Segment::Project);
        QVERIFY(view.shownProject());
        QCOMPARE(*view.shownProject()->name(), QStringLiteral("Home"));
        QCOMPARE(*view.switcher().current(), View::ProjectList);
        QCOMPARE(view.sidebar().rows().back().name, QStringLiteral("Home"));
        QVERIFY(field->text().isEmpty());
        field->setText(QStringLiteral("Work"));
        QTest::keyClick(field, Qt::Key_Return);
        Project* home = library().projects().front();
        view.show();
        // The counts refresh while the user types, as they do each minute: the name typed is
        // what the project gets, and Escape leaves the name as it was.
        const auto typeName = [&](const QString& typed, Qt::Key end) {
            QCoreApplication::processEvents();
            view.sidebar().renameProject(home);
            auto* editor = view.sidebar().list()->findChild<QLineEdit*>();
            QVERIFY(editor);
            editor->selectAll();
            QTest::keyClicks(editor, typed);
            Q_EMIT app().monitor().minutePassed();
            QTest::keyClick(editor, end);
            QCoreApplication::processEvents();
            Q_EMIT app().monitor().minutePassed();
        };
        typeName(QStringLiteral("house"), Qt::Key_Return);
        QCOMPARE(*home->name(), QStringLiteral("House"));
        typeName(QStringLiteral("Cottage"), Qt::Key_Escape);
        QCOMPARE(*home->name(), QStringLiteral("House"));
        QCOMPARE(view.sidebar().list()->item(7)->text(), QStringLiteral("House   0"));

        view.duplicateProject(home);
        QCOMPARE(*view.shownProject()->name(), QStringLiteral("House Copy"));
        // Without items, no question; the selection moves to a neighbour.
        Project* copy = view.shownProject();
        view.deleteProject(copy);
        QVERIFY(!copy->hasContext());
        QVERIFY(view.shownProject() && view.shownProject() != copy);
        QCOMPARE(view.sidebar().rows().size(), std::size_t(9));
    }

    // Escape clears the search; a result leads to its list.
    void aSearchResultLeadsToItsList()
    {
        MainView view(services());
        auto* search = child<QLineEdit>(&view, "searchField");
        // The view opens on the sidebar, not with a cursor in the search field.
        view.show();
        QCOMPARE(view.focusWidget(), view.sidebar().list());
        search->setFocus();
        QTest::keyClicks(search, QStringLiteral("dog"));
        QTest::keyClick(search, Qt::Key_Escape);
        QVERIFY(search->text().isEmpty());
        search->setText(QStringLiteral("today, walk"));
        QStringList shown;
        for (int i = 0; i < view.sidebar().list()->count(); ++i)
            shown << view.sidebar().list()->item(i)->text();
        QCOMPARE(shown.size(), 2);
        QVERIFY(shown[0].startsWith(QStringLiteral("Today")));
        QCOMPARE(shown[1], QStringLiteral("• Walk the dog"));
        app().addItem(QStringLiteral("Call the vet"), at(2026, 11, 25, 17, 0));
        search->setText(QStringLiteral("walk"));
        QListWidget* rows = view.sidebar().list();
        const QRect result = rows->visualItemRect(rows->item(rows->count() - 1));
        QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, result.center());
        QTRY_VERIFY(search->text().isEmpty());
        QCOMPARE(view.shownSegment(), Segment::Today);
        // The sidebar marks the list shown, not the row where the result stood.
        QCOMPARE(rows->currentRow(), int(Segment::Today));
        QCOMPARE(rows->selectedItems(), QList<QListWidgetItem*>{rows->item(int(Segment::Today))});
        // The list opens with the result selected, below the other task of the day.
        ItemListView* list = shownList(view);
        const QModelIndexList selected = list->table()->selectionModel()->selectedRows();
        QCOMPARE(selected.size(), 1);
        QCOMPARE(list->model().index(selected.front().row(), 1).data().toString(),
                 QStringLiteral("Walk the dog"));
        QCOMPARE(selected.front().row(), 1);
    }

    // "Started only" keeps the started items, and the header counts what is listed.
    void theStartedOnlyFilter()
    {
        app().addItem(QStringLiteral("Call the vet"), at(2026, 11, 25, 17, 0))->setHasStarted(true);
        MainView view(services());
        view.show();
        ItemListView* list = shownList(view);
        const int all = list->model().rowCount();
        child<QCheckBox>(list, "showRunningOnly")->click();
        QCOMPARE(list->model().rowCount(), 1);
        QVERIFY(list->model().rowCount() < all);
        QCOMPARE(child<QLabel>(list, "taskCount")->text(), QStringLiteral("Tasks: 1"));
        child<QCheckBox>(list, "showRunningOnly")->click();
        QCOMPARE(list->model().rowCount(), all);

        // An empty list has nothing to export, and says so.
        view.showSegment(Segment::Anytime);
        QMenu* exportMenu = child<QToolButton>(shownList(view), "export")->menu();
        QCOMPARE(exportMenu->actions().size(), 3);
        Dialogs::answerNext(QStringLiteral("Ok"));
        exportMenu->actions().at(1)->trigger();
        QCOMPARE(Dialogs::asked().size(), 1);
        QCOMPARE(Dialogs::asked().front().information,
                 QStringLiteral("There is no task data to export."));
    }

    // The dashboard counts what the store holds and follows a change at once.
    void theDashboardFollowsTheItems()
    {
        MainView view(services());
        view.resize(900, 600);
        view.show();
        view.showSegment(Segment::Dashboard);
        auto* dashboard = qobject_cast<DashboardView*>(view.switcher().currentWidget());
        QVERIFY(dashboard);
        // "Walk the dog", today at 18:00: current and upcoming, in November.
        QCOMPARE(dashboard->chart()->bars().at(10).value, 1.0);
        QCOMPARE(dashboard->chart()->bars().at(10).label, QStringLiteral("NOV"));
        QCOMPARE(dashboard->circle(1)->progress(), 0.5);
        QCOMPARE(dashboard->projects()->topLevelItemCount(), 1);
        QCOMPARE(dashboard->projects()->topLevelItem(0)->text(0), QStringLiteral("Not in Project"));
        library().announceItemChanged(
            app().addItem(QStringLiteral("Plan the party"), at(2026, 12, 20, 18, 0)));
        QCOMPARE(dashboard->chart()->bars().at(11).value, 1.0);
        QCOMPARE(dashboard->projects()->topLevelItem(0)->text(1), QStringLiteral("2"));
        saveShot(&view, QStringLiteral("dashboard"));
    }

    // A project's tasks are added and edited in their own panel, which lists only those still
    // waiting and goes back to the project's list with the new task selected.
    void theAddTaskPanel()
    {
        Project* home = app().addProject(QStringLiteral("Home"));
        Item* started = app().addItem(QStringLiteral("Paint the door"), at(2026, 11, 25, 9, 0));
        started->setToProject(home);
        started->setHasStarted(true);
        Item* waiting = app().addItem(QStringLiteral("Fix the tap"), at(2026, 11, 26, 9, 0));
        waiting->setToProject(home);
        MainView view(services());
        view.resize(900, 600);
        view.show();
        view.showProjectNamed(QStringLiteral("Home"));
        shownList(view)->select(waiting);
        child<QAction>(shownList(view), "addTasks")->trigger();
        QTRY_COMPARE(*view.switcher().current(), View::AddTaskList);
        auto* panel = qobject_cast<AddTaskView*>(view.switcher().currentWidget());
        QCOMPARE(panel->list()->topLevelItemCount(), 1);
        QCOMPARE(panel->selectedTask(), waiting);
        QCOMPARE(panel->list()->topLevelItem(0)->text(0), QStringLiteral("Fix the tap"));

        RuleFormView* form = panel->openForm(nullptr);
        QVERIFY(form->isVisible());
        QVERIFY(!child<QComboBox>(form, "unit")->isVisible());
        child<QComboBox>(form, "name")->setCurrentText(QStringLiteral("Buy bulbs"));
        saveShot(form, QStringLiteral("task-form"));
        child<QPushButton>(form, "done")->click();
        Item* bulbs = form->savedTask();
        QVERIFY(bulbs);
        QCOMPARE(bulbs->toProject(), home);
        // Due ten minutes from now, before the tap: first, and selected.
        QCOMPARE(panel->list()->topLevelItemCount(), 2);
        QCOMPARE(panel->selectedTask(), bulbs);
        QCOMPARE(panel->list()->indexOfTopLevelItem(panel->list()->currentItem()), 0);
        saveShot(&view, QStringLiteral("add-task-panel"));

        Dialogs::answerNext(QStringLiteral("No"));
        panel->deleteTask(waiting);
        QCOMPARE(panel->list()->topLevelItemCount(), 2);
        child<QPushButton>(panel, "done")->click();
        QTRY_COMPARE(*view.switcher().current(), View::ProjectList);
        const QModelIndexList selected = shownList(view)->table()->selectionModel()->selectedRows();
        QCOMPARE(selected.size(), 1);
        QCOMPARE(shownList(view)->model().rowOf(bulbs), selected.front().row());
    }

    // At the default window size a project's header shows every count whole, the badge keeps
    // its size, and a long name gives way with its whole text in the tooltip.
    void theHeaderFitsAtTheDefaultSize()
    {
        Project* club = app().addProject(QStringLiteral("Book club reading list for winter"));
        Item* first = app().addItem(QStringLiteral("Choose books"), at(2026, 11, 25, 13, 0));
        Item* second = app().addItem(QStringLiteral("Send invites"), at(2026, 11, 25, 14, 0));
        services().itemActions.moveToProject(*first, club);
        services().itemActions.moveToProject(*second, club);
        services().itemActions.finish(*first);
        app().settings.setWelcomeDone();
        MainWindow window;
        auto* content = new WindowContent(services());
        window.setCentralWidget(content);
        window.resize(600, 600);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        MainView& view = *content->mainView();
        view.showProjectNamed(club->name().value_or(QString()));
        QCoreApplication::processEvents();
        ItemListView* list = shownList(view);
        QVERIFY(list->isVisible());
        const QRect inside = list->rect();
        for (const char* name :
             {"taskCount", "completedCount", "dueCount", "todayCount", "timeUsed", "todayTime",
              "status", "askWhenIdle", "showRunningOnly", "export"}) {
            auto* widget = list->findChild<QWidget*>(QLatin1String(name));
            QVERIFY2(widget && widget->isVisible(), name);
            QVERIFY2(widget->width() >= widget->sizeHint().width(), name);
            const QRect where(widget->mapTo(list, QPoint(0, 0)), widget->size());
            QVERIFY2(inside.contains(where), name);
        }
        // The tasks' names read: the other columns give way to the title.
        auto* table = child<QTableView>(list, "items");
        QVERIFY(table->columnWidth(ItemListModel::TitleColumn) >= 150);
        QVERIFY(table->isColumnHidden(ItemListModel::UsedColumn));
        QCOMPARE(child<QLabel>(list, "completedCount")->text(), QStringLiteral("Complete: 1"));
        auto* name = child<ElidedLabel>(list, "listName");
        QCOMPARE(name->text(), QStringLiteral("Book club reading list for winter"));
        if (name->isElided())
            QCOMPARE(name->toolTip(), name->text());
        saveShot(&window, QStringLiteral("project-600"));
        // The sidebar keeps its width from view to view.
        const int sidebarWidth = view.sidebar().list()->width();
        for (const Segment segment :
             {Segment::Dashboard, Segment::Lullets, Segment::Completed, Segment::Today}) {
            view.showSegment(segment);
            QCoreApplication::processEvents();
            QCOMPARE(view.sidebar().list()->width(), sidebarWidth);
        }
    }

    // A chart's value axis never prints a label twice, however small its values.
    void chartAxisLabelsAreDistinct()
    {
        BarChart chart;
        chart.setUnit(QStringLiteral("h"));
        for (const double largest : {0.0, 0.04, 0.2, 0.35, 1.0, 7.3, 120.0}) {
            chart.setBars({{QStringLiteral("MON"), largest}, {QStringLiteral("TUE"), largest / 3}});
            const QStringList labels = chart.axisLabels();
            QVERIFY2(labels.size() >= 2, qPrintable(labels.join(u',')));
            QCOMPARE(QSet<QString>(labels.begin(), labels.end()).size(), labels.size());
        }
        chart.setBars({{QStringLiteral("MON"), 0.2}});
        QCOMPARE(chart.axisLabels(),
                 (QStringList{QStringLiteral("0.00 h"), QStringLiteral("0.05 h"),
                              QStringLiteral("0.10 h"), QStringLiteral("0.15 h"),
                              QStringLiteral("0.20 h")}));
    }

    // The main header and the tray's panel show the running item's one clock.
    void oneClockForTheRunningItem()
    {
        Item* done = app().addItem(QStringLiteral("Tea"), at(2026, 11, 25, 11, 0));
        done->setElapsedTime(29);
        done->setHasFinished(true);
        MainView view(services());
        view.resize(900, 600);
        view.show();
        RunningListView panel(services());
        for (Item* item : library().items()) {
            if (item->title() == QStringLiteral("Walk the dog"))
                services().itemActions.start(*item);
        }
        app().runUntil(at(2026, 11, 25, 12, 0, 19));
        QCoreApplication::processEvents();
        auto* clock = child<ElidedLabel>(&view, "runningClock");
        QVERIFY(clock->isVisible());
        QCOMPARE(clock->text(), QStringLiteral("Running: Walk the dog  00:00:19"));
        QCOMPARE(child<QLabel>(&panel, "runningNow")->text(),
                 QStringLiteral("Walk the dog  00:00:19"));

        // Its row shows how far it is: through the prompt period without a limit, else through
        // its limit; no other row has a progress.
        const QAbstractItemModel* rows = child<QTableView>(shownList(view), "items")->model();
        const auto progresses = [&] {
            QList<double> found;
            for (int row = 0; row < rows->rowCount(); ++row) {
                const QVariant progress = rows->index(row, 0).data(ItemListModel::ProgressRole);
                if (progress.isValid())
                    found << progress.toDouble();
            }
            return found;
        };
        QCOMPARE(progresses(), QList<double>{19.0 / (15 * 60)});
        services().running.item()->setTimeLimit(76);
        QCOMPARE(progresses(), QList<double>{0.25});
        saveShot(&view, QStringLiteral("running-row"));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestMainView)
#include "tst_mainview.moc"
