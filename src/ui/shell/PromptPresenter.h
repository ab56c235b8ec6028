#pragma once

#include "core/monitor/PromptOutcome.h"
#include "core/monitor/PromptPort.h"

#include <QObject>

#include <functional>

class QWidget;

namespace lullet {

class DesktopNotifier;
class PromptSound;
class Project;
class ReminderNotice;
class Tray;
struct Services;

// Shows the prompts the queue hands over in the tray's popover, one at a time, and tells the
// queue when each is gone. A prompt shows without taking the keyboard; a reminder that may go
// unseen is also told as a desktop notification.
class PromptPresenter final : public QObject, public PromptPort {
    Q_OBJECT
public:
    // `promptMayBeUnseen` is asked when a reminder shows; `shownProject` when the idle question
    // does, for the project its answer goes to first.
    // `sound`, where there is one, plays with each prompt the preferences let sound.
    PromptPresenter(const Services& services, Tray& tray, DesktopNotifier& notifier,
                    PromptSound* sound, std::function<bool()> promptMayBeUnseen,
                    std::function<const Project*()> shownProject, QObject* parent = nullptr);
    ~PromptPresenter() override;

    void present(const PromptRequest& request) override;
    void extendIdleQuestion(bool askNow) override;
    void withdrawIdleQuestion() override;

    // Whether the popover holds a prompt now.
    bool showsPrompt() const;
    // A prompt shown while the user typed elsewhere is called forward; answers whether there was
    // one to call that had not the keyboard yet.
    bool bringForward();
    // Escape, or a second click on the icon: the prompt is put off as its own way out says.
    void dismiss();

private:
    QWidget* make(const PromptRequest& request);
    void onAnswered(PromptOutcome outcome);
    void sound(const PromptRequest& request);
    void onRetiring(QWidget* content);

    const Services& m_services;
    Tray& m_tray;
    PromptSound* m_sound;
    ReminderNotice* m_reminderNotice;
    std::function<const Project*()> m_shownProject;
};

} // namespace lullet
