#include "ui/main/RepeatListView.h"

#include "core/activity/RunningItem.h"
#include "core/app/Services.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/model/RepeatCodes.h"
#include "core/monitor/Monitor.h"
#include "core/presentation/RowTexts.h"
#include "core/presentation/TaskStats.h"
#include "core/scheduling/Catalogue.h"
#include "ui/authoring/RuleFormView.h"
#include "ui/main/RepeatListColumns.h"
#include "ui/main/RepeatListDelegate.h"
#include "ui/main/RepeatListModel.h"
#include "ui/widgets/Dialogs.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace lullet {

RepeatListView::RepeatListView(const Services& services, QWidget* parent)
    : QWidget(parent)
    , m_services(services)
    , m_model(new RepeatListModel(services.catalogue, services.texts, this))
{
    setObjectName(QStringLiteral("repeatList"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    buildHeader();
    buildTable();
    listenToChanges();
    spanHeaders();
    fitColumns();
    updateStats();
}

void RepeatListView::buildHeader()
{
    auto* header = new QHBoxLayout;
    auto* texts = new QVBoxLayout;
    auto* title = new QLabel(tr("Lullets"), this);
    QFont big = title->font();
    big.setPointSizeF(big.pointSizeF() * 1.6);
    big.setBold(true);
    title->setFont(big);
    texts->addWidget(title);
    m_stats = new QLabel(this);
    m_stats->setObjectName(QStringLiteral("stats"));
    m_stats->setForegroundRole(QPalette::PlaceholderText);
    m_stats->setWordWrap(true);
    texts->addWidget(m_stats);
    header->addLayout(texts, 1);
    auto* add = new QPushButton(tr("New lullet…"), this);
    add->setObjectName(QStringLiteral("newLullet"));
    connect(add, &QPushButton::clicked, this, [this] { openForm(nullptr); });
    header->addWidget(add, 0, Qt::AlignBottom);
    static_cast<QVBoxLayout*>(layout())->addLayout(header);
}

void RepeatListView::buildTable()
{
    m_table = new QTableView(this);
    m_table->setObjectName(QStringLiteral("rules"));
    m_table->setAccessibleName(tr("Lullets"));
    m_table->setModel(m_model);
    m_table->setShowGrid(false);
    // A schedule or a next time that doesn't fit on its line goes on to the next.
    m_table->setWordWrap(true);
    m_table->setItemDelegate(new RepeatListDelegate(m_table));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->viewport()->installEventFilter(this);
    m_table->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_table, &QWidget::customContextMenuRequested, this, [this](const QPoint& pos) {
        const CatalogueRow* row = m_model->rowAt(m_table->indexAt(pos).row());
        // A click beside the rows or on a heading opens nothing.
        if (!row || row->type != CatalogueRow::ItemRow)
            return;
        m_table->selectRow(m_table->indexAt(pos).row());
        QMenu* menu = buildMenu(row);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->popup(m_table->viewport()->mapToGlobal(pos));
    });
    connect(m_table, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        const CatalogueRow* row = m_model->rowAt(index.row());
        if (row && row->type == CatalogueRow::ItemRow && index.column() != 0)
            openForm(row);
    });
    layout()->addWidget(m_table);
}

void RepeatListView::listenToChanges()
{
    const Library& library = m_services.library;
    connect(&library, &Library::rulesChanged, this, &RepeatListView::reload);
    connect(&m_services.catalogue, &Catalogue::suggestionsChanged, this, &RepeatListView::reload);
    // Occurrences made, started, finished or moved change what comes next and the counts.
    connect(&library, &Library::itemsChanged, this, &RepeatListView::reload);
    connect(&library, &Library::itemRemoved, this, &RepeatListView::reload);
    connect(&library, &Library::itemPostponed, this, &RepeatListView::reload);
    connect(&m_services.running, &RunningItem::started, this, &RepeatListView::reload);
    connect(&m_services.running, &RunningItem::finished, this, &RepeatListView::reload);
    connect(&m_services.running, &RunningItem::extended, this, &RepeatListView::reload);
    connect(&m_services.monitor, &Monitor::minutePassed, this, [this] {
        m_model->refreshLabels();
        fitColumns();
        updateStats();
    });
}

void RepeatListView::reload()
{
    const CatalogueRow* selected = m_model->rowAt(m_table->currentIndex().row());
    const Rule* rule = selected ? selected->representedObject : nullptr;
    m_model->reload();
    spanHeaders();
    fitColumns();
    updateStats();
    const int row = m_model->rowOf(rule);
    if (row >= 0)
        m_table->selectRow(row);
}

void RepeatListView::spanHeaders()
{
    m_table->clearSpans();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (m_model->rowAt(row)->type == CatalogueRow::Header)
            m_table->setSpan(row, 0, 1, RepeatListModel::ColumnCount);
    }
}

bool RepeatListView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_table->viewport() && event->type() == QEvent::Resize)
        fitColumns();
    return QWidget::eventFilter(watched, event);
}

void RepeatListView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        fitColumns();
    QWidget::changeEvent(event);
}

void RepeatListView::fitColumns()
{
    RepeatListColumns::fit(*m_table, *m_model);
}

void RepeatListView::updateStats()
{
    // Today's occurrences of rules: what the lullets ask of the day.
    std::vector<Item*> today;
    for (Item* item : m_services.library.items()) {
        const std::optional<Date> due = item->effectiveDate();
        if (item->uniqueId() && *item->uniqueId() != placeholderId() && due &&
            due->isToday(m_services.clock))
            today.push_back(item);
    }
    const TaskStats stats = TaskStats::of(today, m_services.clock, m_services.running);
    m_stats->setText(tr("Today: %1 of %2 done   Time used %3 of %4")
                         .arg(stats.completedCount)
                         .arg(stats.totalCount)
                         .arg(RowTexts::getStringFromSeconds(int(stats.timeCompletedRunning)),
                              RowTexts::getStringFromSeconds(int(stats.totalTimeAllotted))));
}

RuleFormView* RepeatListView::openForm(const CatalogueRow* row)
{
    auto* form = new RuleFormView(m_services, row, this);
    form->setAttribute(Qt::WA_DeleteOnClose);
    form->setWindowModality(Qt::WindowModal);
    form->show();
    return form;
}

void RepeatListView::deleteRow(const CatalogueRow* row)
{
    if (!row || !row->representedObject || !row->isCustom)
        return;
    if (!Dialogs::confirm(this, tr("Are you sure to delete ?"),
                          tr("This Reminder will be deleted."), tr("Yes"), tr("No")))
        return;
    m_services.catalogue.deleteRule(row->representedObject);
}

QMenu* RepeatListView::buildMenu(const CatalogueRow* row)
{
    auto* menu = new QMenu(this);
    if (!row)
        return menu;
    // The menu keeps its own copy: the list may be rebuilt while it is open.
    const CatalogueRow chosen = *row;
    connect(menu->addAction(tr("Edit…")), &QAction::triggered, this,
            [this, chosen] { openForm(&chosen); });
    // A suggestion can only be switched and edited.
    if (chosen.isCustom && chosen.representedObject) {
        connect(menu->addAction(tr("Delete")), &QAction::triggered, this,
                [this, chosen] { deleteRow(&chosen); });
    }
    return menu;
}

} // namespace lullet
