#pragma once

#include "monitor/TodoPrompt.h"

#include <QWidget>

class QLabel;

namespace lullet {

class AppDelegate;

// The lullet and to-do prompt: its moment has come. Done, or not now?
class LulletAlertViewController final : public QWidget {
    Q_OBJECT
public:
    LulletAlertViewController(AppDelegate& app, ReminderInfo* objLullet, QWidget* parent = nullptr);

    TodoPrompt& prompt() { return m_prompt; }

private:
    TodoPrompt m_prompt;
    QLabel* lblTODONotification;
};

} // namespace lullet
