#include "ui/reports/ReportPainter.h"

#include "core/reports/Report.h"
#include "ui/reports/ShapedTexts.h"
#include "ui/widgets/BarChart.h"

#include <QCoreApplication>
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
constexpr double chartHeight = 160;

QFont sized(double points, bool bold = false)
{
    QFont font;
    // The painter draws in points: a pixel size here is a size in points on paper.
    font.setPixelSize(qRound(points));
    font.setBold(bold);
    return font;
}

// The rows' texts in their three styles, gathered a page at a time.
class RowTexts {
public:
    static constexpr double textWidth = ReportPainter::contentWidth - 8 - 150;
    static constexpr double timesWidth = 142;

    explicit RowTexts(const QPaintDevice& device)
        : title(sized(11, true), ink, textWidth, &device)
        , detail(sized(9), quiet, textWidth, &device)
        , times(sized(9), quiet, timesWidth, &device)
    {
    }

    void flush(QPainter& painter)
    {
        title.flush(painter);
        detail.flush(painter);
        times.flush(painter);
    }

    ShapedTexts title;
    ShapedTexts detail;
    ShapedTexts times;
};

// One page after another, in points, the content centred. The rows' texts are drawn as a page
// is left.
class Pages {
public:
    Pages(QPainter& painter, QPagedPaintDevice& device, RowTexts& texts)
        : m_painter(painter)
        , m_device(device)
        , m_texts(texts)
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
        m_texts.flush(m_painter);
        m_painter.setFont(sized(8));
        m_painter.setPen(quiet);
        m_painter.drawText(QRectF(m_left, m_height, ReportPainter::contentWidth, footerHeight),
                           Qt::AlignRight | Qt::AlignBottom,
                           QCoreApplication::translate("ReportPainter", "Page %1").arg(m_page));
    }

    QPainter& m_painter;
    QPagedPaintDevice& m_device;
    RowTexts& m_texts;
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
    painter.drawText(
        QRectF(left, pages.y() + 52, width - 80, 16), Qt::AlignLeft,
        QCoreApplication::translate("ReportPainter", "Time: %1").arg(report.headTimes()));

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
    painter.drawText(ring, Qt::AlignCenter,
                     QCoreApplication::translate("ReportPainter", "%1%").arg(qRound(done * 100)));
    pages.advance(84);
}

void paintHeading(QPainter& painter, Pages& pages, const ListRow& row, const QFont& font)
{
    const QRectF area(pages.left(), pages.y(), ReportPainter::contentWidth, headingHeight - 4);
    painter.fillRect(area, band);
    painter.setPen(ink);
    painter.setFont(font);
    painter.drawText(area.adjusted(8, 0, -8, 0), Qt::AlignLeft | Qt::AlignVCenter, row.title);
    pages.advance(headingHeight);
}

void paintItem(Pages& pages, const ListRow& row, RowTexts& texts)
{
    const double left = pages.left() + 8;
    const double y = pages.y();
    texts.title.add(QRectF(left, y, RowTexts::textWidth, 16), Qt::AlignLeft | Qt::AlignVCenter,
                    row.title);
    const QString detail = row.projectName.isEmpty()
                               ? row.time
                               : QCoreApplication::translate("ReportPainter", "%1  ·  %2")
                                     .arg(row.projectName, row.time);
    texts.detail.add(QRectF(left, y + 17, RowTexts::textWidth, 14),
                     Qt::AlignLeft | Qt::AlignVCenter, detail);
    const QRectF times(left + RowTexts::textWidth, y, RowTexts::timesWidth, 31);
    texts.times.add(times, Qt::AlignRight | Qt::AlignTop, row.duration);
    texts.times.add(times, Qt::AlignRight | Qt::AlignBottom, row.timeUsed);
    pages.advance(itemHeight);
}

// The hours by day, drawn by the list's own chart so that paper shows what the window does; in
// dark ink whatever the desktop's colours, as paper is white.
void paintChart(QPainter& painter, Pages& pages, const Report& report)
{
    if (report.hoursByDay.empty())
        return;
    BarChart chart;
    QPalette paper;
    paper.setColor(QPalette::WindowText, ink);
    paper.setColor(QPalette::Mid, band);
    paper.setColor(QPalette::PlaceholderText, quiet);
    chart.setPalette(paper);
    chart.setFont(sized(8));
    chart.setColor(accent);
    chart.setUnit(QCoreApplication::translate("ReportPainter", "h"));
    chart.setBars(report.hoursByDay);
    chart.resize(int(ReportPainter::contentWidth), int(chartHeight));
    chart.render(&painter, QPoint(int(pages.left()), int(pages.y())), QRegion(),
                 QWidget::DrawChildren);
    pages.advance(chartHeight + 12);
}

} // namespace

bool ReportPainter::paint(const Report& report, QPagedPaintDevice& device)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    RowTexts texts(device);
    Pages pages(painter, device, texts);
    paintHead(painter, pages, report);
    paintChart(painter, pages, report);
    const QFont headingFont = sized(11, true);
    for (const ListRow& row : report.rows) {
        const bool heading = row.type == ListRow::DayHeading;
        // A heading keeps its first row with it.
        if (!pages.makeRoom(heading ? headingHeight + itemHeight : itemHeight))
            return false;
        if (heading)
            paintHeading(painter, pages, row, headingFont);
        else
            paintItem(pages, row, texts);
    }
    pages.finish();
    return painter.end();
}

} // namespace lullet
