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

private:
    void buildDueSection(QVBoxLayout* layout);
    void buildPreviousSection(QVBoxLayout* layout);

    ReminderPrompt m_prompt;
};

} // namespace lullet
