#include "toolkit/ButtonStyles.h"

#include "toolkit/HexColor.h"

#include <QTimer>

namespace lullet {

ButtonStyles::ButtonStyles(const QString& text, QWidget* parent)
    : QPushButton(text, parent)
{
    setCursor(Qt::PointingHandCursor);
    prepareDisplay();
}

void ButtonStyles::prepareDisplay()
{
    paintWith(baseColor);
}

void ButtonStyles::paintWith(const QColor& background)
{
    setStyleSheet(
        QStringLiteral("QPushButton { background: #%1; color: #%2; border: %3px solid %4; "
                       "border-radius: %5px; padding: 4px 12px; }")
            .arg(HexColor::hexString(background), HexColor::hexString(txtColor))
            .arg(borderWidth)
            .arg(borderColor.alpha() == 0 ? QStringLiteral("transparent")
                                          : QLatin1Char('#') + HexColor::hexString(borderColor))
            .arg(radius));
}

void ButtonStyles::changeDisplayColor()
{
    paintWith(highlightColor);
    QTimer::singleShot(200, this, [this] { paintWith(baseColor); });
}

void ButtonStyles::enterEvent(QEnterEvent* event)
{
    QPushButton::enterEvent(event);
    if (!bNoHover)
        paintWith(HexColor::lighterColorForColor(baseColor));
}

void ButtonStyles::leaveEvent(QEvent* event)
{
    QPushButton::leaveEvent(event);
    if (!bNoHover)
        paintWith(baseColor);
}

} // namespace lullet
