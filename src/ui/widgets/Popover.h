#pragma once

#include <QFrame>
#include <QPointer>

#include <functional>

class QPropertyAnimation;

namespace lullet {

// The one panel that hangs from the status item, or sits inside the main window when that is
// full screen. It stays until the program closes it: clicks elsewhere leave it alone. It shows
// without taking the keyboard from the program the user is typing in; it takes it only when the
// user clicks into it or calls it forward (activate()). Escape asks for it to be dismissed.
class Popover final : public QFrame {
    Q_OBJECT
public:
    // Inside `host` when given (full screen), else a top-level panel of its own.
    explicit Popover(QWidget* content, QWidget* host = nullptr);
    ~Popover() override;

    QWidget* content() const { return m_content; }
    bool isShown() const { return isVisible() && !m_closing; }

    // Top-level: below the anchor (the tray icon's rectangle), kept on its screen.
    void showBelow(const QRect& anchor);
    // Inside the host: at its top right.
    void showInHost();
    // Fades out, then hides; `done` runs once it is gone (at once when it already is).
    void performClose(const std::function<void()>& done = {});
    // Gives it the keyboard: raised, activated, its first field focused. Only for a user's own
    // act (a click on the tray icon), never when the popover is shown.
    void activate();

Q_SIGNALS:
    void escapePressed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPointer<QWidget> m_content;
    QPropertyAnimation* m_fade = nullptr;
    bool m_closing = false;
};

} // namespace lullet
