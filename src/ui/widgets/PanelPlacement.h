#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

class QWidget;

namespace lullet::PanelPlacement {

// The part of the screen a panel opened at `point` keeps to: the available area of the screen
// there, or of the primary screen.
QRect areaAt(const QPoint& point);

// The top left corner of a panel of `size` hanging from `anchor` (global coordinates), its left
// edge at `left`: below the anchor with `gap` between them, or above it when there is no room
// below; always wholly inside `area`, and `margin` from its edges where there is room.
QPoint below(const QRect& anchor, int left, const QSize& size, const QRect& area, int gap = 0,
             int margin = 0);

// The rectangle of a widget on the screen.
QRect globalRect(const QWidget* widget);

} // namespace lullet::PanelPlacement
