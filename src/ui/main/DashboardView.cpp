#include "ui/main/DashboardView.h"

#include "core/activity/RunningItem.h"
#include "core/app/Services.h"
#include "core/library/Library.h"
#include "core/monitor/Monitor.h"
#include "core/presentation/DashboardSummary.h"
#include "core/presentation/RowTexts.h"
#include "core/reports/Report.h"
#include "ui/reports/ReportCommands.h"
#include "ui/widgets/BarChart.h"
#include "ui/widgets/CircularProgress.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QScrollArea>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace lullet {

namespace {

struct CircleLook {
    const char* name;
    const char* caption;
    QColor color;
};

const CircleLook circleLooks[] = {
    {"overdue", QT_TRANSLATE_NOOP("DashboardView", "Overdue"), QColor(0xE6, 0x3A, 0x46)},
    {"current", QT_TRANSLATE_NOOP("DashboardView", "Current"), QColor(0x00, 0x80, 0x80)},
    {"upcoming", QT_TRANSLATE_NOOP("DashboardView", "Upcoming"), QColor(0x00, 0x80, 0xFF)},
};

constexpr int exportColumn = 3;

QColor faded(QColor color)
{
    color.setAlphaF(0.1f);
    return color;
}

} // namespace

DashboardView::DashboardView(const Services& services, QWidget* parent)
    : QWidget(parent)
    , m_services(services)
{
    setObjectName(QStringLiteral("dashboard"));
    // In a small window the dashboard scrolls rather than asking the window for more room.
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    outer->addWidget(scroll);
    auto* content = new QWidget(scroll);
    scroll->setWidget(content);
    auto* layout = new QVBoxLayout(content);
    layout->addWidget(makeCircles());
    layout->addWidget(makeChart(), 1);
    layout->addWidget(makeProjectTable(), 1);
    listenToChanges();
    reload();
}

QWidget* DashboardView::makeCircles()
{
    auto* row = new QWidget(this);
    auto* grid = new QGridLayout(row);
    for (int i = 0; i < 3; ++i) {
        const CircleLook& look = circleLooks[i];
        auto* circle = new CircularProgress(row);
        circle->setObjectName(QLatin1String(look.name));
        circle->setAccessibleName(QCoreApplication::translate("DashboardView", look.caption));
        circle->setColor(look.color);
        circle->setTrackColor(faded(look.color));
        circle->setLineWidth(10);
        circle->setMinimumSize(72, 72);
        QFont big = circle->font();
        big.setPointSizeF(big.pointSizeF() * 1.8);
        big.setBold(true);
        circle->setFont(big);
        auto* caption = new QLabel(QCoreApplication::translate("DashboardView", look.caption), row);
        caption->setAlignment(Qt::AlignHCenter);
        grid->addWidget(circle, 0, i, Qt::AlignHCenter);
        grid->addWidget(caption, 1, i);
        m_circles[std::size_t(i)] = circle;
    }
    return row;
}

QWidget* DashboardView::makeChart()
{
    m_chart = new BarChart(this);
    m_chart->setObjectName(QStringLiteral("months"));
    m_chart->setColor(QColor(0xDC, 0xDF, 0xE6));
    m_chart->setWholeNumbers(true);
    m_chart->setEmptyText(tr("You need to provide data for the chart."));
    m_chart->setAutoFillBackground(true);
    m_chart->setBackgroundRole(QPalette::Base);
    m_chart->setMinimumHeight(100);
    return m_chart;
}

QWidget* DashboardView::makeProjectTable()
{
    m_projects = new QTreeWidget(this);
    m_projects->setObjectName(QStringLiteral("projects"));
    m_projects->setAccessibleName(tr("Projects"));
    m_projects->setColumnCount(4);
    m_projects->setHeaderLabels({tr("Project"), tr("Tasks"), tr("Planned"), QString()});
    m_projects->setRootIsDecorated(false);
    m_projects->setUniformRowHeights(true);
    m_projects->setAlternatingRowColors(true);
    m_projects->header()->setStretchLastSection(false);
    m_projects->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (const int column : {1, 2, exportColumn})
        m_projects->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    m_projects->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_projects, &QWidget::customContextMenuRequested, this, [this](const QPoint& pos) {
        if (const QTreeWidgetItem* row = m_projects->itemAt(pos))
            showExportMenu(*row, m_projects->viewport()->mapToGlobal(pos));
    });
    connect(m_projects, &QTreeWidget::itemClicked, this,
            [this](const QTreeWidgetItem* row, int column) {
                if (column != exportColumn)
                    return;
                const QRect cell = m_projects->visualItemRect(row);
                showExportMenu(*row, m_projects->viewport()->mapToGlobal(QPoint(
                                         m_projects->header()->sectionViewportPosition(column),
                                         cell.bottom())));
            });
    // The menu key and Shift+F10 open the current row's menu, as the lists' rows do.
    m_projects->installEventFilter(this);
    return m_projects;
}

bool DashboardView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_projects || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool menuKey = key->key() == Qt::Key_Menu ||
                         (key->key() == Qt::Key_F10 && key->modifiers() == Qt::ShiftModifier);
    const QTreeWidgetItem* row = m_projects->currentItem();
    if (!menuKey || !row)
        return false;
    showExportMenu(*row,
                   m_projects->viewport()->mapToGlobal(m_projects->visualItemRect(row).center()));
    return true;
}

void DashboardView::listenToChanges()
{
    const Library& library = m_services.library;
    connect(&library, &Library::itemsChanged, this, &DashboardView::reload);
    connect(&library, &Library::itemRemoved, this, &DashboardView::reload);
    connect(&library, &Library::itemPostponed, this, &DashboardView::reload);
    connect(&library, &Library::projectsChanged, this, &DashboardView::reload);
    connect(&library, &Library::projectContentChanged, this, &DashboardView::reload);
    connect(&m_services.running, &RunningItem::started, this, &DashboardView::reload);
    connect(&m_services.running, &RunningItem::finished, this, &DashboardView::reload);
    // Items cross now and midnight while nothing else changes.
    connect(&m_services.monitor, &Monitor::minutePassed, this, &DashboardView::reload);
}

void DashboardView::reload()
{
    const DashboardSummary summary =
        DashboardSummary::of(m_services.library.items(), m_services.library.projects(),
                             m_services.history, m_services.clock, m_services.running);
    const int counts[] = {summary.overdue, summary.current, summary.upcoming};
    const int sum = counts[0] + counts[1] + counts[2];
    for (std::size_t i = 0; i < m_circles.size(); ++i) {
        m_circles[i]->setCentreText(QString::number(counts[i]));
        m_circles[i]->setProgress(sum > 0 ? double(counts[i]) / sum : 0);
    }
    std::vector<BarChart::Bar> bars;
    const QStringList labels = DashboardSummary::monthLabels();
    for (std::size_t month = 0; month < summary.months.size(); ++month)
        bars.push_back({labels[qsizetype(month)], double(summary.months[month])});
    m_chart->setBars(std::move(bars));
    m_projects->clear();
    for (const DashboardSummary::ProjectRow& row : summary.rows) {
        auto* item = new QTreeWidgetItem(m_projects);
        item->setText(0, row.title);
        item->setText(1, QString::number(row.count));
        item->setText(2, RowTexts::getStringFromSeconds(int(row.plannedSeconds)));
        item->setData(0, Qt::UserRole, QVariant::fromValue(static_cast<void*>(row.project)));
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        item->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
        // A cell, not a button: the table is rebuilt on every change, and a widget per row
        // would be made again each time.
        item->setText(exportColumn, tr("Export…"));
        item->setForeground(exportColumn, m_projects->palette().brush(QPalette::Link));
        item->setToolTip(exportColumn, tr("Print, save as PDF or mail"));
    }
}

void DashboardView::showExportMenu(const QTreeWidgetItem& row, const QPoint& where)
{
    auto* project = static_cast<Project*>(row.data(0, Qt::UserRole).value<void*>());
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("exportMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const ReportCommands commands(m_services.clock, m_services.library);
    commands.addActions(
        menu, this,
        [this, project] {
            Library& library = m_services.library;
            // A project deleted while the menu was open has nothing to report.
            if (project &&
                std::ranges::find(library.projects(), project) == library.projects().end())
                return Report();
            return Report::ofProject(library, m_services.history, project, m_services.clock,
                                     m_services.running);
        },
        ReportCommands::emptyProjectText());
    menu->popup(where);
}

} // namespace lullet
