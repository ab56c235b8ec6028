#pragma once

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

class QAbstractItemView;

namespace lullet {

// The start column's button, painted rather than made a widget per row: a list of years of
// history would otherwise hold thousands of buttons, built again at every reload. It shows the
// glyph the model gives, raised under the mouse and sunk while pressed; a click on an enabled
// cell is told by clicked(). The running item's button has its progress round it. Rows without an
// item (a day's heading) paint as usual.
//
// It follows the mouse over the view itself, so that moving the pointer repaints a button's cell
// only as the pointer enters or leaves it.
class StartButtonDelegate final : public QStyledItemDelegate {
    Q_OBJECT
public:
    explicit StartButtonDelegate(QAbstractItemView* view);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void clicked(const QModelIndex& index);

private:
    static void paintProgress(QPainter* painter, const QRect& around, double fraction);
    void setHovered(const QModelIndex& index);

    QAbstractItemView* m_view;
    // Whether the style gives a hovered cell a look of its own, as some desktops' styles do.
    bool m_styleShowsHover;
    QPersistentModelIndex m_hovered;
    QPersistentModelIndex m_pressed;
};

} // namespace lullet
