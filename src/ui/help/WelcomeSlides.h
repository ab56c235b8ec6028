#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace lullet {

class SlideCanvas;

// The five slides that tell a new user what Lullet does, with Previous, Next and Skip. The same
// slides stand in the main window on the first run and in the help window later.
class WelcomeSlides final : public QWidget {
    Q_OBJECT
public:
    // `doneText` names Skip on the last slide, where nothing is left to skip.
    explicit WelcomeSlides(const QString& doneText, QWidget* parent = nullptr);

    int index() const;
    void next();
    void previous();

Q_SIGNALS:
    // The user is done with the slides, by Skip or on the last one.
    void skipped();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeButtons(QWidget* bar);
    void showButtons();

    QString m_doneText;
    SlideCanvas* m_canvas;
    QPushButton* m_previous;
    QPushButton* m_next;
    QPushButton* m_skip;
    QLabel* m_position;
};

} // namespace lullet
