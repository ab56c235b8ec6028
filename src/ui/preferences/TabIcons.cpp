#include "ui/preferences/TabIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <cmath>
#include <functional>
#include <numbers>

namespace lullet::TabIcons {

namespace {

constexpr int side = 64;

QIcon drawn(const QColor& ink, const std::function<void(QPainter&)>& draw)
{
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    draw(painter);
    return QIcon(pixmap);
}

} // namespace

QIcon general(const QColor& ink)
{
    return drawn(ink, [](QPainter& painter) {
        // A cog: eight teeth round a wheel with a hole.
        QPainterPath cog;
        const QPointF centre(side / 2.0, side / 2.0);
        for (int tooth = 0; tooth < 8; ++tooth) {
            QTransform turn;
            turn.translate(centre.x(), centre.y());
            turn.rotate(tooth * 45.0);
            cog.addPolygon(turn.map(QPolygonF(QRectF(-5, -29, 10, 12))));
        }
        cog.addEllipse(centre, 20, 20);
        cog.setFillRule(Qt::WindingFill);
        QPainterPath hole;
        hole.addEllipse(centre, 8, 8);
        painter.drawPath(cog.simplified().subtracted(hole));
    });
}

QIcon security(const QColor& ink)
{
    return drawn(ink, [&ink](QPainter& painter) {
        // A padlock: a shackle over a body with a keyhole.
        QPen shackle(ink, 7);
        painter.setPen(shackle);
        painter.setBrush(Qt::NoBrush);
        painter.drawArc(QRectF(19, 8, 26, 30), 0, 180 * 16);
        painter.drawLine(QPointF(19, 23), QPointF(19, 30));
        painter.drawLine(QPointF(45, 23), QPointF(45, 30));
        painter.setPen(Qt::NoPen);
        QPainterPath body;
        body.addRoundedRect(QRectF(12, 29, 40, 30), 5, 5);
        QPainterPath keyhole;
        keyhole.addEllipse(QPointF(32, 41), 4, 4);
        keyhole.addRect(QRectF(30, 41, 4, 10));
        painter.setBrush(ink);
        painter.drawPath(body.subtracted(keyhole));
    });
}

QIcon backup(const QColor& ink)
{
    return drawn(ink, [](QPainter& painter) {
        // A box with its lid and a handle: where copies are kept.
        painter.drawRoundedRect(QRectF(8, 12, 48, 12), 3, 3);
        QPainterPath box;
        box.addRoundedRect(QRectF(12, 27, 40, 29), 3, 3);
        QPainterPath handle;
        handle.addRoundedRect(QRectF(24, 33, 16, 6), 3, 3);
        painter.drawPath(box.subtracted(handle));
    });
}

QIcon sync(const QColor& ink)
{
    return drawn(ink, [&ink](QPainter& painter) {
        // Two arrows chasing each other round a circle: kept in step.
        painter.setPen(QPen(ink, 7, Qt::SolidLine, Qt::FlatCap));
        painter.setBrush(Qt::NoBrush);
        const QRectF ring(12, 12, 40, 40);
        painter.drawArc(ring, 20 * 16, 140 * 16);
        painter.drawArc(ring, 200 * 16, 140 * 16);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawPolygon(QPolygonF({QPointF(4, 30), QPointF(20, 30), QPointF(12, 40)}));
        painter.drawPolygon(QPolygonF({QPointF(44, 34), QPointF(60, 34), QPointF(52, 24)}));
    });
}

QIcon schedule(const QColor& ink)
{
    return drawn(ink, [](QPainter& painter) {
        // A calendar page: rings, a header and a grid of days.
        QPainterPath page;
        page.addRoundedRect(QRectF(8, 12, 48, 44), 5, 5);
        QPainterPath days;
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 4; ++column)
                days.addRect(QRectF(14 + column * 10, 28 + row * 8, 6, 5));
        }
        painter.drawPath(page.subtracted(days));
        painter.drawRoundedRect(QRectF(18, 6, 6, 12), 3, 3);
        painter.drawRoundedRect(QRectF(40, 6, 6, 12), 3, 3);
    });
}

QIcon moreInfo(const QColor& ink)
{
    return drawn(ink, [](QPainter& painter) {
        // An "i" cut out of a disc.
        QPainterPath disc;
        disc.addEllipse(QRectF(6, 6, 52, 52));
        QPainterPath letter;
        letter.addEllipse(QRectF(28, 14, 8, 8));
        letter.addRoundedRect(QRectF(28.5, 26, 7, 24), 3, 3);
        painter.drawPath(disc.subtracted(letter));
    });
}

} // namespace lullet::TabIcons
