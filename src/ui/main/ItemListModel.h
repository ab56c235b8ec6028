#pragma once

#include "core/presentation/ListBuilder.h"
#include "core/presentation/ListLines.h"
#include "core/presentation/ListTexts.h"
#include "core/presentation/RowTexts.h"

#include <QAbstractTableModel>

namespace lullet {

class Item;
struct Services;

// A list's rows as a table: the item, its time, its planned length and the time used, under the
// days' headings where the list has days. Its lines hold the whole list, the history's items by
// their rows on disk; texts are made for the rows the view asks for, the rows on screen.
class ItemListModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { StartColumn, TitleColumn, TimeColumn, DurationColumn, UsedColumn, ColumnCount };
    // ItemRole: the item of a row in memory, none for a heading or a row on disk. FinishedRole
    // answers for item rows only; ProgressRole, from 0 to 1, for the running item's row only.
    enum Role {
        ItemRole = Qt::UserRole + 1,
        DueRole,
        ProjectRole,
        RunningRole,
        FinishedRole,
        ProgressRole
    };

    ItemListModel(const Services& services, const ListBuilder::Scope& scope,
                  RowTexts::ProjectName naming, QObject* parent = nullptr);

    // Builds the lines anew from the shared list and the history on disk.
    void reload();
    // Drops the lines and their texts, for a list out of sight, until the next reload.
    void release();
    // Keeps only the items that have been started, or lists all again.
    void setShowRunningOnly(bool only);
    // The minute passed: the rows whose texts it changed are told.
    void refreshTexts();
    // The texts of the one item's row are out of date, if it is listed.
    void refreshItem(const Item* item);

    const ListLines& lines() const { return m_lines; }
    const ListBuilder::Scope& scope() const { return m_scope; }
    // The item of a row, read into memory from the history on disk to be acted on; none for a
    // heading.
    Item* itemAt(int row);
    int rowOf(const Item* item) const { return m_lines.indexOf(item); }
    // The texts of a row, made now if they are not at hand.
    const ListRow& rowTexts(int row) const;
    bool isHeading(int row) const { return m_lines.at(std::size_t(row)).isHeading(); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    // The start column: "▶" to start, "■" while running, "✓" once finished.
    QString startGlyph(const ListLines::Line& line) const;
    QVariant display(const ListLines::Line& line, const ListRow& row, int column) const;
    static QVariant font(const ListLines::Line& line, int column);

    const Services& m_services;
    ListBuilder::Scope m_scope;
    ListLines m_lines;
    mutable ListTexts m_texts;
};

} // namespace lullet
