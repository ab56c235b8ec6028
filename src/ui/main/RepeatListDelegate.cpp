#include "ui/main/RepeatListDelegate.h"

#include <QApplication>
#include <QFontMetrics>
#include <QStyle>

namespace lullet {

int RepeatListDelegate::textMargins(const QWidget* view)
{
    const QStyle* style = view ? view->style() : QApplication::style();
    // As the style lays out an item's text: a focus frame's margin and a pixel on each side.
    return 2 * (style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view) + 1);
}

void RepeatListDelegate::initStyleOption(QStyleOptionViewItem* option,
                                         const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // The text of the item's lines stands on lines of its own once it is an item's text.
    const qsizetype end = option->text.indexOf(QChar::LineSeparator);
    if (end < 0 || option->rect.width() <= 0)
        return;
    const int room = option->rect.width() - textMargins(option->widget);
    const QString first =
        QFontMetrics(option->font).elidedText(option->text.left(end), Qt::ElideRight, room);
    option->text = first + option->text.mid(end);
}

} // namespace lullet
