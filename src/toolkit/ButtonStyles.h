#pragma once

#include <QColor>
#include <QPushButton>

namespace lullet {

// A flat button drawn in given colours, a little lighter under the mouse, flashing its highlight
// colour when pressed.
class ButtonStyles final : public QPushButton {
    Q_OBJECT
public:
    explicit ButtonStyles(const QString& text, QWidget* parent = nullptr);

    QColor baseColor = QColor(0xFC, 0x72, 0x74);
    QColor borderColor = Qt::transparent;
    int borderWidth = 0;
    QColor txtColor = Qt::white;
    int radius = 4;
    QColor highlightColor = QColor(0xA0, 0xCF, 0xAB);
    bool bNoHover = false;

    // Applies the fields; call after changing them.
    void prepareDisplay();
    // Shows the highlight colour, and the base colour again after 0.2 seconds.
    void changeDisplayColor();

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void paintWith(const QColor& background);
};

} // namespace lullet
