#include "ui/help/SlideCanvas.h"

#include "ui/help/SlideArt.h"

#include <QEasingCurve>
#include <QPainter>
#include <QVariantAnimation>

namespace lullet {

namespace {
constexpr int pushMs = 500;
} // namespace

SlideCanvas::SlideCanvas(std::vector<Slide> slides, QWidget* parent)
    : QWidget(parent)
    , m_slides(std::move(slides))
    , m_push(new QVariantAnimation(this))
{
    setAccessibleName(m_slides.empty() ? QString() : m_slides.front().title);
    m_push->setDuration(pushMs);
    m_push->setStartValue(0.0);
    m_push->setEndValue(1.0);
    m_push->setEasingCurve(QEasingCurve::OutCubic);
    connect(m_push, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        m_progress = value.toReal();
        update();
    });
    connect(m_push, &QVariantAnimation::finished, this, [this] {
        m_leaving = {};
        m_coming = {};
        m_progress = 1;
        update();
    });
}

void SlideCanvas::showSlide(int index)
{
    if (index < 0 || index >= count() || index == m_current)
        return;
    m_direction = index > m_current ? 1 : -1;
    m_push->stop();
    m_leaving = render(m_current);
    m_coming = render(index);
    m_current = index;
    // Screen readers hear the new slide's title.
    setAccessibleName(m_slides[std::size_t(index)].title);
    setAccessibleDescription(m_slides[std::size_t(index)].text);
    m_progress = 0;
    m_push->start();
}

QPixmap SlideCanvas::render(int index) const
{
    QPixmap pixmap(size() * devicePixelRatioF());
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paintSlide(painter, index);
    return pixmap;
}

void SlideCanvas::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (m_coming.isNull()) {
        paintSlide(painter, m_current);
        return;
    }
    const qreal offset = width() * (1 - m_progress) * m_direction;
    painter.drawPixmap(QPointF(offset - width() * m_direction, 0), m_leaving);
    painter.drawPixmap(QPointF(offset, 0), m_coming);
}

void SlideCanvas::paintSlide(QPainter& painter, int index) const
{
    if (index < 0 || index >= count())
        return;
    const Slide& slide = m_slides[std::size_t(index)];
    const QRectF area = rect();
    const qreal artHeight = area.height() * 0.58;
    SlideArt::paint(painter, QRectF(area.left(), area.top() + 8, area.width(), artHeight - 8),
                    index, palette());

    QFont titleFont = font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.8);
    titleFont.setBold(true);
    painter.setFont(titleFont);
    painter.setPen(palette().color(QPalette::WindowText));
    const QFontMetricsF titleMetrics(titleFont);
    const QRectF titleArea(area.left() + 40, area.top() + artHeight + 8, area.width() - 80,
                           titleMetrics.height() * 1.3);
    painter.drawText(titleArea, Qt::AlignHCenter | Qt::AlignTop, slide.title);

    QFont textFont = font();
    textFont.setPointSizeF(textFont.pointSizeF() * 1.15);
    painter.setFont(textFont);
    // Short lines read better than lines the width of the window.
    const qreal textWidth = std::min(area.width() - 80, 520.0);
    const QRectF textArea(area.center().x() - textWidth / 2, titleArea.bottom() + 6, textWidth,
                          area.bottom() - titleArea.bottom() - 6);
    painter.drawText(textArea, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, slide.text);
}

} // namespace lullet
