#pragma once

#include <QPixmap>
#include <QString>
#include <QWidget>

#include <vector>

class QVariantAnimation;

namespace lullet {

// The slides themselves: a picture, a title and a few lines each. Moving to another slide
// pushes the old one out to the side as the new one comes in.
class SlideCanvas final : public QWidget {
    Q_OBJECT
public:
    struct Slide {
        QString title;
        QString text;
    };

    explicit SlideCanvas(std::vector<Slide> slides, QWidget* parent = nullptr);

    int count() const { return int(m_slides.size()); }
    int current() const { return m_current; }
    // Shows slide `index`, pushed in from the right when it lies ahead.
    void showSlide(int index);

    QSize sizeHint() const override { return {720, 460}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintSlide(QPainter& painter, int index) const;
    QPixmap render(int index) const;

    std::vector<Slide> m_slides;
    int m_current = 0;
    QPixmap m_leaving;
    QPixmap m_coming;
    // +1: the new slide comes from the right; -1: from the left.
    int m_direction = 1;
    qreal m_progress = 1;
    QVariantAnimation* m_push;
};

} // namespace lullet
