#include "lists/LulletListModel.h"

#include "core/app/AppDelegate.h"
#include "lists/RowValues.h"

#include <QColor>
#include <QFont>

namespace lullet {

LulletListModel::LulletListModel(AppDelegate& app, LulletListBuilder::Scope scope,
                                 bool withProjectName, QObject* parent)
    : QAbstractTableModel(parent)
    , m_app(app)
    , m_scope(std::move(scope))
    , m_withProjectName(withProjectName)
{
    loadLulletLists();
}

void LulletListModel::loadLulletLists()
{
    beginResetModel();
    mArrLulletLists.clear();
    if (m_scope.isCustomListing()) {
        mArrLulletLists = LulletListBuilder::customListing(m_scope.segment, m_app);
        endResetModel();
        return;
    }
    const std::vector<ReminderInfo*> items =
        LulletListBuilder::prepareLulletListArray(m_scope, m_app);
    // A project's list shows its whole content by day.
    if (m_scope.project) {
        mArrLulletLists = LulletListBuilder::groupByDay(items, m_app, m_withProjectName);
    } else {
        for (ReminderInfo* item : items)
            mArrLulletLists.push_back(RowValues::makeRow(item, m_app, m_withProjectName));
    }
    endResetModel();
}

void LulletListModel::refreshTexts()
{
    for (LulletRow& row : mArrLulletLists) {
        if (row.type == LulletRow::Item)
            RowValues::setValues(row, m_app, m_withProjectName);
    }
    if (!mArrLulletLists.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

void LulletListModel::refreshItem(const ReminderInfo* item)
{
    const int row = rowOf(item);
    if (row < 0)
        return;
    RowValues::setValues(mArrLulletLists[std::size_t(row)], m_app, m_withProjectName);
    Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

int LulletListModel::rowOf(const ReminderInfo* item) const
{
    for (std::size_t i = 0; i < mArrLulletLists.size(); ++i) {
        if (mArrLulletLists[i].representedObject == item)
            return int(i);
    }
    return -1;
}

int LulletListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(mArrLulletLists.size());
}

int LulletListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LulletListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const LulletRow& row = mArrLulletLists[std::size_t(index.row())];
    const ReminderInfo* item = row.representedObject;
    switch (role) {
    case ItemRole:
        return QVariant::fromValue(row.representedObject);
    case DueRole:
        return row.dueOrOverdue;
    case ProjectRole:
        return row.projectName;
    case RunningRole:
        return item && item == m_app.objReminderRunningNow;
    case FinishedRole:
        return item && item->hasFinished().value_or(false);
    case Qt::DisplayRole:
        if (row.type == LulletRow::DayHeading) {
            if (index.column() == StartColumn)
                return row.countOnDay > 0
                           ? row.title + QStringLiteral("  (%1)").arg(row.countOnDay) +
                                 (row.timeUsedInSeconds > 0 ? QStringLiteral("   ") + row.timeUsed
                                                            : QString())
                           : row.title;
            return QVariant();
        }
        switch (index.column()) {
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
    case Qt::ForegroundRole:
        // Due and overdue times stand out in the warning colour.
        if (index.column() == TimeColumn && row.dueOrOverdue)
            return QColor(0xFC, 0x72, 0x74);
        return {};
    case Qt::FontRole:
        if (row.type == LulletRow::DayHeading) {
            QFont font;
            font.setBold(true);
            return font;
        }
        if (index.column() == TitleColumn && item && item->hasFinished().value_or(false)) {
            QFont font;
            font.setStrikeOut(true);
            return font;
        }
        return {};
    default:
        return {};
    }
}

QVariant LulletListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case StartColumn:
        return QString();
    case TitleColumn:
        return tr("Lullet");
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
