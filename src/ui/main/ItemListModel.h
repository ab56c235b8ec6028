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

    ItemListModel(const Clock& clock, Library& library, const RunningItem& running,
                  ListBuilder::Scope scope, bool withProjectName, QObject* parent = nullptr);

    // Builds the rows anew from the shared list.
    void reload();
    // Keeps only the items that have been started, or lists all again.
    void setShowRunningOnly(bool only);
    // The texts of every row are out of date, as the minute passes.
    void refreshTexts();
    // The texts of the one item's row are out of date, if it is listed.
    void refreshItem(const Item* item);

    // Every row, with its texts up to date.
    const std::vector<ListRow>& rows() const;
    int rowOf(const Item* item) const;
    const ListBuilder::Scope& scope() const { return m_scope; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    // The start column: "▶" to start, "■" while running, "✓" once finished.
    QString startGlyph(const Item* item) const;
    QVariant display(const ListRow& row, int column) const;
    static QVariant font(const ListRow& row, int column);
    // The row, its texts rebuilt first if they are out of date.
    const ListRow& freshRow(std::size_t row) const;

    const Clock& m_clock;
    Library& m_library;
    const RunningItem& m_running;
    ListBuilder::Scope m_scope;
    bool m_withProjectName;
    // Texts are rebuilt as rows are read; the rows themselves stay as reload() made them.
    mutable std::vector<ListRow> m_rows;
    mutable std::vector<bool> m_stale;
};

} // namespace lullet
