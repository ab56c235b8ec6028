#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

class QVariantAnimation;

namespace lullet {

// A ring that fills clockwise from the top as progress goes from 0 to 1, with the percentage in
// its middle. Changes of progress are animated.
class CircularProgress final : public QWidget {
    Q_OBJECT
public:
    explicit CircularProgress(QWidget* parent = nullptr);

    void setColor(const QColor& color);
    void setLineWidth(int width);
    // The ring behind the bar; the palette's by default.
    void setTrackColor(const QColor& color);
    // Shown in the middle in place of the percentage.
    void setCentreText(const QString& text);
    // Clamped to 0..1.
    void setProgress(double progress, bool animated = true);
    double progress() const { return m_target; }

    QSize sizeHint() const override { return {72, 72}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void describe();

    QColor m_color = QColor(0xFC, 0x72, 0x74);
    QColor m_track;
    QString m_centreText;
    int m_lineWidth = 8;
    double m_shown = 0;
    double m_target = 0;
    QVariantAnimation* m_animation;
};

} // namespace lullet
