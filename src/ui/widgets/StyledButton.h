#pragma once

#include <QColor>
#include <QPushButton>

namespace lullet {

// A flat button drawn in its own colour, a little lighter under the mouse, flashing its
// highlight colour when pressed.
class StyledButton final : public QPushButton {
    Q_OBJECT
public:
    explicit StyledButton(const QString& text, QWidget* parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor& color);
    // Without hover, the colour stays put under the mouse: for a badge that only informs.
    void setHoverEnabled(bool enabled) { m_hover = enabled; }
    // Shows the highlight colour, and the base colour again after 0.2 seconds.
    void flash();

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void paintWith(const QColor& background);

    QColor m_color = QColor(0xFC, 0x72, 0x74);
    QColor m_highlight = QColor(0xA0, 0xCF, 0xAB);
    QColor m_text = Qt::white;
    int m_radius = 4;
    bool m_hover = true;
};

} // namespace lullet
