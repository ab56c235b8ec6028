#pragma once

#include "core/monitor/PromptRequest.h"

#include <QObject>

#include <deque>
#include <optional>

namespace lullet {

class PromptPort;
class RunningItem;

// The prompts waiting to be shown, one at a time, in the order they fell due. None is lost:
// reminders due in the same minute, or while another prompt is up, wait their turn, and the idle
// question waits behind every reminder, time-over and to-do prompt; one on show gives way to
// them and comes back after. While held (paused, locked, away) nothing new shows; what fell due
// meanwhile shows when the hold ends. Main thread only.
class PromptQueue final : public QObject {
    Q_OBJECT
public:
    explicit PromptQueue(const RunningItem& running, QObject* parent = nullptr);

    // Until a port is plugged in, prompts wait.
    void setPort(PromptPort* port);
    void add(const PromptRequest& request);
    // The port: the prompt on show is gone.
    void closed();

    void setHeld(bool held);
    bool isHeld() const { return m_held; }

    const std::optional<PromptRequest>& shown() const { return m_shown; }
    const std::deque<PromptRequest>& waiting() const { return m_waiting; }

Q_SIGNALS:
    // A prompt was shown or closed, or one joined or left the queue.
    void changed();

private:
    void addIdleQuestion(const PromptRequest& request);
    bool isWaitingOrShown(const PromptRequest& request) const;
    // Still worth asking: its item is still there, in the state it was asked about.
    bool stillDue(PromptRequest& request) const;
    void showNextLater();
    void showNext();

    const RunningItem& m_running;
    PromptPort* m_port = nullptr;
    std::deque<PromptRequest> m_waiting;
    std::optional<PromptRequest> m_shown;
    bool m_held = false;
    bool m_showPending = false;
};

} // namespace lullet
