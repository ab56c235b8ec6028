#pragma once

#include "core/monitor/TimeOverPrompt.h"
#include "ui/prompts/PromptView.h"

namespace lullet {

struct Services;

// The running item's time is over: finished, or more time?
class TimeOverPromptView final : public PromptView {
    Q_OBJECT
public:
    TimeOverPromptView(const Services& services, Item* item, QWidget* parent = nullptr);

    const TimeOverPrompt& prompt() const { return m_prompt; }

private:
    TimeOverPrompt m_prompt;
};

} // namespace lullet
