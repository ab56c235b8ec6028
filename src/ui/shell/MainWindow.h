#pragma once

#include <QMainWindow>

namespace lullet {

// The main window. Closing it hides it: the program lives on in the status item until the user
// quits.
class MainWindow final : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);

    // Fixed at 800 by 600 for the welcome pages, at least 600 by 600 afterwards.
    void applyWelcomeSizing();
    void applyWorkingSizing(bool locked);

Q_SIGNALS:
    void quitRequested();
};

} // namespace lullet
