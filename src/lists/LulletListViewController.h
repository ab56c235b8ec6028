#pragma once

#include "lists/LulletListBuilder.h"

#include <QWidget>

class QLabel;
class QMenu;
class QTableView;
class QChartView;

namespace lullet {

class AppDelegate;
class ButtonStyles;
class CircularBarView;
class LulletListModel;
class ReminderInfo;

// "Today", "Anytime" or a project's items, with their header statistics; without the header, the
// day's list in the status popover. Each row can be started or stopped, finished, postponed,
// moved, duplicated and deleted.
class LulletListViewController final : public QWidget {
    Q_OBJECT
public:
    LulletListViewController(AppDelegate& app, LulletListBuilder::Scope scope, bool withHeader,
                             QWidget* parent = nullptr);

    LulletListModel& model() { return *m_model; }
    QTableView* tblLulletList() const { return m_table; }

    // The row's start button: starts, or stops (which finishes) the item.
    void onStartStopLullet(ReminderInfo* item);
    // The context menu of a row, as built for it.
    QMenu* buildMenu(ReminderInfo* item);
    // The postpone panel for the item, unless it runs (refused with a message) or is finished.
    void onRescheduleLullet(ReminderInfo* item);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void loadLulletLists();
    void updateStatsDisplay();
    void placeStartButtons();
    void onMonitoringDone();
    // Upcoming and Completed: the time used by day, as bars.
    void updateChart();
    void showPostponeMessage(const ReminderInfo& item);
    // In the status popover, where nothing else shows it.
    void showTaskCompletionMessage(const ReminderInfo& item);
    bool refusePostpone(ReminderInfo* item);

    AppDelegate& m_app;
    bool m_withHeader;
    LulletListModel* m_model;
    QTableView* m_table;
    QLabel* m_viewNoData;
    QLabel* lblHeaderName = nullptr;
    QLabel* lblTaskCountHead = nullptr;
    QLabel* lblCompletedCountHead = nullptr;
    QLabel* lblDueCountHead = nullptr;
    QLabel* lblTodayCountHead = nullptr;
    QLabel* lblTimeCompleted = nullptr;
    CircularBarView* circularView = nullptr;
    ButtonStyles* btnOngoingOrCompleted = nullptr;
    QChartView* m_chart = nullptr;
};

} // namespace lullet
