#pragma once

#include "monitor/ReminderPrompt.h"

#include <QWidget>

class QLabel;

namespace lullet {

class AppDelegate;

// The reminder prompt: an item is due. Start it, delay it, or settle the item still running.
class ReminderViewController final : public QWidget {
    Q_OBJECT
public:
    ReminderViewController(AppDelegate& app, ReminderInfo* objReminder,
                           ReminderInfo* objReminderPrev, QWidget* parent = nullptr);

    ReminderPrompt& prompt() { return m_prompt; }

private:
    ReminderPrompt m_prompt;
    QLabel* lblReminderNotification;
    QWidget* viewForPreviousReminder;
    QLabel* lblPrevReminderNotification;
};

} // namespace lullet
