#include "ui/widgets/StyledButton.h"

#include "ui/widgets/HexColor.h"

#include <QTimer>

namespace lullet {

StyledButton::StyledButton(const QString& text, QWidget* parent)
    : QPushButton(text, parent)
{
    setCursor(Qt::PointingHandCursor);
    paintWith(m_color);
}

void StyledButton::setColor(const QColor& color)
{
    m_color = color;
    paintWith(m_color);
}

void StyledButton::paintWith(const QColor& background)
{
    // Keyboard focus shows as a frame in the desktop's highlight colour, taken from the padding
    // so that the button keeps its size.
    setStyleSheet(QStringLiteral("QPushButton { background: #%1; color: #%2; border: none; "
                                 "border-radius: %3px; padding: 4px 12px; } "
                                 "QPushButton:focus { border: 2px solid palette(highlight); "
                                 "padding: 2px 10px; }")
                      .arg(HexColor::hexString(background), HexColor::hexString(m_text))
                      .arg(m_radius));
}

void StyledButton::flash()
{
    paintWith(m_highlight);
    QTimer::singleShot(200, this, [this] { paintWith(m_color); });
}

void StyledButton::enterEvent(QEnterEvent* event)
{
    QPushButton::enterEvent(event);
    if (m_hover)
        paintWith(HexColor::lighterColorForColor(m_color));
}

void StyledButton::leaveEvent(QEvent* event)
{
    QPushButton::leaveEvent(event);
    if (m_hover)
        paintWith(m_color);
}

} // namespace lullet
