#pragma once

#include <QWidget>

class QLabel;

namespace lullet {

class AppDelegate;

// What the status item shows when clicked: the item running now, with its time, and the day's
// list without its header.
class RunningRemindersView final : public QWidget {
    Q_OBJECT
public:
    explicit RunningRemindersView(AppDelegate& app, QWidget* parent = nullptr);

Q_SIGNALS:
    void openWindowRequested();
    void quitRequested();

private:
    void refreshRunning();

    AppDelegate& m_app;
    QLabel* m_running;
};

} // namespace lullet
