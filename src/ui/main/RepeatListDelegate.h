#pragma once

#include <QStyledItemDelegate>

namespace lullet {

// The repeat list's cells in a table that wraps its texts: of a text on several lines, such as a
// lullet over its schedule, the first line stays one line and ends in "…" where the column is too
// narrow, while the lines under it wrap.
class RepeatListDelegate final : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // The room a cell's text leaves for its margins.
    static int textMargins(const QWidget* view);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace lullet
