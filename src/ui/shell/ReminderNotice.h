#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;

namespace lullet {

class DesktopNotifier;
class ReminderPromptView;

// A reminder whose prompt may go unseen (no tray to open it under, or another program full
// screen) is also told as a desktop notification. Its buttons answer as the prompt's own do;
// clicking it asks for the prompt; the notification goes when the prompt goes.
class ReminderNotice final : public QObject {
    Q_OBJECT
public:
    // `promptMayBeUnseen` is asked when a reminder comes.
    ReminderNotice(DesktopNotifier& notifier, std::function<bool()> promptMayBeUnseen,
                   QObject* parent = nullptr);

    void announce(ReminderPromptView* prompt);
    // A prompt goes, answered or not: its notification goes with it.
    void retire(const QWidget* prompt);

Q_SIGNALS:
    void promptWanted();

private:
    void onAction(const QString& key);

    DesktopNotifier& m_notifier;
    std::function<bool()> m_promptMayBeUnseen;
    QPointer<ReminderPromptView> m_prompt;
};

} // namespace lullet
