#include "ui/main/ItemListModel.h"

#include "core/activity/RunningItem.h"
#include "core/app/Services.h"
#include "core/model/Item.h"
#include "core/presentation/RunningStatus.h"

#include <QColor>
#include <QFont>

namespace lullet {

ItemListModel::ItemListModel(const Services& services, const ListBuilder::Scope& scope,
                             RowTexts::ProjectName naming, QObject* parent)
    : QAbstractTableModel(parent)
    , m_services(services)
    , m_scope(scope)
    , m_lines(services.clock, services.library, services.history, services.running)
    , m_texts(m_lines, services.library, services.clock, naming)
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
    m_lines.build(m_scope);
    m_texts.forgetAll();
    endResetModel();
}

void ItemListModel::release()
{
    beginResetModel();
    m_lines.clear();
    m_texts.forgetAll();
    endResetModel();
}

void ItemListModel::refreshTexts()
{
    // Only the rows whose texts the minute changed are told, so that an open list repaints those
    // alone, once a minute; rows off screen have no texts kept, and are made when next read.
    for (const std::size_t row : m_texts.refresh())
        Q_EMIT dataChanged(index(int(row), 0), index(int(row), ColumnCount - 1));
}

void ItemListModel::refreshItem(const Item* item)
{
    const int row = rowOf(item);
    if (row < 0)
        return;
    m_texts.forget(std::size_t(row));
    Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

Item* ItemListModel::itemAt(int row)
{
    if (row < 0 || row >= rowCount())
        return nullptr;
    return m_lines.itemAt(std::size_t(row));
}

const ListRow& ItemListModel::rowTexts(int row) const
{
    return m_texts.row(std::size_t(row));
}

QString ItemListModel::startGlyph(const ListLines::Line& line) const
{
    if (line.isFinished())
        return QStringLiteral("✓");
    return m_services.running.isRunning(line.item()) ? QStringLiteral("■") : QStringLiteral("▶");
}

int ItemListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_lines.size());
}

int ItemListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ItemListModel::display(const ListLines::Line& line, const ListRow& row, int column) const
{
    if (line.isHeading()) {
        if (column != StartColumn)
            return {};
        if (row.countOnDay <= 0)
            return row.title;
        // A day's heading, its count and the time used that day; one per day of a long history.
        static const QString counted = tr("%1  (%2)");
        static const QString timed = tr("%1  (%2)   %3");
        return row.timeUsedInSeconds > 0
                   ? timed.arg(row.title, QString::number(row.countOnDay), row.timeUsed)
                   : counted.arg(row.title, QString::number(row.countOnDay));
    }
    switch (column) {
    case StartColumn:
        return startGlyph(line);
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

QVariant ItemListModel::font(const ListLines::Line& line, int column)
{
    QFont font;
    if (line.isHeading())
        font.setBold(true);
    else if (column == TitleColumn && line.isFinished())
        font.setStrikeOut(true);
    else
        return {};
    return font;
}

QVariant ItemListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const ListLines::Line& line = m_lines.at(std::size_t(index.row()));
    switch (role) {
    case ItemRole:
        return QVariant::fromValue(line.item());
    case DueRole:
        return rowTexts(index.row()).dueOrOverdue;
    case ProjectRole:
        return rowTexts(index.row()).projectName;
    case RunningRole:
        return m_services.running.isRunning(line.item());
    case ProgressRole:
        if (m_services.running.isRunning(line.item()))
            return *RunningStatus::progress(m_services.running, m_services.clock);
        return {};
    case FinishedRole:
        return line.isHeading() ? QVariant() : QVariant(line.isFinished());
    case Qt::DisplayRole:
        return display(line, rowTexts(index.row()), index.column());
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        if (index.column() == StartColumn && !line.isHeading() && !line.isFinished())
            return m_services.running.isRunning(line.item()) ? tr("Stop: it is done") : tr("Start");
        return {};
    case Qt::ForegroundRole:
        // Due and overdue times stand out in the warning colour.
        if (index.column() == TimeColumn && !line.isHeading() && rowTexts(index.row()).dueOrOverdue)
            return QColor(0xFC, 0x72, 0x74);
        return {};
    case Qt::FontRole:
        return font(line, index.column());
    default:
        return {};
    }
}

Qt::ItemFlags ItemListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return Qt::NoItemFlags;
    // A day's heading is read, not chosen.
    if (isHeading(index.row()))
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
