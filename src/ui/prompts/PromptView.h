#pragma once

#include "core/monitor/PromptOutcome.h"

#include <QWidget>

#include <functional>

class QHBoxLayout;

namespace lullet {

// The common part of the four prompts' windows: an answer is acted on once, and the window then
// takes no more input while it closes.
class PromptView : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    // The user put the question away unanswered (Escape, the tray icon, "Later").
    virtual void dismiss()
    {
        respond([] { return PromptOutcome::Close; });
    }

Q_SIGNALS:
    // The user answered; the shell closes the prompt as the outcome says.
    void answered(lullet::PromptOutcome outcome);

protected:
    // The row about a running item: "Finished", and "Need more time" with its menu of minutes.
    QHBoxLayout* finishedOrMoreTime(QWidget* parent, const QString& finishName,
                                    const std::function<PromptOutcome()>& finish,
                                    const std::function<PromptOutcome(int minutes)>& moreTime,
                                    bool finishIsDefault);

    // Acts on the answer unless one was given already; answers whether it was acted on.
    template <class Answer> bool respond(Answer&& answer)
    {
        if (m_done)
            return false;
        const PromptOutcome outcome = answer();
        if (outcome == PromptOutcome::Stay)
            return true;
        m_done = true;
        setEnabled(false);
        Q_EMIT answered(outcome);
        return true;
    }

private:
    bool m_done = false;
};

} // namespace lullet
