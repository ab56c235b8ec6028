#pragma once

#include "core/monitor/PromptQueue.h"

namespace lullet::test {

// Prompts asked for as the monitor asks for them: they wait their turn in the queue.
inline void remind(PromptQueue& queue, Item* item, Item* previous = nullptr)
{
    queue.add({PromptRequest::Kind::Reminder, item, previous, {}, false});
}

inline void askIdle(PromptQueue& queue, Date since, bool now = false)
{
    queue.add({PromptRequest::Kind::IdleQuestion, nullptr, nullptr, since, now});
}

inline void tellTimeOver(PromptQueue& queue, Item* item)
{
    queue.add({PromptRequest::Kind::TimeOver, item, nullptr, {}, false});
}

inline void askToDo(PromptQueue& queue, Item* item)
{
    queue.add({PromptRequest::Kind::ToDo, item, nullptr, {}, false});
}

} // namespace lullet::test
