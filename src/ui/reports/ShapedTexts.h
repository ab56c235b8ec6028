#pragma once

#include <QColor>
#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QPointF>
#include <QRawFont>
#include <QString>

#include <vector>

class QPaintDevice;
class QPainter;
class QRectF;

namespace lullet {

// Texts in one font, colour and width, gathered over a page and drawn together. A long report
// has four texts on each of thousands of rows: handing a page's texts to the paint engine as
// one glyph run per font, and placing plain Latin text without the shaper, is what keeps a
// 50,000-row PDF within two seconds.
class ShapedTexts {
public:
    // Texts wider than `width` are elided at the right.
    ShapedTexts(const QFont& font, const QColor& color, double width, const QPaintDevice* device);

    // Places `text` left or right, top, bottom or centre in `area`; it is drawn by `flush`.
    void add(const QRectF& area, Qt::Alignment alignment, const QString& text);
    // Draws what was added since the last flush: before a new page, and at the end.
    void flush(QPainter& painter);

private:
    // The glyphs waiting to be drawn in one font.
    struct Pending {
        QRawFont font;
        QList<quint32> glyphs;
        QList<QPointF> positions;
    };

    // Plain Latin text that fits: a glyph per character, kerned, as the shaper would place it.
    bool addSimply(const QRectF& area, Qt::Alignment alignment, const QString& text);
    // Any other text, through the shaper; elided when it doesn't fit.
    void addShaped(const QRectF& area, Qt::Alignment alignment, const QString& text);
    QPointF origin(const QRectF& area, Qt::Alignment alignment, double width, double height) const;
    Pending& pendingFor(const QRawFont& font);

    QFont m_font;
    QColor m_color;
    double m_width;
    const QPaintDevice* m_device;
    QRawFont m_rawFont;
    double m_ascent = 0;
    double m_height = 0;
    std::vector<Pending> m_pending;
};

} // namespace lullet
