#include "lists/LulletListViewController.h"

#include "core/app/AppDelegate.h"
#include "core/dates/Clock.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "lists/ListActions.h"
#include "lists/LulletListModel.h"
#include "lists/PostponeViewControllerNew.h"
#include "lists/ProjectActions.h"
#include "lists/RowValues.h"
#include "lists/TaskStats.h"
#include "monitor/Postponing.h"
#include "toolkit/ButtonStyles.h"
#include "toolkit/CircularBarView.h"
#include "toolkit/HexColor.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <QValueAxis>

namespace lullet {

namespace {

const QString ongoingColor = QStringLiteral("FC7274");
const QString completedColor = QStringLiteral("A0CFAB");

QLabel* countLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

LulletListViewController::LulletListViewController(AppDelegate& app, LulletListBuilder::Scope scope,
                                                   bool withHeader, QWidget* parent)
    : QWidget(parent)
    , m_app(app)
    , m_withHeader(withHeader)
    , m_model(new LulletListModel(app, scope, withHeader && !scope.project, this))
    , m_table(new QTableView(this))
    , m_viewNoData(new QLabel(tr("Nothing here. Enjoy the calm."), this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(withHeader ? 16 : 0, withHeader ? 12 : 0, withHeader ? 16 : 0, 0);
    if (withHeader) {
        auto* header = new QHBoxLayout;
        auto* texts = new QVBoxLayout;
        lblHeaderName = new QLabel(scope.segment, this);
        QFont big = lblHeaderName->font();
        big.setPointSizeF(big.pointSizeF() * 1.6);
        big.setBold(true);
        lblHeaderName->setFont(big);
        texts->addWidget(lblHeaderName);
        auto* counts = new QHBoxLayout;
        lblTaskCountHead = countLabel(this);
        lblCompletedCountHead = countLabel(this);
        lblDueCountHead = countLabel(this);
        lblTodayCountHead = countLabel(this);
        for (QLabel* l :
             {lblTaskCountHead, lblCompletedCountHead, lblDueCountHead, lblTodayCountHead})
            counts->addWidget(l);
        counts->addStretch();
        texts->addLayout(counts);
        lblTimeCompleted = countLabel(this);
        texts->addWidget(lblTimeCompleted);
        header->addLayout(texts, 1);
        if (Project* project = scope.project) {
            lblHeaderName->setText(project->name().value_or(QString()));
            auto* duplicate = new QPushButton(tr("Duplicate"), this);
            duplicate->setObjectName(QStringLiteral("onDuplicateAsNew"));
            auto* remove = new QPushButton(tr("Delete"), this);
            remove->setObjectName(QStringLiteral("onDeleteProject"));
            header->addWidget(duplicate, 0, Qt::AlignVCenter);
            header->addWidget(remove, 0, Qt::AlignVCenter);
            connect(duplicate, &QPushButton::clicked, this,
                    [this, project] { ProjectActions::duplicateAsNew(m_app, *project); });
            connect(remove, &QPushButton::clicked, this, [this, project] {
                if (ProjectActions::deleteAsks(*project) &&
                    QMessageBox::question(this, ProjectActions::deleteTitle(),
                                          ProjectActions::deleteQuestion(),
                                          QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes)
                    return;
                m_app.notifCenter().post(notification::onDeleteRequested,
                                         QVariant::fromValue(project));
            });
        }
        btnOngoingOrCompleted = new ButtonStyles(QString(), this);
        btnOngoingOrCompleted->bNoHover = true;
        header->addWidget(btnOngoingOrCompleted, 0, Qt::AlignVCenter);
        circularView = new CircularBarView(this);
        circularView->setColor(*HexColor::fromHex(ongoingColor));
        circularView->setLineWidth(8);
        circularView->setFixedSize(72, 72);
        header->addWidget(circularView);
        layout->addLayout(header);
        if (scope.isCustomListing()) {
            m_chart = new QChartView(this);
            m_chart->setObjectName(QStringLiteral("barChartView"));
            m_chart->setRenderHint(QPainter::Antialiasing);
            m_chart->setMinimumHeight(160);
            m_chart->setMaximumHeight(200);
            layout->addWidget(m_chart);
        }
    }

    m_table->setModel(m_model);
    m_table->setObjectName(QStringLiteral("tblLulletList"));
    m_table->setShowGrid(false);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(34);
    m_table->horizontalHeader()->setSectionResizeMode(LulletListModel::TitleColumn,
                                                      QHeaderView::Stretch);
    m_table->horizontalHeader()->setSectionResizeMode(LulletListModel::StartColumn,
                                                      QHeaderView::Fixed);
    // The title takes what the other columns leave; the time column is wide enough for "Due
    // from 1 hr 30 min at 10:15 AM" and the user may widen it.
    m_table->setColumnWidth(LulletListModel::TimeColumn, 180);
    m_table->setColumnWidth(LulletListModel::DurationColumn, 64);
    m_table->setColumnWidth(LulletListModel::UsedColumn, 72);
    m_table->horizontalHeader()->setMinimumSectionSize(36);
    m_table->setWordWrap(false);
    m_table->setFocusPolicy(Qt::NoFocus);
    m_table->setColumnWidth(LulletListModel::StartColumn, 36);
    m_table->horizontalHeader()->setVisible(withHeader);
    if (!withHeader) {
        m_table->hideColumn(LulletListModel::DurationColumn);
        m_table->hideColumn(LulletListModel::UsedColumn);
        m_table->setMinimumSize(380, 260);
    }
    m_table->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_table, &QWidget::customContextMenuRequested, this, [this](const QPoint& pos) {
        const QModelIndex index = m_table->indexAt(pos);
        // A click beside the rows opens nothing.
        if (!index.isValid())
            return;
        m_table->selectRow(index.row());
        auto* item = m_model->data(index, LulletListModel::ItemRole).value<ReminderInfo*>();
        if (!item)
            return;
        QMenu* menu = buildMenu(item);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->popup(m_table->viewport()->mapToGlobal(pos));
    });
    layout->addWidget(m_table, 1);
    m_viewNoData->setAlignment(Qt::AlignCenter);
    m_viewNoData->setForegroundRole(QPalette::PlaceholderText);
    layout->addWidget(m_viewNoData, 1);

    connect(m_model, &QAbstractItemModel::modelReset, this, [this] {
        placeStartButtons();
        m_table->selectionModel()->clear();
        const bool empty = m_model->rowCount() == 0;
        m_viewNoData->setVisible(empty);
        m_table->setVisible(!empty);
        updateStatsDisplay();
        updateChart();
    });

    NotificationCenter& center = m_app.notifCenter();
    for (const QLatin1String name : {notification::onQuickAddFromPrompt,
                                     notification::preRemoveInOther, notification::onItemDeleted})
        center.addObserver(this, name, [this](const QVariant&) { loadLulletLists(); });
    for (const QLatin1String name :
         {notification::onReminderStarted, notification::onReminderFinished,
          notification::onReminderExtended}) {
        center.addObserver(this, name, [this](const QVariant& object) {
            // Upcoming and Completed give way to "Today", where the running state shows.
            if (m_withHeader && m_model->scope().isCustomListing() &&
                object.value<ReminderInfo*>()) {
                m_app.objProjectSelectedNow = nullptr;
                m_app.strSegmentSelectedNow = QStringLiteral("Today");
                m_app.notifCenter().post(notification::onExternallyShiftSegment);
                return;
            }
            loadLulletLists();
        });
    }
    center.addObserver(this, notification::onItemAddedOrEdited, [this](const QVariant& object) {
        loadLulletLists();
        // A new or edited item is shown selected where it now stands.
        ReminderInfo* item = object.value<ReminderInfo*>();
        const int row = m_model->rowOf(item);
        if (row >= 0) {
            m_table->selectRow(row);
            return;
        }
        // Not listed here: the main view moves to where it belongs.
        const LulletListBuilder::Scope& shown = m_model->scope();
        if (item && item->hasContext() && m_withHeader && !shown.project &&
            !shown.isCustomListing()) {
            const QString target =
                item->effectiveDate() ? QStringLiteral("Today") : QStringLiteral("Anytime");
            if (target != shown.segment &&
                LulletListBuilder::belongs(*item, {target, nullptr, false}, m_app)) {
                m_app.strSegmentSelectedNow = target;
                m_app.notifCenter().post(notification::onExternallyShiftSegment);
            }
        }
    });
    center.addObserver(this, notification::onReminderPostponed, [this](const QVariant& object) {
        const ReminderInfo* item = object.value<ReminderInfo*>();
        const bool wasListed = item && m_model->rowOf(item) >= 0;
        loadLulletLists();
        // Moved out of the day's list: say where it went.
        const LulletListBuilder::Scope& shown = m_model->scope();
        if (wasListed && m_model->rowOf(item) < 0 && isVisible() && !shown.project &&
            shown.segment != QStringLiteral("Anytime"))
            showPostponeMessage(*item);
    });
    center.addObserver(this, notification::updateDueStatusDisplay, [this](const QVariant&) {
        m_model->refreshTexts();
        updateStatsDisplay();
    });
    center.addObserver(this, notification::onMonitoringDone,
                       [this](const QVariant&) { onMonitoringDone(); });

    loadLulletLists();
}

void LulletListViewController::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // A narrow window keeps the title readable and leaves the planned and used times out.
    if (m_withHeader) {
        const bool narrow = width() < 560;
        m_table->setColumnHidden(LulletListModel::DurationColumn, narrow);
        m_table->setColumnHidden(LulletListModel::UsedColumn, narrow);
    }
}

void LulletListViewController::loadLulletLists()
{
    m_model->loadLulletLists();
}

void LulletListViewController::placeStartButtons()
{
    m_table->clearSpans();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const QModelIndex index = m_model->index(row, LulletListModel::StartColumn);
        auto* item = m_model->data(index, LulletListModel::ItemRole).value<ReminderInfo*>();
        if (!item) {
            // A day's heading across the whole row.
            m_table->setSpan(row, 0, 1, LulletListModel::ColumnCount);
            continue;
        }
        const bool running = item == m_app.objReminderRunningNow;
        const bool finished = item && item->hasFinished().value_or(false);
        auto* button = new QPushButton(finished  ? QStringLiteral("✓")
                                       : running ? QStringLiteral("■")
                                                 : QStringLiteral("▶"));
        button->setFlat(true);
        button->setEnabled(!finished);
        button->setToolTip(running ? tr("Stop: it is done") : tr("Start"));
        button->setObjectName(QStringLiteral("onStartStopLullet"));
        connect(button, &QPushButton::clicked, this, [this, item] { onStartStopLullet(item); });
        m_table->setIndexWidget(index, button);
    }
}

void LulletListViewController::onStartStopLullet(ReminderInfo* item)
{
    if (!item || !item->hasContext())
        return;
    if (item == m_app.objReminderRunningNow) {
        ListActions::finish(m_app, *item);
        if (!m_withHeader)
            showTaskCompletionMessage(*item);
        return;
    }
    if (ListActions::start(m_app, *item) != ListActions::StartResult::AnotherIsRunning)
        return;
    QMessageBox box(QMessageBox::Question, QStringLiteral("Lullet"),
                    ListActions::alreadyRunningMessage(), QMessageBox::NoButton, this);
    box.setInformativeText(ListActions::alreadyRunningInformation());
    QPushButton* start = box.addButton(tr("Start"), QMessageBox::AcceptRole);
    box.addButton(tr("Cancel"), QMessageBox::RejectRole);
    box.exec();
    if (box.clickedButton() == start && item->hasContext())
        ListActions::confirmStart(m_app, *item);
}

bool LulletListViewController::refusePostpone(ReminderInfo* item)
{
    if (item == m_app.objReminderRunningNow) {
        QMessageBox::information(this, ListActions::cannotPostponeTitle(),
                                 ListActions::cannotPostponeText());
        return true;
    }
    // A finished item is silently not postponed.
    return item->hasFinished().value_or(false);
}

void LulletListViewController::onRescheduleLullet(ReminderInfo* item)
{
    if (refusePostpone(item))
        return;
    auto* panel = new PostponeViewControllerNew(m_app, item, this);
    const int row = m_model->rowOf(item);
    const QRect cell =
        m_table->visualRect(m_model->index(std::max(row, 0), LulletListModel::TitleColumn));
    panel->popUpAt(m_table->viewport()->mapToGlobal(cell.center()));
}

QMenu* LulletListViewController::buildMenu(ReminderInfo* item)
{
    auto* menu = new QMenu(this);
    const bool running = item == m_app.objReminderRunningNow;
    const bool finished = item->hasFinished().value_or(false);
    if (!finished) {
        connect(menu->addAction(running ? tr("Stop") : tr("Start")), &QAction::triggered, this,
                [this, item] { onStartStopLullet(item); });
        connect(menu->addAction(tr("Finish")), &QAction::triggered, this,
                [this, item] { ListActions::finish(m_app, *item); });
    }
    // The reschedule choices, for an item neither finished nor running.
    if (!finished && !item->hasStarted().value_or(false)) {
        QMenu* later = menu->addMenu(tr("Postpone"));
        const Date now = m_app.clock().now();
        const std::pair<int, QString> choices[] = {
            {Postponing::InThreeHours, tr("In 3 hours")},
            {Postponing::ThisEvening, Postponing::eveningLabel(now, m_app.clock())},
            {Postponing::Tomorrow, Postponing::nextDayLabel(now, m_app.clock())},
            {Postponing::InTwoDays, Postponing::inTwoDaysLabel(now)},
            {Postponing::ThisWeekend, Postponing::weekendLabel(now)},
            {Postponing::NextWeek, tr("Next week")},
            {Postponing::NextMonth, tr("In a month")},
        };
        for (const auto& [choice, label] : choices) {
            const int tag = choice;
            connect(later->addAction(label), &QAction::triggered, this,
                    [this, item, tag] { Postponing::chooseInMenu(m_app, item, tag); });
        }
    }
    if (!finished) {
        connect(menu->addAction(tr("Postpone…")), &QAction::triggered, this,
                [this, item] { onRescheduleLullet(item); });
    }
    menu->addSeparator();
    QMenu* moveTo = menu->addMenu(tr("Move to"));
    QMenu* duplicateTo = menu->addMenu(tr("Duplicate to"));
    if (item->toProject()) {
        connect(moveTo->addAction(tr("No Project")), &QAction::triggered, this,
                [this, item] { ListActions::moveToProject(m_app, *item, QString(), true); });
        connect(duplicateTo->addAction(tr("No Project")), &QAction::triggered, this,
                [this, item] { ListActions::duplicateToProject(m_app, *item, QString(), true); });
    }
    for (const QString& name : ListActions::getProjectsName(m_app, item->toProject())) {
        connect(moveTo->addAction(name), &QAction::triggered, this,
                [this, item, name] { ListActions::moveToProject(m_app, *item, name, false); });
        connect(duplicateTo->addAction(name), &QAction::triggered, this,
                [this, item, name] { ListActions::duplicateToProject(m_app, *item, name, false); });
    }
    moveTo->setEnabled(!moveTo->isEmpty());
    duplicateTo->setEnabled(!duplicateTo->isEmpty());
    menu->addSeparator();
    connect(menu->addAction(tr("Delete")), &QAction::triggered, this,
            [this, item] { ListActions::deleteItem(m_app, *item); });
    return menu;
}

void LulletListViewController::showPostponeMessage(const ReminderInfo& item)
{
    const std::optional<Date> due = item.effectiveDate();
    if (!due)
        return;
    QString month = due->shortMonthToString();
    if (!month.isEmpty())
        month[0] = month[0].toUpper();
    QMessageBox::information(
        this, tr("Lullet postponed"),
        item.title().value_or(QString()) + QStringLiteral(" has been postponed to ") +
            QString::number(due->day()) + u' ' + month + u' ' + QString::number(due->year()));
}

void LulletListViewController::showTaskCompletionMessage(const ReminderInfo& item)
{
    QMessageBox::information(this, tr("Task completed"),
                             item.title().value_or(QString()) +
                                 QStringLiteral(" has been completed now"));
}

void LulletListViewController::updateChart()
{
    if (!m_chart)
        return;
    auto* set = new QBarSet(tr("Hours used"));
    set->setColor(*HexColor::fromHex(ongoingColor));
    QStringList days;
    for (const auto& [day, seconds] : LulletListBuilder::timeUsedByDay(m_model->rows())) {
        *set << seconds / 3600.0;
        days << QString::number(day.day()) + u' ' + day.shortMonthToString();
    }
    auto* series = new QBarSeries;
    series->append(set);
    auto* chart = new QChart;
    chart->addSeries(series);
    chart->legend()->hide();
    chart->setMargins(QMargins(0, 0, 0, 0));
    auto* axisX = new QBarCategoryAxis;
    axisX->append(days);
    chart->addAxis(axisX, Qt::AlignBottom);
    series->attachAxis(axisX);
    auto* axisY = new QValueAxis;
    axisY->setLabelFormat(QStringLiteral("%.1f h"));
    chart->addAxis(axisY, Qt::AlignLeft);
    series->attachAxis(axisY);
    QChart* old = m_chart->chart();
    m_chart->setChart(chart);
    delete old;
}

void LulletListViewController::onMonitoringDone()
{
    if (const ReminderInfo* running = m_app.objReminderRunningNow) {
        m_model->refreshItem(running);
        updateStatsDisplay();
    }
}

void LulletListViewController::updateStatsDisplay()
{
    if (!m_withHeader)
        return;
    const TaskStats s = TaskStats::getTaskStats(m_model->rows(), m_app);
    int due = 0;
    for (const LulletRow& row : m_model->rows())
        due += row.dueOrOverdue ? 1 : 0;
    lblTaskCountHead->setText(tr("Tasks: %1").arg(s.totalCount));
    lblCompletedCountHead->setText(tr("Complete: %1").arg(s.completedCount));
    lblDueCountHead->setText(tr("Due: %1").arg(due));
    lblTodayCountHead->setText(tr("Today: %1").arg(s.countInToday));
    lblTimeCompleted->setText(tr("Time used %1 of %2")
                                  .arg(RowValues::getStringFromSeconds(int(s.timeCompletedRunning)),
                                       RowValues::getStringFromSeconds(int(s.totalTimeAllotted))));
    circularView->setProgress(s.totalTimeAllotted > 0
                                  ? double(s.timeCompletedRunning) / double(s.totalTimeAllotted)
                                  : 0.0);
    // The status button: no rows, all done, or still going.
    QString status = tr("No Lullet");
    QString color = ongoingColor;
    if (s.totalCount > 0) {
        const bool allDone = s.completedCount == s.totalCount;
        status = allDone ? tr("Completed") : tr("Ongoing");
        color = allDone ? completedColor : ongoingColor;
    }
    btnOngoingOrCompleted->setText(status);
    btnOngoingOrCompleted->baseColor = *HexColor::fromHex(color);
    btnOngoingOrCompleted->prepareDisplay();
}

} // namespace lullet
