#include "ui/widgets/CircularProgress.h"

#include <QPainter>
#include <QVariantAnimation>

#include <algorithm>

namespace lullet {

CircularProgress::CircularProgress(QWidget* parent)
    : QWidget(parent)
    , m_animation(new QVariantAnimation(this))
{
    m_animation->setDuration(200);
    m_animation->setEasingCurve(QEasingCurve::OutCubic);
    connect(m_animation, &QVariantAnimation::valueChanged, this, [this](const QVariant& v) {
        m_shown = v.toDouble();
        update();
    });
    describe();
}

void CircularProgress::setColor(const QColor& color)
{
    m_color = color;
    update();
}

void CircularProgress::setLineWidth(int width)
{
    m_lineWidth = width;
    update();
}

void CircularProgress::setProgress(double progress, bool animated)
{
    const double target = std::clamp(progress, 0.0, 1.0);
    if (target == m_target && !animated)
        return;
    m_target = target;
    describe();
    m_animation->stop();
    if (!animated || !isVisible()) {
        m_shown = target;
        update();
        return;
    }
    m_animation->setStartValue(m_shown);
    m_animation->setEndValue(target);
    m_animation->start();
}

void CircularProgress::setTrackColor(const QColor& color)
{
    m_track = color;
    update();
}

void CircularProgress::setCentreText(const QString& text)
{
    m_centreText = text;
    describe();
    update();
}

void CircularProgress::describe()
{
    // A screen reader reads what the ring shows: its centre text, or the percentage.
    setAccessibleDescription(
        m_centreText.isEmpty() ? tr("%1 % complete").arg(qRound(m_target * 100)) : m_centreText);
}

void CircularProgress::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int side = std::min(width(), height()) - m_lineWidth;
    const QRectF ring((width() - side) / 2.0, (height() - side) / 2.0, side, side);
    QPen track(m_track.isValid() ? m_track : palette().color(QPalette::Midlight), m_lineWidth);
    painter.setPen(track);
    painter.drawEllipse(ring);
    QPen bar(m_color, m_lineWidth, Qt::SolidLine, Qt::RoundCap);
    painter.setPen(bar);
    // From the top (90 degrees), clockwise (negative spans), as far as the progress goes.
    painter.drawArc(ring, 90 * 16, int(-360 * 16 * m_shown));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter,
                     m_centreText.isNull() ? tr("%1%").arg(qRound(m_shown * 100)) : m_centreText);
}

} // namespace lullet
