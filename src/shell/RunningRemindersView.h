#pragma once

#include <QWidget>

class QLabel;
class QListWidget;

namespace lullet {

class AppDelegate;

// What the status item shows when clicked: the item running now, with its time, and today's
// open items. The full lists come with the main window's views.
class RunningRemindersView final : public QWidget {
    Q_OBJECT
public:
    explicit RunningRemindersView(AppDelegate& app, QWidget* parent = nullptr);

Q_SIGNALS:
    void openWindowRequested();
    void quitRequested();

private:
    void refreshRunning();
    void refreshList();

    AppDelegate& m_app;
    QLabel* m_running;
    QListWidget* m_list;
};

} // namespace lullet
