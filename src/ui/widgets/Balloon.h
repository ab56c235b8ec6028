#pragma once

#include <QLabel>

namespace lullet {

// A small dark balloon with a message beside a control, which closes itself after a while. Forms
// use it for refusals such as a blank name. A control has one balloon at most: a new message
// replaces the old one.
class Balloon final : public QLabel {
    Q_OBJECT
public:
    static constexpr int defaultLifetimeMs = 3000;

    // Shows the message below `anchor` (or above, near the bottom of the screen). The balloon
    // deletes itself when it closes.
    static Balloon* show(const QString& message, QWidget* anchor,
                         int lifetimeMs = defaultLifetimeMs);
    // Closes the anchor's balloon, if it has one.
    static void dismiss(QWidget* anchor);
    static Balloon* of(const QWidget* anchor);

private:
    Balloon(const QString& message, QWidget* anchor);
};

} // namespace lullet
