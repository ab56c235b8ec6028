#include "ui/main/ItemListView.h"

#include "core/activity/ItemActions.h"
#include "core/activity/Postponing.h"
#include "core/activity/ProjectActions.h"
#include "core/activity/RunningItem.h"
#include "core/app/Services.h"
#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Project.h"
#include "core/monitor/Monitor.h"
#include "core/presentation/RowTexts.h"
#include "core/presentation/RunningStatus.h"
#include "core/presentation/TaskStats.h"
#include "core/reports/Report.h"
#include "core/settings/Settings.h"
#include "core/text/LocalizedText.h"
#include "ui/main/ItemListModel.h"
#include "ui/main/PostponePanel.h"
#include "ui/main/StartButtonDelegate.h"
#include "ui/reports/ReportCommands.h"
#include "ui/widgets/BarChart.h"
#include "ui/widgets/CircularProgress.h"
#include "ui/widgets/Dialogs.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/HexColor.h"
#include "ui/widgets/StyledButton.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

namespace lullet {

namespace {

const QString ongoingColor = QStringLiteral("FC7274");
const QString completedColor = QStringLiteral("A0CFAB");
constexpr int minimumTitleWidth = 150;

QLabel* countLabel(const QString& name, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

ItemListView::ItemListView(const Services& services, const ListBuilder::Scope& scope,
                           bool withHeader, QWidget* parent)
    : QWidget(parent)
    , m_services(services)
    , m_withHeader(withHeader)
    , m_model(new ItemListModel(services.clock, services.library, services.running, scope,
                                withHeader && !scope.project, this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(withHeader ? 16 : 0, withHeader ? 12 : 0, withHeader ? 16 : 0,
                               withHeader ? 12 : 0);
    if (withHeader)
        buildHeader(layout);
    buildTable(layout);
    connect(m_model, &QAbstractItemModel::modelReset, this, &ItemListView::onReset);
    listenToChanges();
    onReset();
}

void ItemListView::buildHeader(QVBoxLayout* layout)
{
    const ListBuilder::Scope& scope = m_model->scope();
    auto* header = new QHBoxLayout;
    auto* texts = new QVBoxLayout;
    // A long project name gives way, whole in its tooltip; the badge and the circle keep their
    // size.
    m_name = new ElidedLabel(scope.title(), this);
    m_name->setObjectName(QStringLiteral("listName"));
    QFont big = m_name->font();
    big.setPointSizeF(big.pointSizeF() * 1.6);
    big.setBold(true);
    m_name->setFont(big);
    texts->addWidget(m_name);
    buildCounts(texts);
    buildSwitchRow(texts, scope.project);
    header->addLayout(texts, 1);
    m_status = new StyledButton(QString(), this);
    m_status->setObjectName(QStringLiteral("status"));
    m_status->setHoverEnabled(false);
    m_status->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    header->addWidget(m_status, 0, Qt::AlignVCenter);
    m_progress = new CircularProgress(this);
    m_progress->setAccessibleName(tr("Completed"));
    m_progress->setColor(*HexColor::fromHex(ongoingColor));
    QColor track = *HexColor::fromHex(ongoingColor);
    track.setAlphaF(0.1f);
    m_progress->setTrackColor(track);
    m_progress->setLineWidth(8);
    m_progress->setFixedSize(72, 72);
    header->addWidget(m_progress);
    layout->addLayout(header);
    if (scope.isCustomListing()) {
        m_chart = new BarChart(this);
        m_chart->setObjectName(QStringLiteral("chart"));
        m_chart->setColor(*HexColor::fromHex(ongoingColor));
        m_chart->setUnit(QStringLiteral("h"));
        m_chart->setMinimumHeight(160);
        m_chart->setMaximumHeight(200);
        layout->addWidget(m_chart);
    }
}

// The idle question's switch ("disableAutoPrompt"), and a project's own buttons beside it.
void ItemListView::buildSwitchRow(QVBoxLayout* texts, Project* project)
{
    // The switches one above the other, so that they and the buttons fit the narrowest window.
    auto* row = new QHBoxLayout;
    auto* switches = new QVBoxLayout;
    switches->setSpacing(2);
    Settings& settings = m_services.settings;
    auto* ask = new QCheckBox(tr("Ask when idle"), this);
    ask->setObjectName(QStringLiteral("askWhenIdle"));
    ask->setToolTip(tr("When nothing runs in working hours, ask what you have been doing"));
    ask->setChecked(!settings.idleQuestionsOff());
    connect(ask, &QCheckBox::toggled, this, [this, &settings](bool on) {
        settings.setIdleQuestionsOff(!on);
        // Switched on, the question comes at once rather than a prompt period later.
        if (on && !m_services.running.item())
            m_services.monitor.askWhatNow();
    });
    switches->addWidget(ask);
    if (!m_model->scope().isCustomListing()) {
        auto* runningOnly = new QCheckBox(tr("Started only"), this);
        runningOnly->setObjectName(QStringLiteral("showRunningOnly"));
        runningOnly->setToolTip(tr("List only the items that have been started"));
        connect(runningOnly, &QCheckBox::toggled, m_model, &ItemListModel::setShowRunningOnly);
        switches->addWidget(runningOnly);
    }
    row->addLayout(switches);
    row->addStretch();
    buildExportButton(row);
    if (project)
        buildProjectButtons(row, project);
    texts->addLayout(row);
}

// Two counts a line, so that all four read in a narrow window.
void ItemListView::buildCounts(QVBoxLayout* texts)
{
    auto* counts = new QGridLayout;
    counts->setHorizontalSpacing(16);
    counts->setVerticalSpacing(0);
    m_taskCount = countLabel(QStringLiteral("taskCount"), this);
    m_completedCount = countLabel(QStringLiteral("completedCount"), this);
    m_dueCount = countLabel(QStringLiteral("dueCount"), this);
    m_todayCount = countLabel(QStringLiteral("todayCount"), this);
    counts->addWidget(m_taskCount, 0, 0);
    counts->addWidget(m_completedCount, 0, 1);
    counts->addWidget(m_dueCount, 1, 0);
    counts->addWidget(m_todayCount, 1, 1);
    counts->setColumnStretch(2, 1);
    texts->addLayout(counts);
    m_timeUsed = countLabel(QStringLiteral("timeUsed"), this);
    texts->addWidget(m_timeUsed);
    // The running item's own clock, the same text as the tray's panel shows.
    m_runningClock = new ElidedLabel(QString(), this);
    m_runningClock->setObjectName(QStringLiteral("runningClock"));
    texts->addWidget(m_runningClock);
}

// Print, PDF and mail of the list as it shows.
void ItemListView::buildExportButton(QHBoxLayout* row)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("export"));
    button->setText(tr("Export"));
    button->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(button);
    const ReportCommands commands(m_services.clock, m_services.library);
    commands.addActions(
        menu, this, [this] { return report(); },
        m_model->scope().project ? ReportCommands::emptyProjectText()
                                 : ReportCommands::emptyListText());
    button->setMenu(menu);
    row->addWidget(button);
}

Report ItemListView::report() const
{
    const ListBuilder::Scope& scope = m_model->scope();
    Report report =
        Report::ofRows(scope.title(), m_model->rows(), m_services.clock, m_services.running);
    if (m_chart)
        report.hoursByDay = m_chart->bars();
    return report;
}

// A project's own actions, in one small menu so that the header fits a narrow window.
void ItemListView::buildProjectButtons(QHBoxLayout* row, Project* project)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("projectActions"));
    button->setText(tr("Project"));
    button->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(button);
    QAction* addTasks = menu->addAction(tr("Add Tasks…"));
    addTasks->setObjectName(QStringLiteral("addTasks"));
    connect(addTasks, &QAction::triggered, this,
            [this, project] { Q_EMIT addTasksRequested(project); });
    QAction* duplicate = menu->addAction(tr("Duplicate"));
    duplicate->setObjectName(QStringLiteral("duplicateProject"));
    QAction* remove = menu->addAction(tr("Delete"));
    remove->setObjectName(QStringLiteral("deleteProject"));
    button->setMenu(menu);
    row->addWidget(button);
    connect(duplicate, &QAction::triggered, this, [this, project] {
        Q_EMIT projectDuplicated(m_services.projectActions.duplicateAsNew(*project));
    });
    connect(remove, &QAction::triggered, this, [this, project] {
        if (ProjectActions::deleteAsks(*project) &&
            !Dialogs::confirm(this, ProjectActions::deleteTitle(),
                              ProjectActions::deleteQuestion()))
            return;
        Q_EMIT projectDeletionRequested(project);
    });
}

void ItemListView::buildTable(QVBoxLayout* layout)
{
    m_table = new QTableView(this);
    m_table->setModel(m_model);
    m_table->setObjectName(QStringLiteral("items"));
    const ListBuilder::Scope& scope = m_model->scope();
    const QString listName = scope.title();
    m_table->setAccessibleName(listName.isEmpty() ? tr("Items") : listName);
    m_table->setShowGrid(false);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(34);
    QHeaderView* columns = m_table->horizontalHeader();
    columns->setSectionResizeMode(ItemListModel::TitleColumn, QHeaderView::Stretch);
    columns->setSectionResizeMode(ItemListModel::StartColumn, QHeaderView::Fixed);
    // The title takes what the other columns leave; the time column is wide enough for "Due
    // from 1 hr 30 min at 10:15 AM" and the user may widen it.
    m_table->setColumnWidth(ItemListModel::TimeColumn, 180);
    m_table->setColumnWidth(ItemListModel::DurationColumn, 64);
    m_table->setColumnWidth(ItemListModel::UsedColumn, 72);
    columns->setMinimumSectionSize(36);
    m_table->setWordWrap(false);
    // Reached with Tab: Space or Return starts or stops the current row, the menu key opens its
    // menu.
    m_table->setFocusPolicy(Qt::StrongFocus);
    m_table->installEventFilter(this);
    m_table->setColumnWidth(ItemListModel::StartColumn, 36);
    auto* startButtons = new StartButtonDelegate(m_table);
    m_table->setItemDelegateForColumn(ItemListModel::StartColumn, startButtons);
    // The painted buttons rise under the mouse.
    m_table->viewport()->setAttribute(Qt::WA_Hover);
    connect(startButtons, &StartButtonDelegate::clicked, this, [this](const QModelIndex& index) {
        startOrStop(m_model->data(index, ItemListModel::ItemRole).value<Item*>());
    });
    columns->setVisible(m_withHeader);
    if (!m_withHeader) {
        m_table->hideColumn(ItemListModel::DurationColumn);
        m_table->hideColumn(ItemListModel::UsedColumn);
        m_table->setMinimumSize(380, 260);
    }
    m_table->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_table, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& pos) { showMenu(m_table->indexAt(pos), pos); });
    layout->addWidget(m_table, 1);
    m_noData = new QLabel(tr("Nothing here. Enjoy the calm."), this);
    m_noData->setAlignment(Qt::AlignCenter);
    m_noData->setForegroundRole(QPalette::PlaceholderText);
    layout->addWidget(m_noData, 1);
}

void ItemListView::showMenu(const QModelIndex& index, const QPoint& where)
{
    auto* item = m_model->data(index, ItemListModel::ItemRole).value<Item*>();
    // A click beside the rows or on a heading opens nothing.
    if (!item)
        return;
    m_table->selectRow(index.row());
    QMenu* menu = buildMenu(item);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(m_table->viewport()->mapToGlobal(where));
}

bool ItemListView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_table || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const QModelIndex current = m_table->currentIndex();
    auto* item = m_model->data(current, ItemListModel::ItemRole).value<Item*>();
    if (!item)
        return false;
    switch (key->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // As the row's button, which a finished item doesn't have.
        if (!item->isFinished())
            startOrStop(item);
        return true;
    case Qt::Key_Menu:
        showMenu(current, m_table->visualRect(current).center());
        return true;
    case Qt::Key_F10:
        if (key->modifiers() != Qt::ShiftModifier)
            return false;
        showMenu(current, m_table->visualRect(current).center());
        return true;
    default:
        return false;
    }
}

void ItemListView::listenToChanges()
{
    const Library& library = m_services.library;
    connect(&library, &Library::itemsChanged, this, &ItemListView::onItemsChanged);
    connect(&library, &Library::itemRemoved, this, &ItemListView::reload);
    connect(&library, &Library::itemPostponed, this, &ItemListView::onPostponed);
    // An item moved between projects leaves the one's list at once and joins the other's; the
    // day's lists show the new project's name.
    connect(&library, &Library::projectContentChanged, this, [this](Project* project) {
        const Project* shown = m_model->scope().project;
        if (!shown || shown == project)
            reload();
    });
    const RunningItem& running = m_services.running;
    connect(&running, &RunningItem::started, this, &ItemListView::onRunningChanged);
    connect(&running, &RunningItem::finished, this, &ItemListView::onRunningChanged);
    connect(&running, &RunningItem::extended, this, &ItemListView::onRunningChanged);
    connect(&m_services.monitor, &Monitor::minutePassed, this, [this] {
        m_model->refreshTexts();
        updateStats();
    });
    connect(&m_services.monitor, &Monitor::ticked, this, [this] {
        if (const Item* item = m_services.running.item()) {
            m_model->refreshItem(item);
            updateStats();
        }
    });
}

void ItemListView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // The planned and used times show whenever they leave the title room enough to read.
    if (m_withHeader) {
        const int others = m_table->columnWidth(ItemListModel::StartColumn) +
                           m_table->columnWidth(ItemListModel::TimeColumn) +
                           m_table->columnWidth(ItemListModel::DurationColumn) +
                           m_table->columnWidth(ItemListModel::UsedColumn);
        const int room = m_table->width() - 2 * m_table->frameWidth() -
                         m_table->verticalScrollBar()->sizeHint().width() - others;
        const bool narrow = room < minimumTitleWidth;
        m_table->setColumnHidden(ItemListModel::DurationColumn, narrow);
        m_table->setColumnHidden(ItemListModel::UsedColumn, narrow);
    }
}

void ItemListView::reload()
{
    m_model->reload();
}

void ItemListView::onReset()
{
    spanHeadings();
    m_table->selectionModel()->clear();
    const bool empty = m_model->rowCount() == 0;
    m_noData->setVisible(empty);
    m_table->setVisible(!empty);
    updateStats();
    updateChart();
}

void ItemListView::select(const Item* item)
{
    const int row = m_model->rowOf(item);
    if (row < 0)
        return;
    m_table->selectRow(row);
    m_table->scrollTo(m_model->index(row, 0));
}

Item* ItemListView::selectedItem() const
{
    const QModelIndex current = m_table->currentIndex();
    return current.isValid() ? m_model->data(current, ItemListModel::ItemRole).value<Item*>()
                             : nullptr;
}

void ItemListView::onItemsChanged(Item* item)
{
    reload();
    // A new or edited item is shown selected where it now stands.
    if (m_model->rowOf(item) >= 0) {
        select(item);
        return;
    }
    // Not listed here: the main view moves to where it belongs.
    const ListBuilder::Scope& shown = m_model->scope();
    if (!item || !item->hasContext() || !m_withHeader || shown.project || shown.isCustomListing())
        return;
    const Segment target = item->effectiveDate() ? Segment::Today : Segment::Anytime;
    if (target != shown.segment &&
        ListBuilder::belongs(*item, {target, nullptr, false}, m_services.clock.now()))
        Q_EMIT segmentRequested(target);
}

void ItemListView::onPostponed(Item* item)
{
    const bool wasListed = item && m_model->rowOf(item) >= 0;
    reload();
    // Moved out of the day's list: say where it went.
    const ListBuilder::Scope& shown = m_model->scope();
    if (wasListed && m_model->rowOf(item) < 0 && isVisible() && !shown.project &&
        !shown.isAnytime())
        showPostponeMessage(*item);
}

void ItemListView::onRunningChanged(Item* item)
{
    // Upcoming and Completed give way to "Today", where the running state shows.
    if (m_withHeader && m_model->scope().isCustomListing() && item) {
        Q_EMIT segmentRequested(Segment::Today);
        return;
    }
    // The row started or stopped from the keyboard stays the current one, to be stopped the
    // same way; an item the list did not hold yet (an idle answer) is shown selected.
    const Item* current = selectedItem();
    reload();
    select(current ? current : item);
}

void ItemListView::spanHeadings()
{
    m_table->clearSpans();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        // A day's heading across the whole row.
        if (!m_model->rows()[std::size_t(row)].representedObject)
            m_table->setSpan(row, 0, 1, ItemListModel::ColumnCount);
    }
}

void ItemListView::finish(Item* item)
{
    if (m_services.itemActions.finish(*item))
        m_services.monitor.askWhatNow();
}

void ItemListView::startOrStop(Item* item)
{
    if (!item || !item->hasContext())
        return;
    if (m_services.running.isRunning(item)) {
        finish(item);
        // In the tray's panel, where nothing else shows it.
        if (!m_withHeader)
            Dialogs::inform(this, tr("Task completed"),
                            item->title().value_or(QString()) +
                                QStringLiteral(" has been completed now"));
        return;
    }
    if (m_services.itemActions.start(*item) != ItemActions::StartResult::AnotherIsRunning)
        return;
    const int answer = Dialogs::ask(this, {ItemActions::alreadyRunningMessage(),
                                           ItemActions::alreadyRunningInformation(),
                                           {tr("Start"), tr("Cancel")}});
    if (answer == 0 && item->hasContext())
        m_services.itemActions.confirmStart(*item);
}

bool ItemListView::refusePostpone(Item* item)
{
    if (m_services.running.isRunning(item)) {
        Dialogs::inform(this, ItemActions::cannotPostponeTitle(),
                        ItemActions::cannotPostponeText());
        return true;
    }
    // A finished item is silently not postponed.
    return item->isFinished();
}

void ItemListView::postpone(Item* item)
{
    if (refusePostpone(item))
        return;
    auto* panel = new PostponePanel(m_services, item, this);
    const int row = m_model->rowOf(item);
    const QRect cell =
        m_table->visualRect(m_model->index(std::max(row, 0), ItemListModel::TitleColumn));
    panel->popUpAt(m_table->viewport()->mapToGlobal(cell.center()));
}

QMenu* ItemListView::buildMenu(Item* item)
{
    auto* menu = new QMenu(this);
    const bool running = m_services.running.isRunning(item);
    const bool finished = item->isFinished();
    if (!finished) {
        connect(menu->addAction(running ? tr("Stop") : tr("Start")), &QAction::triggered, this,
                [this, item] { startOrStop(item); });
        connect(menu->addAction(tr("Finish")), &QAction::triggered, this,
                [this, item] { finish(item); });
    }
    // The reschedule choices, for an item neither finished nor running.
    if (!finished && !item->isStarted())
        addPostponeChoices(menu, item);
    if (!finished) {
        connect(menu->addAction(tr("Postpone…")), &QAction::triggered, this,
                [this, item] { postpone(item); });
    }
    menu->addSeparator();
    addMoveAndDuplicate(menu, item);
    menu->addSeparator();
    connect(menu->addAction(tr("Delete")), &QAction::triggered, this,
            [this, item] { m_services.itemActions.deleteItem(*item); });
    return menu;
}

void ItemListView::addPostponeChoices(QMenu* menu, Item* item)
{
    QMenu* later = menu->addMenu(tr("Postpone"));
    Postponing& postponing = m_services.postponing;
    const Date now = m_services.clock.now();
    const std::pair<int, QString> choices[] = {
        {Postponing::InThreeHours, tr("In 3 hours")},
        {Postponing::ThisEvening, Postponing::eveningLabel(now, m_services.clock)},
        {Postponing::Tomorrow, Postponing::nextDayLabel(now, m_services.clock)},
        {Postponing::InTwoDays, Postponing::inTwoDaysLabel(now)},
        {Postponing::ThisWeekend, Postponing::weekendLabel(now)},
        {Postponing::NextWeek, tr("Next week")},
        {Postponing::NextMonth, tr("In a month")},
    };
    for (const auto& [choice, label] : choices) {
        const int tag = choice;
        connect(later->addAction(label), &QAction::triggered, this,
                [&postponing, item, tag] { postponing.chooseInMenu(item, tag); });
    }
}

void ItemListView::addMoveAndDuplicate(QMenu* menu, Item* item)
{
    QMenu* moveTo = menu->addMenu(tr("Move to"));
    QMenu* duplicateTo = menu->addMenu(tr("Duplicate to"));
    ItemActions& actions = m_services.itemActions;
    const auto addTarget = [&](const QString& title, Project* target) {
        connect(moveTo->addAction(title), &QAction::triggered, this,
                [&actions, item, target] { actions.moveToProject(*item, target); });
        connect(duplicateTo->addAction(title), &QAction::triggered, this,
                [&actions, item, target] { actions.duplicateToProject(*item, target); });
    };
    if (item->toProject())
        addTarget(tr("No Project"), nullptr);
    for (Project* project : actions.otherProjects(*item))
        addTarget(project->name().value_or(QString()), project);
    moveTo->setEnabled(!moveTo->isEmpty());
    duplicateTo->setEnabled(!duplicateTo->isEmpty());
}

void ItemListView::showPostponeMessage(const Item& item)
{
    const std::optional<Date> due = item.effectiveDate();
    if (!due)
        return;
    Dialogs::inform(this, tr("Lullet postponed"),
                    item.title().value_or(QString()) + QStringLiteral(" has been postponed to ") +
                        QString::number(due->day()) + u' ' +
                        LocalizedText::capitalizeFirst(due->shortMonthToString()) + u' ' +
                        QString::number(due->year()));
}

void ItemListView::updateChart()
{
    if (!m_chart)
        return;
    std::vector<BarChart::Bar> hours;
    for (const auto& [day, seconds] : ListBuilder::timeUsedByDay(m_model->rows()))
        hours.push_back(
            {QString::number(day.day()) + u' ' + day.shortMonthToString(), seconds / 3600.0});
    // No bars, no empty box above "Nothing here".
    m_chart->setVisible(!hours.empty());
    m_chart->setBars(std::move(hours));
}

void ItemListView::updateStats()
{
    if (!m_withHeader)
        return;
    const TaskStats s = TaskStats::of(m_model->rows(), m_services.clock, m_services.running);
    int due = 0;
    for (const ListRow& row : m_model->rows())
        due += row.dueOrOverdue ? 1 : 0;
    m_taskCount->setText(tr("Tasks: %1").arg(s.totalCount));
    m_completedCount->setText(tr("Complete: %1").arg(s.completedCount));
    m_dueCount->setText(tr("Due: %1").arg(due));
    m_todayCount->setText(tr("Today: %1").arg(s.countInToday));
    m_timeUsed->setText(tr("Time used %1 of %2")
                            .arg(RowTexts::getStringFromSeconds(int(s.timeCompletedRunning)),
                                 RowTexts::getStringFromSeconds(int(s.totalTimeAllotted))));
    m_progress->setProgress(s.totalTimeAllotted > 0
                                ? double(s.timeCompletedRunning) / double(s.totalTimeAllotted)
                                : 0.0);
    // The status: no rows, all done, or still going.
    QString status = tr("No Lullet");
    QString color = ongoingColor;
    if (s.totalCount > 0) {
        const bool allDone = s.completedCount == s.totalCount;
        status = allDone ? tr("Completed") : tr("Ongoing");
        color = allDone ? completedColor : ongoingColor;
    }
    m_status->setText(status);
    m_status->setColor(*HexColor::fromHex(color));
    const Item* running = m_services.running.item();
    m_runningClock->setText(running ? tr("Running: %1").arg(RunningStatus::clockText(*running))
                                    : QString());
    m_runningClock->setVisible(running != nullptr);
}

} // namespace lullet
