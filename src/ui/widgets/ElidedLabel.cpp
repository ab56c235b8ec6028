#include "ui/widgets/ElidedLabel.h"

#include <QFontMetrics>

namespace lullet {

ElidedLabel::ElidedLabel(const QString& text, QWidget* parent)
    : QLabel(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setText(text);
}

void ElidedLabel::setText(const QString& text)
{
    m_text = text;
    elide();
}

QSize ElidedLabel::minimumSizeHint() const
{
    // As narrow as "W…", as tall as a line.
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(QStringLiteral("W…")), metrics.height()};
}

void ElidedLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::elide()
{
    const QString shown = fontMetrics().elidedText(m_text, Qt::ElideRight, contentsRect().width());
    QLabel::setText(shown);
    setToolTip(shown == m_text ? QString() : m_text);
}

} // namespace lullet
