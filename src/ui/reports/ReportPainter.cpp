#include "ui/reports/ReportPainter.h"

#include "core/reports/Report.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>

namespace lullet {

namespace {

const QColor accent(0xFC, 0x72, 0x74);
const QColor ink(0x22, 0x22, 0x22);
const QColor quiet(0x77, 0x77, 0x77);
const QColor band(0xF2, 0xF2, 0xF2);

constexpr double headingHeight = 26;
constexpr double itemHeight = 36;
constexpr double footerHeight = 18;

QFont sized(double points, bool bold = false)
{
    QFont font;
    // The painter draws in points: a pixel size here is a size in points on paper.
    font.setPixelSize(qRound(points));
    font.setBold(bold);
    return font;
}

// One page after another, in points, the content centred.
class Pages {
public:
    Pages(QPainter& painter, QPagedPaintDevice& device)
        : m_painter(painter)
        , m_device(device)
    {
        const QRectF paper = device.pageLayout().paintRect(QPageLayout::Point);
        m_height = paper.height() - footerHeight;
        // Paper narrower than the content is widened by scaling the whole page down.
        const double fit = std::min(1.0, paper.width() / ReportPainter::contentWidth);
        m_scale = fit;
        m_left = (paper.width() / fit - ReportPainter::contentWidth) / 2;
        m_height /= fit;
        setUp();
    }

    double left() const { return m_left; }
    double y() const { return m_y; }
    void advance(double by) { m_y += by; }

    // Moves to a new page unless `height` still fits on this one.
    bool makeRoom(double height)
    {
        if (m_y + height <= m_height)
            return true;
        footer();
        if (!m_device.newPage())
            return false;
        ++m_page;
        setUp();
        return true;
    }

    void finish() { footer(); }

private:
    void setUp()
    {
        m_painter.resetTransform();
        m_painter.scale(m_device.logicalDpiX() / 72.0 * m_scale,
                        m_device.logicalDpiY() / 72.0 * m_scale);
        m_y = 0;
    }

    void footer()
    {
        m_painter.setFont(sized(8));
        m_painter.setPen(quiet);
        m_painter.drawText(QRectF(m_left, m_height, ReportPainter::contentWidth, footerHeight),
                           Qt::AlignRight | Qt::AlignBottom, QStringLiteral("Page %1").arg(m_page));
    }

    QPainter& m_painter;
    QPagedPaintDevice& m_device;
    double m_scale = 1;
    double m_left = 0;
    double m_height = 0;
    double m_y = 0;
    int m_page = 1;
};

void paintHead(QPainter& painter, Pages& pages, const Report& report)
{
    const double left = pages.left();
    const double width = ReportPainter::contentWidth;
    painter.setPen(ink);
    painter.setFont(sized(20, true));
    painter.drawText(
        QRectF(left, pages.y(), width - 80, 30), Qt::AlignLeft | Qt::AlignVCenter,
        QFontMetricsF(painter.font()).elidedText(report.title, Qt::ElideRight, width - 80));
    painter.setFont(sized(11));
    painter.drawText(QRectF(left, pages.y() + 34, width - 80, 16), Qt::AlignLeft,
                     report.headCounts().join(QStringLiteral("    ")));
    painter.setPen(quiet);
    painter.drawText(QRectF(left, pages.y() + 52, width - 80, 16), Qt::AlignLeft,
                     QStringLiteral("Time: ") + report.headTimes());

    // The share of items complete, as the list's own ring shows it.
    const QRectF ring(left + width - 64, pages.y() + 4, 60, 60);
    const double done = report.stats.totalCount > 0
                            ? double(report.stats.completedCount) / report.stats.totalCount
                            : 0;
    QColor track = accent;
    track.setAlphaF(0.1f);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(track, 8));
    painter.drawEllipse(ring.adjusted(4, 4, -4, -4));
    painter.setPen(QPen(accent, 8, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(ring.adjusted(4, 4, -4, -4), 90 * 16, -qRound(done * 360 * 16));
    painter.setPen(ink);
    painter.setFont(sized(11, true));
    painter.drawText(ring, Qt::AlignCenter, QStringLiteral("%1%").arg(qRound(done * 100)));
    pages.advance(84);
}

void paintHeading(QPainter& painter, Pages& pages, const ListRow& row, const QFont& font)
{
    const QRectF area(pages.left(), pages.y(), ReportPainter::contentWidth, headingHeight - 4);
    painter.fillRect(area, band);
    painter.setPen(ink);
    painter.setFont(font);
    const QString text =
        row.title == QStringLiteral("AnyTime") ? QStringLiteral("Anytime") : row.title;
    painter.drawText(area.adjusted(8, 0, -8, 0), Qt::AlignLeft | Qt::AlignVCenter, text);
    pages.advance(headingHeight);
}

// The fonts of the rows, and their measures, made once for the whole report.
struct RowFonts {
    QFont heading = sized(11, true);
    QFont title = sized(11, true);
    QFont detail = sized(9);
    QFontMetricsF titleMetrics{title};
    QFontMetricsF detailMetrics{detail};
};

void paintItem(QPainter& painter, Pages& pages, const ListRow& row, const RowFonts& fonts)
{
    const double left = pages.left() + 8;
    const double textWidth = ReportPainter::contentWidth - 8 - 150;
    const double y = pages.y();
    painter.setPen(ink);
    painter.setFont(fonts.title);
    painter.drawText(QRectF(left, y, textWidth, 16), Qt::AlignLeft | Qt::AlignVCenter,
                     fonts.titleMetrics.elidedText(row.title, Qt::ElideRight, textWidth));
    painter.setFont(fonts.detail);
    painter.setPen(quiet);
    const QString detail =
        row.projectName.isEmpty() ? row.time : row.projectName + QStringLiteral("  ·  ") + row.time;
    painter.drawText(QRectF(left, y + 17, textWidth, 14), Qt::AlignLeft | Qt::AlignVCenter,
                     fonts.detailMetrics.elidedText(detail, Qt::ElideRight, textWidth));
    const QRectF times(left + textWidth, y, 142, 31);
    // Text is what a PDF costs most: an empty one is not drawn at all.
    if (!row.duration.isEmpty())
        painter.drawText(times, Qt::AlignRight | Qt::AlignTop, row.duration);
    if (!row.timeUsed.isEmpty())
        painter.drawText(times, Qt::AlignRight | Qt::AlignBottom, row.timeUsed);
    pages.advance(itemHeight);
}

} // namespace

bool ReportPainter::paint(const Report& report, QPagedPaintDevice& device)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    Pages pages(painter, device);
    paintHead(painter, pages, report);
    const RowFonts fonts;
    for (const ListRow& row : report.rows) {
        const bool heading = row.type == ListRow::DayHeading;
        // A heading keeps its first row with it.
        if (!pages.makeRoom(heading ? headingHeight + itemHeight : itemHeight))
            return false;
        if (heading)
            paintHeading(painter, pages, row, fonts.heading);
        else
            paintItem(painter, pages, row, fonts);
    }
    pages.finish();
    return painter.end();
}

} // namespace lullet
