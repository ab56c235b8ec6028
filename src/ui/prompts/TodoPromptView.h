#pragma once

#include "core/monitor/TodoPrompt.h"
#include "ui/prompts/PromptView.h"

namespace lullet {

struct Services;

// A lullet's moment has come: done, or not now.
class TodoPromptView final : public PromptView {
    Q_OBJECT
public:
    TodoPromptView(const Services& services, Item* item, QWidget* parent = nullptr);

    const TodoPrompt& prompt() const { return m_prompt; }

private:
    TodoPrompt m_prompt;
};

} // namespace lullet
