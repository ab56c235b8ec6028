#include "ui/main/RepeatListModel.h"

#include "core/scheduling/Catalogue.h"
#include "core/scheduling/CatalogueEntries.h"
#include "core/scheduling/ScheduleTexts.h"

#include <QFont>

namespace lullet {

RepeatListModel::RepeatListModel(Catalogue& catalogue, const ScheduleTexts& texts, QObject* parent)
    : QAbstractTableModel(parent)
    , m_catalogue(catalogue)
    , m_texts(texts)
{
    reload();
}

void RepeatListModel::reload()
{
    beginResetModel();
    m_rows = m_catalogue.rows();
    endResetModel();
}

void RepeatListModel::refreshLabels()
{
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0, NextColumn), index(rowCount() - 1, NextColumn));
}

CatalogueRow* RepeatListModel::rowAt(int row) const
{
    return row >= 0 && row < rowCount() ? m_rows[std::size_t(row)].get() : nullptr;
}

int RepeatListModel::rowOf(const Rule* rule) const
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (rule && m_rows[i]->representedObject == rule)
            return int(i);
    }
    return -1;
}

int RepeatListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int RepeatListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant RepeatListModel::data(const QModelIndex& index, int role) const
{
    const CatalogueRow* row = rowAt(index.row());
    if (!row)
        return {};
    const bool header = row->type == CatalogueRow::Header;
    switch (role) {
    case Qt::DisplayRole:
        if (header)
            return index.column() == SwitchColumn ? CatalogueEntries::shown(row->title)
                                                  : QVariant();
        if (index.column() == LulletColumn) {
            const QString title = CatalogueEntries::shown(row->title);
            const QString text =
                row->notes.isEmpty()
                    ? title
                    : tr("%1 - %2").arg(title, CatalogueEntries::shown(row->notes));
            return text + u'\n' + row->notes2;
        }
        if (index.column() == NextColumn)
            return m_texts.nextTimeLabel(*row);
        return {};
    case Qt::CheckStateRole:
        if (!header && index.column() == SwitchColumn)
            return row->isActive ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::AccessibleTextRole:
        if (!header && index.column() == SwitchColumn)
            return CatalogueEntries::shown(row->title);
        return {};
    case Qt::FontRole:
        if (header) {
            QFont font;
            font.setBold(true);
            return font;
        }
        return {};
    default:
        return {};
    }
}

bool RepeatListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    CatalogueRow* row = rowAt(index.row());
    if (!row || role != Qt::CheckStateRole || index.column() != SwitchColumn ||
        row->type != CatalogueRow::ItemRow)
        return false;
    m_catalogue.switchRow(*row, value.value<Qt::CheckState>() == Qt::Checked);
    // The switch shows what happened, which for an ended rule is that nothing did.
    Q_EMIT dataChanged(this->index(index.row(), 0), this->index(index.row(), ColumnCount - 1));
    return true;
}

Qt::ItemFlags RepeatListModel::flags(const QModelIndex& index) const
{
    const CatalogueRow* row = rowAt(index.row());
    if (!row)
        return Qt::NoItemFlags;
    // A group's heading is read, not chosen.
    if (row->type == CatalogueRow::Header)
        return Qt::ItemIsEnabled;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() == SwitchColumn)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

QVariant RepeatListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case SwitchColumn:
        return tr("On");
    case LulletColumn:
        return tr("Lullet");
    case NextColumn:
        return tr("Next");
    default:
        return {};
    }
}

} // namespace lullet
