#pragma once

#include "core/dates/Date.h"

namespace lullet {

class Item;

// One prompt the monitor asked for, as it waits to be shown.
struct PromptRequest {
    enum class Kind { Reminder, IdleQuestion, TimeOver, ToDo };

    Kind kind = Kind::Reminder;
    // The item of a reminder, a time-over or a to-do prompt.
    Item* item = nullptr;
    // A reminder's: the item still running when it fell due.
    Item* previous = nullptr;
    // The idle question's: nothing ran since then; asked now, what is the user doing now?
    Date since;
    bool askNow = false;
};

} // namespace lullet
