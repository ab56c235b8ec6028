#pragma once

#include <QAbstractTableModel>

namespace lullet {

class Catalogue;
class Clock;
class WorkingSchedule;

// The working schedule as an editable table, Sunday first: the day's name, whether it is a
// working day, and the start and end times. Every change moves the next dates of the
// suggestions at once; the archive is written when the program ends.
class ScheduleTableModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { DayColumn, SelectedColumn, StartColumn, EndColumn, ColumnCount };

    ScheduleTableModel(const Clock& clock, WorkingSchedule& schedule, Catalogue& catalogue,
                       QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // The check state of the selected column, or a QTime for the two time columns.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

private:
    // Every control of a row acts alike: the suggestions' texts follow the new hours.
    void onChangeTimeDuration();

    const Clock& m_clock;
    WorkingSchedule& m_schedule;
    Catalogue& m_catalogue;
};

} // namespace lullet
