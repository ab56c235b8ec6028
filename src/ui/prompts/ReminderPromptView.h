#pragma once

#include "core/monitor/ReminderPrompt.h"
#include "ui/prompts/PromptView.h"

class QVBoxLayout;

namespace lullet {

struct Services;

// The reminder prompt: an item is due. Start it, delay it, or settle the item still running.
class ReminderPromptView final : public PromptView {
    Q_OBJECT
public:
    ReminderPromptView(const Services& services, Item* due, Item* previous,
                       QWidget* parent = nullptr);

    const ReminderPrompt& prompt() const { return m_prompt; }

    // The answers of the "Start" and "In 10 min" buttons, also given from a notification.
    void start();
    void postpone10();

private:
    void buildDueSection(QVBoxLayout* layout);
    void buildPreviousSection(QVBoxLayout* layout);

    ReminderPrompt m_prompt;
};

} // namespace lullet
