#pragma once

#include "core/scheduling/CatalogueRow.h"

#include <QAbstractTableModel>

#include <vector>

namespace lullet {

class Catalogue;
class ScheduleTexts;

// The rows of the repeat list as a table: the switch, the lullet with its schedule, and when it
// comes next. Setting a row's check state switches its rule on or off.
class RepeatListModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { SwitchColumn, LulletColumn, NextColumn, ColumnCount };

    RepeatListModel(Catalogue& catalogue, const ScheduleTexts& texts, QObject* parent = nullptr);

    // The rows anew from the catalogue.
    void reload();
    // The next-time labels, as the minute passes.
    void refreshLabels();
    CatalogueRow* rowAt(int row) const;
    int rowOf(const Rule* rule) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    Catalogue& m_catalogue;
    const ScheduleTexts& m_texts;
    std::vector<CatalogueRowPtr> m_rows;
};

} // namespace lullet
