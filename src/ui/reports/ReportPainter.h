#pragma once

class QPagedPaintDevice;

namespace lullet {

struct Report;

// Lays a report out on pages: the head with its totals and progress ring, then the rows, a new
// page whenever the next row would not fit. The content is 600 points wide, centred on the
// paper, whatever the device's resolution; pages are drawn one after another, never held whole.
class ReportPainter {
public:
    static constexpr double contentWidth = 600;

    // False when the device can't be painted on (a file that can't be written).
    static bool paint(const Report& report, QPagedPaintDevice& device);
};

} // namespace lullet
