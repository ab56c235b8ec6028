#pragma once

#include <memory>

struct ca_context;

namespace lullet {

// The sound that comes with a prompt, from the desktop's sound theme through libcanberra, by the
// freedesktop event ids. The sound system is opened at the first sound, not before; one that
// can't be opened stays silent.
class PromptSound {
public:
    enum class Kind { Reminder, TimeOver, Question };

    PromptSound();
    virtual ~PromptSound();
    PromptSound(const PromptSound&) = delete;
    PromptSound& operator=(const PromptSound&) = delete;

    virtual void play(Kind kind);

private:
    struct Closer {
        void operator()(ca_context* context) const;
    };
    std::unique_ptr<ca_context, Closer> m_context;
    bool m_failed = false;
};

} // namespace lullet
