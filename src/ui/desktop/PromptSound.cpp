#include "ui/desktop/PromptSound.h"

#include "ui/desktop/AppId.h"

#include <canberra.h>

namespace lullet {

void PromptSound::Closer::operator()(ca_context* context) const
{
    ca_context_destroy(context);
}

PromptSound::PromptSound() = default;
PromptSound::~PromptSound() = default;

void PromptSound::play(Kind kind)
{
    if (m_failed)
        return;
    if (!m_context) {
        ca_context* made = nullptr;
        if (ca_context_create(&made) != CA_SUCCESS) {
            m_failed = true;
            return;
        }
        m_context.reset(made);
        ca_context_change_props(made, CA_PROP_APPLICATION_NAME, "Lullet", CA_PROP_APPLICATION_ID,
                                appId, nullptr);
    }
    const char* event = "message-new-instant";
    const char* description = "A reminder";
    switch (kind) {
    case Kind::Reminder:
        break;
    case Kind::TimeOver:
        event = "alarm-clock-elapsed";
        description = "An item's time is over";
        break;
    case Kind::Question:
        event = "dialog-information";
        description = "A question";
        break;
    }
    // Played by the sound server; nothing waits on it, and a failure is silence.
    ca_context_play(m_context.get(), 0, CA_PROP_EVENT_ID, event, CA_PROP_EVENT_DESCRIPTION,
                    description, nullptr);
}

} // namespace lullet
