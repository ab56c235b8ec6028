#pragma once

#include "monitor/TimeOverPrompt.h"

#include <QWidget>

class QLabel;

namespace lullet {

class AppDelegate;

// The time-over prompt: the running item's time is up. Finished, or more time?
class TimeoverAlertViewController final : public QWidget {
    Q_OBJECT
public:
    TimeoverAlertViewController(AppDelegate& app, ReminderInfo* objReminderPrev,
                                QWidget* parent = nullptr);

    TimeOverPrompt& prompt() { return m_prompt; }

private:
    TimeOverPrompt m_prompt;
    QWidget* viewForPreviousReminder;
    QLabel* lblPrevReminderNotification;
};

} // namespace lullet
