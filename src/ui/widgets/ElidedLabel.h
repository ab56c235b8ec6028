#pragma once

#include <QLabel>

namespace lullet {

// A one-line label that gives up width gracefully: a text too long for it ends in "…", and the
// whole text shows as its tooltip. text() is always the whole text.
class ElidedLabel final : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(const QString& text = {}, QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const { return m_text; }
    // Whether the text shows whole at the present width.
    bool isElided() const { return QLabel::text() != m_text; }

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void elide();

    QString m_text;
};

} // namespace lullet
