#include "ui/main/ItemListView.h"

#include "core/activity/ItemActions.h"
#include "core/activity/RunningItem.h"
#include "core/app/Services.h"
#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/monitor/Monitor.h"
#include "core/presentation/Sidebar.h"
#include "core/presentation/TaskStats.h"
#include "core/reports/Report.h"
#include "core/scheduling/CatalogueEntries.h"
#include "core/text/LocalizedText.h"
#include "ui/desktop/MemoryTrim.h"
#include "ui/main/ItemListModel.h"
#include "ui/main/ItemMenu.h"
#include "ui/main/ListHeader.h"
#include "ui/main/PostponePanel.h"
#include "ui/main/StartButtonDelegate.h"
#include "ui/widgets/Dialogs.h"

#include <QHeaderView>
#include <QHideEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace lullet {

namespace {

constexpr int minimumTitleWidth = 150;
constexpr int preferredTimeWidth = 180;
// Enough for "1:00 PM" and "Due in 2 days" at the usual font.
constexpr int minimumTimeWidth = 110;
constexpr int preferredDurationWidth = 64;
constexpr int preferredUsedWidth = 72;

} // namespace

ItemListView::ItemListView(const Services& services, const ListBuilder::Scope& scope,
                           bool withHeader, QWidget* parent)
    : QWidget(parent)
    , m_services(services)
    , m_withHeader(withHeader)
    , m_model(new ItemListModel(services, scope,
                                withHeader && !scope.project ? RowTexts::ProjectName::InList
                                                             : RowTexts::ProjectName::None,
                                this))
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
    m_header = new ListHeader(
        m_services, m_model->scope(), [this] { return report(); }, this);
    connect(m_header, &ListHeader::showRunningOnlyToggled, m_model,
            &ItemListModel::setShowRunningOnly);
    connect(m_header, &ListHeader::addTasksRequested, this, &ItemListView::addTasksRequested);
    connect(m_header, &ListHeader::projectDuplicated, this, &ItemListView::projectDuplicated);
    connect(m_header, &ListHeader::projectDeletionRequested, this,
            &ItemListView::projectDeletionRequested);
    layout->addWidget(m_header);
}

Report ItemListView::report() const
{
    Report report = Report::ofLines(m_model->scope().title(), m_model->lines(), m_services.library,
                                    m_services.clock);
    if (m_header)
        report.hoursByDay = m_header->hours();
    return report;
}

QMenu* ItemListView::buildMenu(Item* item)
{
    auto* menu = new ItemMenu(m_services, item, this);
    connect(menu, &ItemMenu::startOrStopRequested, this, &ItemListView::startOrStop);
    connect(menu, &ItemMenu::finishRequested, this, &ItemListView::finish);
    connect(menu, &ItemMenu::postponePanelRequested, this, &ItemListView::postpone);
    return menu;
}

void ItemListView::updateStats()
{
    if (!m_header)
        return;
    m_header->showStats(m_model->lines().stats(), m_services.running.item());
}

// Upcoming and Completed: the time used by day, as bars.
void ItemListView::updateChart()
{
    if (!m_header)
        return;
    std::vector<BarChart::Bar> hours;
    if (!m_model->scope().isCustomListing())
        return;
    for (const auto& [day, seconds] : m_model->lines().usedByDay())
        hours.push_back(
            {QString::number(day.day()) + u' ' + day.shortMonthToString(), seconds / 3600.0});
    m_header->showHours(std::move(hours));
}

void ItemListView::buildTable(QVBoxLayout* layout)
{
    m_table = new QTableView(this);
    // Set before the model: afterwards, each of a long list's rows would be resized and queued
    // for an update one by one.
    m_table->verticalHeader()->setDefaultSectionSize(34);
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
    QHeaderView* columns = m_table->horizontalHeader();
    columns->setSectionResizeMode(ItemListModel::TitleColumn, QHeaderView::Stretch);
    columns->setSectionResizeMode(ItemListModel::StartColumn, QHeaderView::Fixed);
    // The title takes what the other columns leave; the time column is wide enough for "Due
    // from 1 hr 30 min at 10:15 AM" and the user may widen it.
    m_table->setColumnWidth(ItemListModel::TimeColumn, preferredTimeWidth);
    m_table->setColumnWidth(ItemListModel::DurationColumn, preferredDurationWidth);
    m_table->setColumnWidth(ItemListModel::UsedColumn, preferredUsedWidth);
    columns->setMinimumSectionSize(36);
    m_table->setWordWrap(false);
    // Reached with Tab: Space or Return starts or stops the current row, the menu key opens its
    // menu.
    m_table->setFocusPolicy(Qt::StrongFocus);
    m_table->installEventFilter(this);
    m_table->setColumnWidth(ItemListModel::StartColumn, 36);
    auto* startButtons = new StartButtonDelegate(m_table);
    m_table->setItemDelegateForColumn(ItemListModel::StartColumn, startButtons);
    connect(startButtons, &StartButtonDelegate::clicked, this,
            [this](const QModelIndex& index) { startOrStop(m_model->itemAt(index.row())); });
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
    Item* item = index.isValid() ? m_model->itemAt(index.row()) : nullptr;
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
    // The table's own size, known only once its layout has placed it.
    if (watched == m_table && event->type() == QEvent::Resize)
        fitColumns();
    if (watched != m_table || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const QModelIndex current = m_table->currentIndex();
    Item* item = current.isValid() ? m_model->itemAt(current.row()) : nullptr;
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

void ItemListView::fitColumns()
{
    if (!m_withHeader)
        return;
    // The title comes first: the planned and used times show when they leave it room enough to
    // read, and the time column gives way down to what its shortest texts need.
    const int start = m_table->columnWidth(ItemListModel::StartColumn);
    const int times = preferredDurationWidth + preferredUsedWidth;
    const int room = m_table->width() - 2 * m_table->frameWidth() -
                     m_table->verticalScrollBar()->sizeHint().width() - start;
    const bool narrow = room - preferredTimeWidth - times < minimumTitleWidth;
    m_table->setColumnHidden(ItemListModel::DurationColumn, narrow);
    m_table->setColumnHidden(ItemListModel::UsedColumn, narrow);
    const int time = std::clamp(room - minimumTitleWidth - (narrow ? 0 : times), minimumTimeWidth,
                                preferredTimeWidth);
    m_table->setColumnWidth(ItemListModel::TimeColumn, time);
}

void ItemListView::reload()
{
    if (!m_released)
        m_model->reload();
}

// A list of the whole history takes megabytes, and rebuilding it at each change of an item
// takes time: out of sight, in a closed window, it gives its lines up and is built again as it
// shows. A minimised window keeps its list.
void ItemListView::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous() || m_released)
        return;
    m_released = true;
    m_model->release();
    MemoryTrim::soon();
}

void ItemListView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_released)
        return;
    m_released = false;
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
    return current.isValid() ? m_model->itemAt(current.row()) : nullptr;
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
    if (!item || !item->hasContext() || !m_withHeader || shown.project)
        return;
    const Segment target = Sidebar::segmentFor(*item, m_services.clock.now());
    if (target != shown.segment && target != Segment::Project)
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
    const QModelIndex current = m_table->currentIndex();
    const std::optional<ListLines::Line> was =
        current.isValid() ? std::optional(m_model->lines().at(std::size_t(current.row())))
                          : std::nullopt;
    reload();
    const int row = was ? m_model->lines().indexOf(*was) : m_model->rowOf(item);
    if (row >= 0) {
        m_table->selectRow(row);
        m_table->scrollTo(m_model->index(row, 0));
    }
}

void ItemListView::spanHeadings()
{
    m_table->clearSpans();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        // A day's heading across the whole row.
        if (m_model->isHeading(row))
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
                            tr("%1 has been completed now")
                                .arg(CatalogueEntries::shown(item->title().value_or(QString()))));
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

void ItemListView::showPostponeMessage(const Item& item)
{
    const std::optional<Date> due = item.effectiveDate();
    if (!due)
        return;
    Dialogs::inform(this, tr("Lullet postponed"),
                    // The title, then the day, month and year.
                    tr("%1 has been postponed to %2 %3 %4")
                        .arg(CatalogueEntries::shown(item.title().value_or(QString())),
                             QString::number(due->day()),
                             LocalizedText::capitalizeFirst(due->shortMonthToString()),
                             QString::number(due->year())));
}

} // namespace lullet
