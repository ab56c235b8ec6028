#pragma once

namespace lullet {

struct PromptRequest;

// Where prompts show: the shell's windows in the program, a recorder in tests. The queue shows
// one prompt at a time through it; the port tells PromptQueue::closed() when that prompt is gone,
// answered or not.
class PromptPort {
public:
    virtual ~PromptPort() = default;

    virtual void present(const PromptRequest& request) = 0;
    // The idle question on show goes on counting, in the mode given.
    virtual void extendIdleQuestion(bool askNow) = 0;
    // The idle question on show gives way to a prompt that cannot wait; it goes unanswered, and
    // closed() follows.
    virtual void withdrawIdleQuestion() = 0;
};

} // namespace lullet
