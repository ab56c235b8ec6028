#include "ui/main/StartButtonDelegate.h"

#include "core/model/Item.h"
#include "ui/main/ItemListModel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace lullet {

namespace {

// The colour of work under way, as the list's header shows it.
const QColor ringColor(0xFC, 0x72, 0x74);

bool isButton(const QModelIndex& index)
{
    return index.data(ItemListModel::FinishedRole).isValid();
}

bool isEnabled(const QModelIndex& index)
{
    return !index.data(ItemListModel::FinishedRole).toBool();
}

// Paints a cell's background hovered and not: the same pixels mean the style shows no hover.
bool showsHoveredCells(const QWidget* view)
{
    const auto background = [view](QStyle::State hover) {
        QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        QStyleOptionViewItem cell;
        cell.initFrom(view);
        cell.rect = image.rect();
        cell.state |= hover;
        view->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, &painter, view);
        return image;
    };
    return background(QStyle::State_MouseOver) != background(QStyle::State_None);
}

} // namespace

StartButtonDelegate::StartButtonDelegate(QAbstractItemView* view)
    : QStyledItemDelegate(view)
    , m_view(view)
    , m_styleShowsHover(showsHoveredCells(view))
{
    view->viewport()->setAttribute(Qt::WA_Hover);
    view->viewport()->installEventFilter(this);
}

void StartButtonDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const
{
    if (!isButton(index)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    // The row's selection behind the button, as the other cells of the row have it.
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.text.clear();
    const QWidget* widget = option.widget;
    QStyle* style = widget ? widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, widget);

    QStyleOptionButton button;
    button.rect = option.rect.adjusted(3, 3, -3, -3);
    button.text = index.data(Qt::DisplayRole).toString();
    button.palette = option.palette;
    button.fontMetrics = option.fontMetrics;
    button.features = QStyleOptionButton::Flat;
    button.state = QStyle::State_None;
    const bool enabled = isEnabled(index);
    if (enabled)
        button.state |= QStyle::State_Enabled;
    if (enabled && m_hovered == index)
        button.state |= QStyle::State_MouseOver | QStyle::State_Raised;
    if (enabled && m_pressed == index)
        button.state |= QStyle::State_Sunken;
    style->drawControl(QStyle::CE_PushButton, &button, painter, widget);
    if (const QVariant progress = index.data(ItemListModel::ProgressRole); progress.isValid())
        paintProgress(painter, button.rect, progress.toDouble());
}

// The running item's progress as a ring round its button, drawn as the list's header draws the
// list's: from the top, clockwise.
void StartButtonDelegate::paintProgress(QPainter* painter, const QRect& around, double fraction)
{
    const int side = std::min(around.width(), around.height()) - 2;
    QRectF ring(0, 0, side, side);
    ring.moveCenter(QRectF(around).center());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    QColor track = ringColor;
    track.setAlphaF(0.15f);
    painter->setPen(QPen(track, 2.5));
    painter->drawEllipse(ring);
    painter->setPen(QPen(ringColor, 2.5, Qt::SolidLine, Qt::RoundCap));
    painter->drawArc(ring, 90 * 16, -int(std::clamp(fraction, 0.0, 1.0) * 360 * 16));
    painter->restore();
}

bool StartButtonDelegate::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::HoverEnter && type != QEvent::HoverMove && type != QEvent::HoverLeave)
        return QStyledItemDelegate::eventFilter(watched, event);
    QModelIndex under;
    if (type != QEvent::HoverLeave)
        under = m_view->indexAt(static_cast<QHoverEvent*>(event)->position().toPoint());
    const bool onButton =
        m_view->itemDelegateForIndex(under) == this && isButton(under) && isEnabled(under);
    setHovered(onButton ? under : QModelIndex());
    // Otherwise the view repaints both rows at each change of row, and the whole viewport as the
    // pointer enters or leaves it: a tall fill on every crossing, for nothing to see.
    return !m_styleShowsHover;
}

void StartButtonDelegate::setHovered(const QModelIndex& index)
{
    if (m_hovered == index)
        return;
    m_view->update(m_hovered);
    m_view->update(index);
    m_hovered = index;
}

bool StartButtonDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                      const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (!isButton(index))
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    const auto* mouse = dynamic_cast<QMouseEvent*>(event);
    if (!mouse || mouse->button() != Qt::LeftButton || !isEnabled(index))
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_pressed = index;
        return true;
    case QEvent::MouseButtonRelease: {
        const bool wasPressed = m_pressed == index;
        m_pressed = QPersistentModelIndex();
        // A press taken elsewhere and released here is no click, as with a real button.
        if (wasPressed && option.rect.contains(mouse->position().toPoint()))
            Q_EMIT clicked(index);
        return true;
    }
    default:
        return false;
    }
}

} // namespace lullet
