#include "ui/main/ItemListModel.h"

#include "core/activity/RunningItem.h"
#include "core/dates/Clock.h"
#include "core/model/Item.h"
#include "core/presentation/RowTexts.h"

#include <QColor>
#include <QFont>

#include <algorithm>

namespace lullet {

ItemListModel::ItemListModel(const Clock& clock, Library& library, const RunningItem& running,
                             ListBuilder::Scope scope, bool withProjectName, QObject* parent)
    : QAbstractTableModel(parent)
    , m_clock(clock)
    , m_library(library)
    , m_running(running)
    , m_scope(scope)
    , m_withProjectName(withProjectName)
{
    reload();
}

void ItemListModel::setShowRunningOnly(bool only)
{
    if (m_scope.showRunningOnly == only)
        return;
    m_scope.showRunningOnly = only;
    reload();
}

void ItemListModel::reload()
{
    beginResetModel();
    m_rows.clear();
    if (m_scope.isCustomListing()) {
        m_rows = ListBuilder::customListing(m_scope.segment, m_library, m_clock);
        m_stale.assign(m_rows.size(), false);
        endResetModel();
        return;
    }
    const std::vector<Item*> items = ListBuilder::itemsFor(m_scope, m_library, m_clock.now());
    // A project's list shows its whole content by day.
    if (m_scope.project) {
        m_rows = ListBuilder::groupByDay(items, m_clock, m_withProjectName);
    } else {
        for (Item* item : items)
            m_rows.push_back(RowTexts::makeRow(item, m_clock, m_withProjectName));
    }
    m_stale.assign(m_rows.size(), false);
    endResetModel();
}

void ItemListModel::refreshTexts()
{
    // Marked only: a row's texts are rebuilt when it is next read, which for a long list is the
    // rows on screen and not the thousands beyond them.
    std::fill(m_stale.begin(), m_stale.end(), true);
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

void ItemListModel::refreshItem(const Item* item)
{
    const int row = rowOf(item);
    if (row < 0)
        return;
    m_stale[std::size_t(row)] = true;
    Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

const ListRow& ItemListModel::freshRow(std::size_t row) const
{
    ListRow& listRow = m_rows[row];
    if (m_stale[row]) {
        m_stale[row] = false;
        if (listRow.type == ListRow::ItemRow)
            RowTexts::setValues(listRow, m_clock, m_withProjectName);
    }
    return listRow;
}

const std::vector<ListRow>& ItemListModel::rows() const
{
    for (std::size_t row = 0; row < m_rows.size(); ++row)
        freshRow(row);
    return m_rows;
}

int ItemListModel::rowOf(const Item* item) const
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].representedObject == item)
            return int(i);
    }
    return -1;
}

QString ItemListModel::startGlyph(const Item* item) const
{
    if (!item)
        return {};
    if (item->isFinished())
        return QStringLiteral("✓");
    return m_running.isRunning(item) ? QStringLiteral("■") : QStringLiteral("▶");
}

int ItemListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int ItemListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ItemListModel::display(const ListRow& row, int column) const
{
    if (row.type == ListRow::DayHeading) {
        if (column != StartColumn)
            return {};
        if (row.countOnDay <= 0)
            return row.title;
        return row.title + QStringLiteral("  (%1)").arg(row.countOnDay) +
               (row.timeUsedInSeconds > 0 ? QStringLiteral("   ") + row.timeUsed : QString());
    }
    switch (column) {
    case StartColumn:
        return startGlyph(row.representedObject);
    case TitleColumn:
        return row.title;
    case TimeColumn:
        return row.time;
    case DurationColumn:
        return row.duration;
    case UsedColumn:
        return row.timeUsed;
    default:
        return {};
    }
}

QVariant ItemListModel::font(const ListRow& row, int column)
{
    const Item* item = row.representedObject;
    QFont font;
    if (row.type == ListRow::DayHeading)
        font.setBold(true);
    else if (column == TitleColumn && item && item->isFinished())
        font.setStrikeOut(true);
    else
        return {};
    return font;
}

QVariant ItemListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const ListRow& row = freshRow(std::size_t(index.row()));
    const Item* item = row.representedObject;
    switch (role) {
    case ItemRole:
        return QVariant::fromValue(row.representedObject);
    case DueRole:
        return row.dueOrOverdue;
    case ProjectRole:
        return row.projectName;
    case RunningRole:
        return m_running.isRunning(item);
    case FinishedRole:
        return item && item->isFinished();
    case Qt::DisplayRole:
        return display(row, index.column());
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        if (index.column() == StartColumn && item && !item->isFinished())
            return m_running.isRunning(item) ? tr("Stop: it is done") : tr("Start");
        return {};
    case Qt::ForegroundRole:
        // Due and overdue times stand out in the warning colour.
        if (index.column() == TimeColumn && row.dueOrOverdue)
            return QColor(0xFC, 0x72, 0x74);
        return {};
    case Qt::FontRole:
        return font(row, index.column());
    default:
        return {};
    }
}

Qt::ItemFlags ItemListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return Qt::NoItemFlags;
    // A day's heading is read, not chosen.
    if (m_rows[std::size_t(index.row())].type == ListRow::DayHeading)
        return Qt::ItemIsEnabled;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

QVariant ItemListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case StartColumn:
        return QString();
    case TitleColumn:
        return tr("Name");
    case TimeColumn:
        return tr("Time");
    case DurationColumn:
        return tr("Duration");
    case UsedColumn:
        return tr("Used");
    default:
        return {};
    }
}

} // namespace lullet
