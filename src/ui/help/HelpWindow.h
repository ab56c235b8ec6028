#pragma once

#include <QWidget>

namespace lullet {

// The welcome slides again, in a window of their own, from Help. It changes no setting.
class HelpWindow final : public QWidget {
    Q_OBJECT
public:
    explicit HelpWindow(QWidget* parent = nullptr);

Q_SIGNALS:
    // The user is through with the slides: the main window is wanted.
    void done();
};

} // namespace lullet
