#include "support/DesktopTest.h"
#include "support/Shots.h"
#include "ui/main/ItemListModel.h"
#include "ui/main/ItemListView.h"
#include "ui/main/PostponePanel.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QMenu>
#include <QPaintEvent>
#include <QPointer>
#include <QPushButton>
#include <QTableView>

#include <algorithm>

using namespace lullet;
using namespace lullet::test;

// The region a widget repaints.
class Repaints : public QObject {
public:
    explicit Repaints(QWidget* widget) { widget->installEventFilter(this); }
    QRegion region;

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
};

// The day's list on screen, driven through its rows.
class TestListView : public DesktopTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 25, 12, 0); }

    Item* item(const QString& title, std::optional<Date> due)
    {
        Item* r = app().addItem(title, due);
        r->setRemindBefore(0);
        r->setDurationMin(15);
        return r;
    }

    static QAction* action(QMenu* menu, const QString& text)
    {
        for (QAction* a : menu->actions()) {
            if (a->text() == text)
                return a;
        }
        return nullptr;
    }

    static QString startGlyph(ItemListView& view, int row)
    {
        return view.model().index(row, ItemListModel::StartColumn).data().toString();
    }

    // The start buttons are painted: a click on the cell is the click on the button.
    static void clickStart(ItemListView& view, int row)
    {
        QTableView* table = view.table();
        const QRect cell = table->visualRect(view.model().index(row, ItemListModel::StartColumn));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
    }

    // The pointer at a point of the widget, and the repaints it causes.
    static void hover(QWidget* widget, QEvent::Type type, QPoint at = {})
    {
        QHoverEvent event(type, at, widget->mapToGlobal(at), QPointF(-1, -1));
        QCoreApplication::sendEvent(widget, &event);
        QCoreApplication::processEvents();
    }

private Q_SLOTS:
    void rowsStartStopAndGo()
    {
        Item* write = item(QStringLiteral("Write"), at(2026, 11, 25, 11, 0));
        Item* read = item(QStringLiteral("Read"), at(2026, 11, 25, 14, 0));
        item(QStringLiteral("Someday"), std::nullopt);
        ItemListView view(services(), {}, true);
        view.show();
        QCOMPARE(view.model().rowCount(), 2);
        QCOMPARE(view.model().itemAt(0), write);

        QCOMPARE(startGlyph(view, 0), QStringLiteral("▶"));
        clickStart(view, 0);
        QCOMPARE(app().running().item(), write);
        QCOMPARE(startGlyph(view, 0), QStringLiteral("■"));
        QCOMPARE(*write->timeLimit(), 900);

        // A tick shows the running row's progress without rebuilding the list.
        clock().advance(1);
        app().monitor().tick();
        QCOMPARE(view.model().rowCount(), 2);

        // Stopping is finishing; the finished row goes below the open ones.
        clickStart(view, view.model().rowOf(write));
        QVERIFY(*write->hasFinished());
        QCOMPARE(view.model().itemAt(0), read);
        // A finished row's button only shows it is done.
        QCOMPARE(startGlyph(view, 1), QStringLiteral("✓"));
        clickStart(view, 1);
        QVERIFY(!app().running().item());

        std::unique_ptr<QMenu> menu(view.buildMenu(read));
        QVERIFY(action(menu.get(), QStringLiteral("Delete")));
        action(menu.get(), QStringLiteral("Delete"))->trigger();
        QVERIFY(!read->hasContext());
        QCOMPARE(view.model().rowCount(), 1);
    }

    // Without a mouse: Space starts and stops the current row as its button does, and the menu
    // key opens the row's menu.
    void rowsAnswerTheKeyboard()
    {
        Item* write = item(QStringLiteral("Write"), at(2026, 11, 25, 11, 0));
        item(QStringLiteral("Read"), at(2026, 11, 25, 14, 0));
        ItemListView view(services(), {}, true);
        view.show();
        QTableView* table = view.table();
        QVERIFY(table->focusPolicy() & Qt::TabFocus);
        table->setFocus();
        table->setCurrentIndex(view.model().index(view.model().rowOf(write), 0));
        QTest::keyClick(table, Qt::Key_Space);
        QCOMPARE(app().running().item(), write);
        QTest::keyClick(table, Qt::Key_Return);
        QVERIFY(*write->hasFinished());
        // The finished row has no button to press.
        QCOMPARE(view.selectedItem(), write);
        QTest::keyClick(table, Qt::Key_Space);
        QVERIFY(!app().running().item());
        QTest::keyClick(table, Qt::Key_Menu);
        QTRY_VERIFY(qobject_cast<QMenu*>(QApplication::activePopupWidget()));
        QApplication::activePopupWidget()->close();
    }

    // A launch that makes an occurrence of every rule over years of history reloads the list
    // once, not once for each occurrence.
    void manyOccurrencesReloadTheListOnce()
    {
        for (int day = 1; day <= 300; ++day) {
            Item* old =
                item(QStringLiteral("Done %1").arg(day), at(2025, 1, 1).dateByAddingDays(day));
            old->setHasFinished(true);
        }
        constexpr int rules = 40;
        for (int i = 0; i < rules; ++i) {
            Rule* rule = app().addRule(QStringLiteral("Rule %1").arg(i), RepeatUnit::Hour, 1,
                                       at(2026, 11, 20, 9, i));
            rule->setIsToDoOrJob(false);
            rule->setDurationMin(5);
        }
        ItemListView view(services(), {}, true);
        view.show();
        QSignalSpy resets(&view.model(), &QAbstractItemModel::modelReset);
        services().catalogue.rebuild();
        QCoreApplication::processEvents();
        QCOMPARE(resets.count(), 1);
        QCOMPARE(view.model().rowCount(), rules);
        // The shared list is in order once the batch is over: open items first, by date.
        const std::vector<Item*>& all = library().items();
        QVERIFY(std::is_sorted(all.begin(), all.begin() + rules, [](const Item* a, const Item* b) {
            return *a->effectiveDate() < *b->effectiveDate();
        }));
        QVERIFY(all[rules]->isFinished());
    }

    // The minute's pass tells only the rows whose texts it changed, so that an open list
    // repaints those alone: "Due from 5 min" becomes "Due from 6 min", a time of day stays.
    void theMinuteTellsOnlyTheRowsItChanges()
    {
        item(QStringLiteral("Late"), at(2026, 11, 25, 11, 55));
        item(QStringLiteral("Tonight"), at(2026, 11, 25, 18, 0));
        ItemListView view(services(), {}, true);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QAbstractItemModel& rows = view.model();
        const auto rowOf = [&rows](const QString& title) {
            for (int row = 0; row < rows.rowCount(); ++row) {
                if (rows.index(row, ItemListModel::TitleColumn).data().toString() == title)
                    return row;
            }
            return -1;
        };
        const QModelIndex late =
            rows.index(rowOf(QStringLiteral("Late")), ItemListModel::TimeColumn);
        const QString before = late.data().toString();
        QVERIFY(rowOf(QStringLiteral("Tonight")) >= 0);
        QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
        app().runUntil(at(2026, 11, 25, 12, 1, 0));
        QCoreApplication::processEvents();
        QSet<int> told;
        for (const QList<QVariant>& signal : changed) {
            for (int row = signal.at(0).value<QModelIndex>().row();
                 row <= signal.at(1).value<QModelIndex>().row(); ++row)
                told.insert(row);
        }
        QCOMPARE(told, QSet<int>{late.row()});
        QVERIFY(late.data().toString() != before);
    }

    // The pointer moving along the rows repaints only a start button it enters or leaves: a
    // repaint of whole rows, or of the whole list as the pointer comes in, at each move would keep
    // the program busy while the user only reads.
    void thePointerRepaintsOnlyTheButtonsItCrosses()
    {
        item(QStringLiteral("Write"), at(2026, 11, 25, 11, 0));
        item(QStringLiteral("Read"), at(2026, 11, 25, 14, 0));
        ItemListView view(services(), {}, true);
        view.resize(600, 400);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QCoreApplication::processEvents();
        QTableView* table = view.table();
        QWidget* viewport = table->viewport();
        const auto cell = [&](int row, int column) {
            return table->visualRect(view.model().index(row, column));
        };
        Repaints repaints(viewport);
        hover(viewport, QEvent::HoverEnter, cell(0, ItemListModel::TitleColumn).center());
        hover(viewport, QEvent::HoverMove, cell(1, ItemListModel::TitleColumn).center());
        hover(viewport, QEvent::HoverMove, cell(1, ItemListModel::TimeColumn).center());
        QCOMPARE(repaints.region, QRegion());

        const QRect button = cell(1, ItemListModel::StartColumn);
        hover(viewport, QEvent::HoverMove, button.center());
        hover(viewport, QEvent::HoverMove, button.center() + QPoint(1, 1));
        QCOMPARE(repaints.region, QRegion(button));
        repaints.region = {};
        hover(viewport, QEvent::HoverLeave);
        QCOMPARE(repaints.region, QRegion(button));
    }

    // Day headings group the Completed list: they are read, not selected.
    void dayHeadingsAreNotSelectable()
    {
        Item* done = item(QStringLiteral("Read"), at(2026, 11, 24, 10, 0));
        done->setHasFinished(true);
        ItemListView view(services(), {Segment::Completed, nullptr, false}, true);
        QCOMPARE(view.model().rowCount(), 2);
        QCOMPARE(view.model().flags(view.model().index(0, ItemListModel::TitleColumn)),
                 Qt::ItemIsEnabled);
        QCOMPARE(view.model().itemAt(1), done);
        QVERIFY(view.model().flags(view.model().index(1, ItemListModel::TitleColumn)) &
                Qt::ItemIsSelectable);
    }

    // "Move to" takes the row out of the project's list at once, and the counts follow.
    void aMovedItemLeavesItsProjectList()
    {
        Project* home = app().addProject(QStringLiteral("Home"));
        Project* work = app().addProject(QStringLiteral("Work"));
        Item* task = item(QStringLiteral("Paint"), at(2026, 11, 25, 14, 0));
        task->setToProject(home);
        ItemListView homeList(services(), {Segment::Project, home, false}, true);
        ItemListView workList(services(), {Segment::Project, work, false}, true);
        QVERIFY(homeList.model().rowOf(task) >= 0);
        QCOMPARE(workList.model().rowOf(task), -1);

        services().itemActions.moveToProject(*task, work);
        QCOMPARE(homeList.model().rowOf(task), -1);
        QVERIFY(workList.model().rowOf(task) >= 0);
    }

    // The idle question can be switched off from the list; switched on, it asks at once.
    void theIdleQuestionsSwitch()
    {
        ItemListView view(services(), {}, true);
        auto* ask = view.findChild<QCheckBox*>(QStringLiteral("askWhenIdle"));
        QVERIFY(ask && ask->isChecked());
        QSignalSpy asked(&app().monitor(), &Monitor::idleQuestionDue);
        ask->setChecked(false);
        QVERIFY(app().settings.idleQuestionsOff());
        app().monitor().askWhatNow();
        QCoreApplication::processEvents();
        QCOMPARE(asked.count(), 0);
        ask->setChecked(true);
        QCoreApplication::processEvents();
        QVERIFY(!app().settings.idleQuestionsOff());
        QCOMPARE(asked.count(), 1);
        QCOMPARE(asked.front().at(1).toBool(), true);
    }

    void aRunningItemCannotBeRescheduledFromItsMenu()
    {
        Item* running = item(QStringLiteral("Busy"), at(2026, 11, 25, 11, 0));
        ItemListView view(services(), {}, true);
        view.startOrStop(running);
        std::unique_ptr<QMenu> menu(view.buildMenu(running));
        QVERIFY(!action(menu.get(), QStringLiteral("Postpone")));
        QVERIFY(action(menu.get(), QStringLiteral("Stop")));

        Item* waiting = item(QStringLiteral("Later"), at(2026, 11, 25, 15, 0));
        std::unique_ptr<QMenu> other(view.buildMenu(waiting));
        QAction* postpone = action(other.get(), QStringLiteral("Postpone"));
        QVERIFY(postpone && postpone->menu());
        // The menu counts from now: "Tomorrow" is tomorrow at 09:00.
        action(postpone->menu(), QStringLiteral("Tomorrow"))->trigger();
        QCOMPARE(*waiting->dtReminderPostponed(), at(2026, 11, 26, 9, 0));
        QCOMPARE(view.model().rowOf(waiting), -1);
    }

    void thePostponePanel()
    {
        clock().set(at(2026, 11, 25, 20, 0));
        Item* task = item(QStringLiteral("Plan"), at(2026, 11, 25, 21, 0));
        auto* panel = new PostponePanel(services(), task);
        QPointer<PostponePanel> alive(panel);
        panel->popUpAt(QPoint(100, 100));
        saveShot(panel, QStringLiteral("postpone-panel"));
        auto* evening = panel->findChild<QPushButton*>(QStringLiteral("choice2"));
        QVERIFY(evening);
        // Each choice shows where it leads.
        const auto time = [](Date d) { return d.toString(DateStyle::None, DateStyle::Short); };
        QCOMPARE(evening->text(),
                 QStringLiteral("Tomorrow eve\nThu 26 Nov ") + time(at(2026, 11, 26, 19, 0)));
        QCOMPARE(child<QPushButton>(panel, "choice4")->text(),
                 QStringLiteral("Friday\nFri 27 Nov ") + time(at(2026, 11, 27, 9, 0)));
        QCOMPARE(child<QPushButton>(panel, "choice7")->text(), QStringLiteral("No date"));
        QCOMPARE(child<QLabel>(panel, "postponeTitle")->text(), QStringLiteral("Postpone Plan"));
        // A free date keeps the panel open; a named choice closes it.
        child<QPushButton>(panel, "choice9")->click();
        QVERIFY(panel->findChild<QDateTimeEdit*>()->isVisible());
        panel->postponeToChosenDate();
        QVERIFY(alive);
        evening->click();
        QCOMPARE(*task->dtReminderPostponed(), at(2026, 11, 26, 19, 0));
        QTRY_VERIFY(!alive);

        // Escape closes it, nothing changed.
        auto* again = new PostponePanel(services(), task);
        QPointer<PostponePanel> open(again);
        again->popUpAt(QPoint(100, 100));
        QTest::keyClick(again, Qt::Key_Escape);
        QTRY_VERIFY(!open);
        QCOMPARE(*task->dtReminderPostponed(), at(2026, 11, 26, 19, 0));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestListView)
#include "tst_listview.moc"
