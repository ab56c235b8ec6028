#include "ui/reports/ShapedTexts.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace lullet {

namespace {

// Latin letters before the combining marks, and the punctuation that dates and times hold (the
// narrow no-break space before "AM", dashes, ellipsis): no joining, no marks, no direction.
bool needsNoShaper(QChar c)
{
    const char16_t u = c.unicode();
    return (u >= 0x20 && u < 0x300) || (u >= 0x2010 && u <= 0x2027) || u == 0x202F ||
           (u >= 0x2030 && u <= 0x205E);
}

} // namespace

ShapedTexts::ShapedTexts(const QFont& font, const QColor& color, double width,
                         const QPaintDevice* device)
    : m_font(font)
    , m_color(color)
    , m_width(width)
    , m_device(device)
    , m_rawFont(QRawFont::fromFont(font))
{
    const QFontMetricsF metrics(font, device);
    m_ascent = metrics.ascent();
    m_height = metrics.ascent() + metrics.descent();
}

QPointF ShapedTexts::origin(const QRectF& area, Qt::Alignment alignment, double width,
                            double height) const
{
    QPointF at = area.topLeft();
    if (alignment & Qt::AlignRight)
        at.setX(area.right() - width);
    if (alignment & Qt::AlignBottom)
        at.setY(area.bottom() - height);
    else if (alignment & Qt::AlignVCenter)
        at.setY(area.center().y() - height / 2);
    return at;
}

ShapedTexts::Pending& ShapedTexts::pendingFor(const QRawFont& font)
{
    for (Pending& pending : m_pending)
        if (pending.font == font)
            return pending;
    return m_pending.emplace_back(Pending{font, {}, {}});
}

bool ShapedTexts::addSimply(const QRectF& area, Qt::Alignment alignment, const QString& text)
{
    if (!m_rawFont.isValid() || !std::all_of(text.begin(), text.end(), needsNoShaper))
        return false;
    const QList<quint32> glyphs = m_rawFont.glyphIndexesForString(text);
    // A character the font lacks needs the shaper's fallback fonts.
    if (glyphs.size() != text.size() || glyphs.contains(0u))
        return false;
    const QList<QPointF> advances =
        m_rawFont.advancesForGlyphIndexes(glyphs, QRawFont::KernedAdvances);
    double width = 0;
    for (const QPointF& advance : advances)
        width += advance.x();
    if (width > m_width)
        return false;
    Pending& pending = pendingFor(m_rawFont);
    QPointF at = origin(area, alignment, width, m_height) + QPointF(0, m_ascent);
    pending.glyphs.append(glyphs);
    for (const QPointF& advance : advances) {
        pending.positions.append(at);
        at.rx() += advance.x();
    }
    return true;
}

void ShapedTexts::addShaped(const QRectF& area, Qt::Alignment alignment, const QString& text)
{
    const QString fitting =
        QFontMetricsF(m_font, m_device).elidedText(text, Qt::ElideRight, m_width);
    QTextLayout layout(fitting, m_font, m_device);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (!line.isValid())
        return;
    line.setLeadingIncluded(false);
    line.setNumColumns(int(fitting.size()));
    layout.endLayout();
    const QPointF at = origin(area, alignment, line.naturalTextWidth(), line.height());
    for (const QGlyphRun& run : layout.glyphRuns()) {
        Pending& pending = pendingFor(run.rawFont());
        pending.glyphs.append(run.glyphIndexes());
        for (const QPointF& position : run.positions())
            pending.positions.append(at + position);
    }
}

void ShapedTexts::add(const QRectF& area, Qt::Alignment alignment, const QString& text)
{
    if (!text.isEmpty() && !addSimply(area, alignment, text))
        addShaped(area, alignment, text);
}

void ShapedTexts::flush(QPainter& painter)
{
    painter.setPen(m_color);
    for (Pending& pending : m_pending) {
        if (pending.glyphs.isEmpty())
            continue;
        QGlyphRun run;
        run.setRawFont(pending.font);
        run.setGlyphIndexes(pending.glyphs);
        run.setPositions(pending.positions);
        painter.drawGlyphRun(QPointF(), run);
        pending.glyphs.clear();
        pending.positions.clear();
    }
}

} // namespace lullet
