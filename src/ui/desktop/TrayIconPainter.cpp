#include "ui/desktop/TrayIconPainter.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

namespace lullet {

QIcon TrayIconPainter::make()
{
    const QColor ink = QGuiApplication::palette().color(QPalette::WindowText);
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        const qreal s = size;
        QPainterPath moon;
        moon.addEllipse(QRectF(s * 0.12, s * 0.12, s * 0.76, s * 0.76));
        QPainterPath bite;
        bite.addEllipse(QRectF(s * 0.34, s * 0.02, s * 0.66, s * 0.66));
        painter.fillPath(moon.subtracted(bite), ink);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace lullet
