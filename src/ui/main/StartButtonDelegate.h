#pragma once

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

namespace lullet {

// The start column's button, painted rather than made a widget per row: a list of years of
// history would otherwise hold thousands of buttons, built again at every reload. It shows the
// glyph the model gives, raised under the mouse and sunk while pressed; a click on an enabled
// cell is told by clicked(). The running item's button has its progress round it. Rows without an
// item (a day's heading) paint as usual.
class StartButtonDelegate final : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

Q_SIGNALS:
    void clicked(const QModelIndex& index);

private:
    static void paintProgress(QPainter* painter, const QRect& around, double fraction);

    QPersistentModelIndex m_pressed;
};

} // namespace lullet
