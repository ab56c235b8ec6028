#pragma once

#include "core/presentation/ListBuilder.h"
#include "core/presentation/ListRow.h"

#include <QAbstractTableModel>

#include <vector>

namespace lullet {

class Clock;
class Library;
class RunningItem;

// The rows of "Today", "Anytime" or a project, as a table: the item, its time, its planned
// length and the time used.
class ItemListModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { StartColumn, TitleColumn, TimeColumn, DurationColumn, UsedColumn, ColumnCount };
    enum Role { ItemRole = Qt::UserRole + 1, DueRole, ProjectRole, RunningRole, FinishedRole };

    ItemListModel(const Clock& clock, const Library& library, const RunningItem& running,
                  ListBuilder::Scope scope, bool withProjectName, QObject* parent = nullptr);

    // Builds the rows anew from the shared list.
    void reload();
    // Rebuilds the texts of every row, as the minute passes.
    void refreshTexts();
    // Rebuilds the texts of the one item's row, if listed.
    void refreshItem(const Item* item);

    const std::vector<ListRow>& rows() const { return m_rows; }
    int rowOf(const Item* item) const;
    const ListBuilder::Scope& scope() const { return m_scope; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    const Clock& m_clock;
    const Library& m_library;
    const RunningItem& m_running;
    ListBuilder::Scope m_scope;
    bool m_withProjectName;
    std::vector<ListRow> m_rows;
};

} // namespace lullet
