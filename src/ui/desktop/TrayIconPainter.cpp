#include "ui/desktop/TrayIconPainter.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPen>
#include <QPixmap>

#include <algorithm>

namespace lullet {

QIcon TrayIconPainter::make(bool paused)
{
    // The panel's colour can't be known: the desktop's text colour with a rim of the opposite
    // lightness reads on dark and light panels alike.
    const QColor ink = QGuiApplication::palette().color(QPalette::WindowText);
    const QColor rim = ink.lightness() < 128 ? QColor(255, 255, 255, 220) : QColor(0, 0, 0, 200);
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
        const QPainterPath shape = moon.subtracted(bite);
        painter.strokePath(shape, QPen(rim, std::max(1.5, s / 12.0)));
        painter.fillPath(shape, ink);
        if (paused) {
            QPainterPath bars;
            bars.addRect(QRectF(s * 0.56, s * 0.52, s * 0.12, s * 0.44));
            bars.addRect(QRectF(s * 0.80, s * 0.52, s * 0.12, s * 0.44));
            painter.strokePath(bars, QPen(rim, std::max(1.0, s / 16.0)));
            painter.fillPath(bars, ink);
        }
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace lullet
