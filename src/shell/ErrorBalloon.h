#pragma once

#include <QLabel>

namespace lullet {

// A small dark balloon with a message beside a control, which closes itself after three
// seconds. Forms use it for refusals such as a blank name.
class ErrorBalloon final : public QLabel {
    Q_OBJECT
public:
    static constexpr int lifetimeMs = 3000;

    // Shows the message below `anchor` (or above, near the bottom of the screen). The balloon
    // deletes itself when it closes.
    static ErrorBalloon* showErrorMessage(const QString& message, QWidget* anchor);

private:
    explicit ErrorBalloon(const QString& message, QWidget* anchor);
};

} // namespace lullet
