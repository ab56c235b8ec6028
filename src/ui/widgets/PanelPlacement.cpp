#include "ui/widgets/PanelPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace lullet::PanelPlacement {

QRect areaAt(const QPoint& point)
{
    const QScreen* screen = QGuiApplication::screenAt(point);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect(0, 0, 1280, 800);
}

QPoint below(const QRect& anchor, int left, const QSize& size, const QRect& area, int gap,
             int margin)
{
    // QRect's right and bottom are its last pixels; a panel may end just before area.right() + 1.
    const int lastX = area.left() + area.width() - margin - size.width();
    const int lastY = area.top() + area.height() - margin - size.height();
    QPoint pos(left, anchor.top() + anchor.height() + gap);
    if (pos.y() > lastY)
        pos.setY(anchor.top() - gap - size.height());
    pos.setX(std::clamp(pos.x(), area.left() + margin, std::max(area.left() + margin, lastX)));
    pos.setY(std::clamp(pos.y(), area.top() + margin, std::max(area.top() + margin, lastY)));
    return pos;
}

QRect globalRect(const QWidget* widget)
{
    return QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size());
}

} // namespace lullet::PanelPlacement
