#include "core/scheduling/ScheduleTableModel.h"

#include "core/dates/Clock.h"
#include "core/dates/WeekdayNames.h"
#include "core/scheduling/Catalogue.h"
#include "core/scheduling/WorkingSchedule.h"

#include <QTime>

#include <algorithm>

namespace lullet {

namespace {

// The entries sorted by day, as the table shows them.
std::vector<ScheduleInfo*> byDay(WorkingSchedule& schedules)
{
    std::vector<ScheduleInfo*> rows;
    for (ScheduleInfo& info : schedules.days())
        rows.push_back(&info);
    std::stable_sort(rows.begin(), rows.end(),
                     [](const ScheduleInfo* a, const ScheduleInfo* b) { return a->day < b->day; });
    return rows;
}

QVariant timeOf(const std::optional<Date>& date)
{
    if (!date)
        return {};
    return QTime(date->hour(), date->minute());
}

} // namespace

ScheduleTableModel::ScheduleTableModel(const Clock& clock, WorkingSchedule& schedule,
                                       Catalogue& catalogue, QObject* parent)
    : QAbstractTableModel(parent)
    , m_clock(clock)
    , m_schedule(schedule)
    , m_catalogue(catalogue)
{
}

int ScheduleTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_schedule.days().size());
}

int ScheduleTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ScheduleTableModel::data(const QModelIndex& index, int role) const
{
    const auto rows = byDay(m_schedule);
    if (!index.isValid() || index.row() >= int(rows.size()))
        return {};
    const ScheduleInfo& info = *rows[std::size_t(index.row())];
    switch (index.column()) {
    case DayColumn:
        if (role == Qt::DisplayRole)
            return WeekdayNames::name(info.day);
        break;
    case SelectedColumn:
        if (role == Qt::CheckStateRole)
            return info.isDaySelected ? Qt::Checked : Qt::Unchecked;
        break;
    case StartColumn:
        if (role == Qt::DisplayRole || role == Qt::EditRole)
            return timeOf(info.startTime);
        break;
    case EndColumn:
        if (role == Qt::DisplayRole || role == Qt::EditRole)
            return timeOf(info.endTime);
        break;
    default:
        break;
    }
    return {};
}

QVariant ScheduleTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case DayColumn:
        return tr("Day");
    case SelectedColumn:
        return tr("Working day");
    case StartColumn:
        return tr("Start");
    case EndColumn:
        return tr("End");
    default:
        return {};
    }
}

Qt::ItemFlags ScheduleTableModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags f = QAbstractTableModel::flags(index);
    if (index.column() == SelectedColumn)
        f |= Qt::ItemIsUserCheckable;
    else if (index.column() == StartColumn || index.column() == EndColumn)
        f |= Qt::ItemIsEditable;
    return f;
}

bool ScheduleTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const auto rows = byDay(m_schedule);
    if (!index.isValid() || index.row() >= int(rows.size()))
        return false;
    ScheduleInfo& info = *rows[std::size_t(index.row())];
    if (index.column() == SelectedColumn && role == Qt::CheckStateRole) {
        info.isDaySelected = value.value<Qt::CheckState>() == Qt::Checked;
    } else if ((index.column() == StartColumn || index.column() == EndColumn) &&
               role == Qt::EditRole && value.canConvert<QTime>()) {
        const QTime time = value.toTime();
        if (!time.isValid())
            return false;
        // Only the hour and minute count; the date part is that of the edit.
        std::optional<Date>& field = index.column() == StartColumn ? info.startTime : info.endTime;
        field = m_clock.now().setTimeOfDate(time.hour(), time.minute(), 0);
    } else {
        return false;
    }
    Q_EMIT dataChanged(index, index, {role});
    onChangeTimeDuration();
    return true;
}

void ScheduleTableModel::onChangeTimeDuration()
{
    m_catalogue.refreshSuggestionTexts();
}

} // namespace lullet
