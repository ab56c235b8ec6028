#pragma once

#include "core/presentation/ListBuilder.h"
#include "ui/widgets/BarChart.h"

#include <QWidget>

#include <functional>
#include <vector>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace lullet {

class CircularProgress;
class ElidedLabel;
class Item;
class Project;
class StyledButton;
struct Report;
struct Services;
struct TaskStats;

// The head of a list in the main window: its name, its counts and time, the status badge and
// the ring of progress, the idle question's switch, the list's export and a project's own
// actions; for Upcoming and Completed, the hours used by day.
class ListHeader final : public QWidget {
    Q_OBJECT
public:
    ListHeader(const Services& services, const ListBuilder::Scope& scope,
               const std::function<Report()>& report, QWidget* parent = nullptr);

    // The list's totals, as its report's head shows them, and the running item's clock.
    void showStats(const TaskStats& stats, const Item* running);
    // The hours used by day; no bars, no chart.
    void showHours(std::vector<BarChart::Bar> hours);
    std::vector<BarChart::Bar> hours() const;

Q_SIGNALS:
    void showRunningOnlyToggled(bool on);
    // A project's own actions.
    void addTasksRequested(lullet::Project* project);
    void projectDuplicated(lullet::Project* project);
    void projectDeletionRequested(lullet::Project* project);

private:
    void buildName(QVBoxLayout* texts);
    void buildCounts(QVBoxLayout* texts);
    // Answers the row, for the buttons beside the switches.
    QHBoxLayout* buildSwitchRow(QVBoxLayout* texts);
    void buildBadgeAndRing(QHBoxLayout* header);
    void buildExportButton(QHBoxLayout* row, const std::function<Report()>& report);
    void buildProjectButton(QHBoxLayout* row);

    const Services& m_services;
    ListBuilder::Scope m_scope;
    ElidedLabel* m_name = nullptr;
    QLabel* m_taskCount = nullptr;
    QLabel* m_completedCount = nullptr;
    QLabel* m_dueCount = nullptr;
    QLabel* m_todayCount = nullptr;
    QLabel* m_timeUsed = nullptr;
    QLabel* m_todayTime = nullptr;
    ElidedLabel* m_runningClock = nullptr;
    CircularProgress* m_progress = nullptr;
    StyledButton* m_status = nullptr;
    BarChart* m_chart = nullptr;
};

} // namespace lullet
