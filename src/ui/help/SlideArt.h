#pragma once

#include <QRectF>

class QPainter;
class QPalette;

namespace lullet {

// The pictures of the welcome slides, drawn rather than shipped as images: they follow the
// desktop's colours and scale to any screen.
class SlideArt {
public:
    static constexpr int slideCount = 5;

    // Draws the picture of slide `slide` (0 to 4) centred in `area`.
    static void paint(QPainter& painter, const QRectF& area, int slide, const QPalette& palette);

private:
    static void pauses(QPainter& painter, const QRectF& box, const QPalette& palette);
    static void suggestions(QPainter& painter, const QRectF& box, const QPalette& palette);
    static void projects(QPainter& painter, const QRectF& box, const QPalette& palette);
    static void workingWeek(QPainter& painter, const QRectF& box, const QPalette& palette);
    static void tray(QPainter& painter, const QRectF& box, const QPalette& palette);
};

} // namespace lullet
