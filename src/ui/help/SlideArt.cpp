#include "ui/help/SlideArt.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <cmath>
#include <numbers>

namespace lullet {

namespace {

// The program's calm green, and a warm second colour for what needs the eye.
const QColor accent(0x3a, 0xa5, 0x9f);
const QColor warm(0xf2, 0x9e, 0x4c);

QColor soft(const QColor& color, int alpha)
{
    QColor faded = color;
    faded.setAlpha(alpha);
    return faded;
}

// A square box of side `side` centred in `area`, on a 100-unit grid the pictures draw on.
QRectF centredBox(const QRectF& area, qreal side)
{
    return QRectF(area.center().x() - side / 2, area.center().y() - side / 2, side, side);
}

QPointF at(const QRectF& box, qreal x, qreal y)
{
    return {box.left() + box.width() * x / 100, box.top() + box.height() * y / 100};
}

QRectF rect(const QRectF& box, qreal x, qreal y, qreal w, qreal h)
{
    return {at(box, x, y), QSizeF(box.width() * w / 100, box.height() * h / 100)};
}

} // namespace

void SlideArt::paint(QPainter& painter, const QRectF& area, int slide, const QPalette& palette)
{
    const QRectF box = centredBox(area, std::min(area.width(), area.height()));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(soft(accent, 40));
    painter.drawEllipse(rect(box, 4, 4, 92, 92));
    switch (slide) {
    case 0:
        pauses(painter, box, palette);
        break;
    case 1:
        suggestions(painter, box, palette);
        break;
    case 2:
        projects(painter, box, palette);
        break;
    case 3:
        workingWeek(painter, box, palette);
        break;
    default:
        tray(painter, box, palette);
        break;
    }
    painter.restore();
}

// A clock beside a glass of water: the day, and the pause in it.
void SlideArt::pauses(QPainter& painter, const QRectF& box, const QPalette& palette)
{
    const QColor ink = palette.color(QPalette::WindowText);
    painter.setBrush(palette.color(QPalette::Base));
    painter.setPen(QPen(ink, box.width() / 60));
    const QRectF face = rect(box, 16, 22, 44, 44);
    painter.drawEllipse(face);
    for (int hour = 0; hour < 12; ++hour) {
        const qreal angle = hour * std::numbers::pi / 6;
        const QPointF centre = face.center();
        const qreal r = face.width() / 2;
        painter.drawLine(centre + QPointF(std::sin(angle), -std::cos(angle)) * r * 0.82,
                         centre + QPointF(std::sin(angle), -std::cos(angle)) * r * 0.92);
    }
    painter.setPen(QPen(ink, box.width() / 45, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(face.center(), face.center() + QPointF(0, -face.height() * 0.3));
    painter.setPen(QPen(warm, box.width() / 60, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(face.center(),
                     face.center() + QPointF(face.width() * 0.25, face.height() * 0.1));

    QPainterPath glass;
    glass.moveTo(at(box, 64, 40));
    glass.lineTo(at(box, 84, 40));
    glass.lineTo(at(box, 81, 76));
    glass.lineTo(at(box, 67, 76));
    glass.closeSubpath();
    QPainterPath water;
    water.moveTo(at(box, 65.3, 52));
    water.lineTo(at(box, 82.7, 52));
    water.lineTo(at(box, 81, 76));
    water.lineTo(at(box, 67, 76));
    water.closeSubpath();
    painter.setPen(Qt::NoPen);
    painter.fillPath(water, soft(accent, 170));
    painter.setPen(QPen(ink, box.width() / 70));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(glass);
}

// Rows of suggestions, some switched on.
void SlideArt::suggestions(QPainter& painter, const QRectF& box, const QPalette& palette)
{
    const QColor ink = palette.color(QPalette::WindowText);
    const bool on[] = {true, false, true, true};
    for (int row = 0; row < 4; ++row) {
        const qreal y = 24 + row * 14;
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette.color(QPalette::Base));
        painter.drawRoundedRect(rect(box, 18, y, 64, 11), 6, 6);
        painter.setBrush(soft(ink, 110));
        painter.drawRoundedRect(rect(box, 23, y + 4, 30 - row * 4, 3), 2, 2);
        const QRectF track = rect(box, 66, y + 3, 11, 5);
        painter.setBrush(on[row] ? accent : soft(ink, 60));
        painter.drawRoundedRect(track, track.height() / 2, track.height() / 2);
        painter.setBrush(Qt::white);
        const qreal knob = track.height() * 0.8;
        const qreal x = on[row] ? track.right() - knob - track.height() * 0.1
                                : track.left() + track.height() * 0.1;
        painter.drawEllipse(QRectF(x, track.center().y() - knob / 2, knob, knob));
    }
}

// Three projects, each a ring filled as far as its time is used.
void SlideArt::projects(QPainter& painter, const QRectF& box, const QPalette& palette)
{
    const QColor ink = palette.color(QPalette::WindowText);
    const qreal used[] = {0.75, 0.4, 0.9};
    const QColor colours[] = {accent, warm, QColor(0x6c, 0x8e, 0xd9)};
    for (int i = 0; i < 3; ++i) {
        const QRectF ring = rect(box, 12 + i * 27, 36, 22, 22);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(soft(ink, 50), box.width() / 40));
        painter.drawEllipse(ring);
        painter.setPen(QPen(colours[i], box.width() / 40, Qt::SolidLine, Qt::RoundCap));
        painter.drawArc(ring, 90 * 16, -qRound(used[i] * 360 * 16));
        painter.setPen(Qt::NoPen);
        painter.setBrush(soft(ink, 110));
        painter.drawRoundedRect(rect(box, 15 + i * 27, 64, 16, 3), 2, 2);
    }
}

// A week with its working days marked, the hours of each drawn as a bar.
void SlideArt::workingWeek(QPainter& painter, const QRectF& box, const QPalette& palette)
{
    const QColor ink = palette.color(QPalette::WindowText);
    constexpr int gapDay = 2;
    for (int day = 0; day < 7; ++day) {
        const bool working = day < 5;
        const QRectF column = rect(box, 17 + day * 9.6, 24, 7.5, 52);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette.color(QPalette::Base));
        painter.drawRoundedRect(column, 4, 4);
        if (working) {
            painter.setBrush(accent);
            if (day == gapDay) {
                painter.drawRoundedRect(rect(box, 17 + day * 9.6, 36, 7.5, 8), 4, 4);
                painter.drawRoundedRect(rect(box, 17 + day * 9.6, 54, 7.5, 8), 4, 4);
            } else {
                painter.drawRoundedRect(rect(box, 17 + day * 9.6, 36, 7.5, 26), 4, 4);
            }
        }
        painter.setBrush(soft(ink, working ? 140 : 60));
        painter.drawEllipse(QRectF(at(box, 19.6 + day * 9.6, 70),
                                   QSizeF(box.width() * 0.025, box.width() * 0.025)));
    }
    // A gap in a working day, and the question Lullet fills it with.
    QFont mark = painter.font();
    mark.setPixelSize(qRound(box.height() * 0.09));
    mark.setBold(true);
    painter.setFont(mark);
    painter.setPen(warm);
    painter.drawText(rect(box, 17 + gapDay * 9.6, 44, 7.5, 10), Qt::AlignCenter,
                     QStringLiteral("?"));
}

// The desktop's panel with the tray icon, and the small panel that hangs from it.
void SlideArt::tray(QPainter& painter, const QRectF& box, const QPalette& palette)
{
    const QColor ink = palette.color(QPalette::WindowText);
    painter.setPen(Qt::NoPen);
    painter.setBrush(soft(ink, 200));
    painter.drawRoundedRect(rect(box, 10, 20, 80, 9), 3, 3);
    painter.setBrush(Qt::white);
    QPainterPath moon;
    moon.addEllipse(rect(box, 69, 21.5, 6, 6));
    QPainterPath bite;
    bite.addEllipse(rect(box, 71, 20.5, 5, 5));
    painter.drawPath(moon.subtracted(bite));
    painter.setBrush(palette.color(QPalette::Base));
    painter.setPen(QPen(soft(ink, 60), 1));
    QPainterPath popover;
    popover.addRoundedRect(rect(box, 44, 34, 48, 40), 6, 6);
    QPainterPath arrow;
    arrow.moveTo(at(box, 68, 30));
    arrow.lineTo(at(box, 65, 34.5));
    arrow.lineTo(at(box, 71, 34.5));
    arrow.closeSubpath();
    painter.drawPath(popover.united(arrow));
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent);
    painter.drawRoundedRect(rect(box, 49, 40, 24, 4), 2, 2);
    painter.setBrush(soft(ink, 110));
    painter.drawRoundedRect(rect(box, 49, 49, 36, 3), 2, 2);
    painter.drawRoundedRect(rect(box, 49, 55, 30, 3), 2, 2);
    painter.setBrush(accent);
    painter.drawRoundedRect(rect(box, 68, 63, 18, 7), 3, 3);
}

} // namespace lullet
