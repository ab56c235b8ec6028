#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace lullet {

struct Services;

// What the tray shows when clicked: the item running now, with its time, and the day's list
// without its header. While the program is locked it says only that.
class RunningListView final : public QWidget {
    Q_OBJECT
public:
    explicit RunningListView(const Services& services, QWidget* parent = nullptr);

Q_SIGNALS:
    void openWindowRequested();
    void quitRequested();

private:
    QHBoxLayout* makeActions();
    void showRunning();

    const Services& m_services;
    QLabel* m_running;
};

} // namespace lullet
