#pragma once

#include <QWidget>

#include <array>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace lullet {

class BarChart;
class CircularProgress;
struct Services;

// The dashboard: overdue, current and upcoming items as three circles, the items of each month
// of this year as bars, and a row for each project with its tasks and planned time. It follows
// every change of the items and projects, and the clock's minutes.
class DashboardView final : public QWidget {
    Q_OBJECT
public:
    explicit DashboardView(const Services& services, QWidget* parent = nullptr);

    const CircularProgress* circle(int index) const { return m_circles.at(std::size_t(index)); }
    BarChart* chart() const { return m_chart; }
    QTreeWidget* projects() const { return m_projects; }

    void reload();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeCircles();
    QWidget* makeChart();
    QWidget* makeProjectTable();
    void listenToChanges();
    // Print, PDF and mail of a row: its project, or the items in no project.
    void showExportMenu(const QTreeWidgetItem& row, const QPoint& where);

    const Services& m_services;
    std::array<CircularProgress*, 3> m_circles{};
    BarChart* m_chart = nullptr;
    QTreeWidget* m_projects = nullptr;
};

} // namespace lullet
