#pragma once

#include "lists/LulletListBuilder.h"
#include "lists/LulletRow.h"

#include <QAbstractTableModel>

#include <vector>

namespace lullet {

class AppDelegate;

// The rows of "Today", "Anytime" or a project, as a table: the item, its time, its planned
// length and the time used.
class LulletListModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { StartColumn, TitleColumn, TimeColumn, DurationColumn, UsedColumn, ColumnCount };
    enum Role { ItemRole = Qt::UserRole + 1, DueRole, ProjectRole, RunningRole, FinishedRole };

    LulletListModel(AppDelegate& app, LulletListBuilder::Scope scope, bool withProjectName,
                    QObject* parent = nullptr);

    // Builds the rows anew from the shared list.
    void loadLulletLists();
    // Rebuilds the texts of every row, as the minute passes.
    void refreshTexts();
    // Rebuilds the texts of the one item's row, if listed.
    void refreshItem(const ReminderInfo* item);

    const std::vector<LulletRow>& rows() const { return mArrLulletLists; }
    int rowOf(const ReminderInfo* item) const;
    const LulletListBuilder::Scope& scope() const { return m_scope; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    AppDelegate& m_app;
    LulletListBuilder::Scope m_scope;
    bool m_withProjectName;
    std::vector<LulletRow> mArrLulletLists;
};

} // namespace lullet
