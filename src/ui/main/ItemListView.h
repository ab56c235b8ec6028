#pragma once

#include "core/presentation/ListBuilder.h"

#include <QWidget>

class QLabel;
class QMenu;
class QTableView;
class QVBoxLayout;

namespace lullet {

class Item;
class ItemListModel;
class ListHeader;
class Project;
struct Report;
struct Services;

// A list of items: "Today", "Anytime", "Upcoming", "Completed" or a project's, with the header
// statistics in the main window; without the header, the day's list in the tray's panel. Each
// row can be started or stopped, finished, postponed, moved, duplicated and deleted.
class ItemListView final : public QWidget {
    Q_OBJECT
public:
    ItemListView(const Services& services, const ListBuilder::Scope& scope, bool withHeader,
                 QWidget* parent = nullptr);

    ItemListModel& model() { return *m_model; }
    QTableView* table() const { return m_table; }

    // The row's start button: starts, or stops (which finishes) the item.
    void startOrStop(Item* item);
    // The context menu of a row, as built for it.
    QMenu* buildMenu(Item* item);
    // The postpone panel for the item, unless it runs (refused with a message) or is finished.
    void postpone(Item* item);
    // The list as a report: its rows under its totals.
    Report report() const;
    // Selects the item's row, if it is listed.
    void select(const Item* item);
    // The item of the current row, if any.
    Item* selectedItem() const;

Q_SIGNALS:
    // The main view is asked to show another segment, where an item now belongs.
    void segmentRequested(lullet::Segment segment);
    // The project list's own buttons.
    void projectDeletionRequested(lullet::Project* project);
    void projectDuplicated(lullet::Project* project);
    // The project's tasks are to be added to and edited in their own panel.
    void addTasksRequested(lullet::Project* project);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void buildHeader(QVBoxLayout* layout);
    void buildTable(QVBoxLayout* layout);
    // Shares the table's width out among its columns.
    void fitColumns();
    void listenToChanges();
    // The row's menu, at a point of the table's viewport.
    void showMenu(const QModelIndex& index, const QPoint& where);
    void finish(Item* item);
    void reload();
    void onReset();
    void onItemsChanged(Item* item);
    void onPostponed(Item* item);
    void onRunningChanged(Item* item);
    void updateStats();
    void spanHeadings();
    void updateChart();
    void showPostponeMessage(const Item& item);
    bool refusePostpone(Item* item);

    const Services& m_services;
    bool m_withHeader;
    ItemListModel* m_model;
    ListHeader* m_header = nullptr;
    QTableView* m_table = nullptr;
    QLabel* m_noData = nullptr;
    // Out of sight since it was last shown: the list holds no lines and builds none.
    bool m_released = false;
};

} // namespace lullet
