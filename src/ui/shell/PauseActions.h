#pragma once

#include <QObject>

#include <vector>

class QAction;
class QMenu;

namespace lullet {

class ReminderPause;

// "Pause Reminders" with its lengths, and "Resume Reminders" while they are paused: for the
// tray's menu and the Lullet menu alike.
class PauseActions final : public QObject {
    Q_OBJECT
public:
    explicit PauseActions(ReminderPause& pause, QObject* parent = nullptr);

    // Adds both to the menu, before `before` (at the end without it).
    void addTo(QMenu* menu, QAction* before = nullptr);

private:
    void update();

    ReminderPause& m_pause;
    std::vector<QAction*> m_resumes;
};

} // namespace lullet
