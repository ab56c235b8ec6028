#pragma once

#include "core/model/Item.h"

#include <vector>

namespace lullet {

// The two orders of items. They look alike and differ on purpose, so they stand side by side.
// Both put open items before finished ones and, within a group, dated items by date with undated
// ones after them; items of equal date keep their order (the sorts are stable).
class ItemOrder {
public:
    // The shared list of all items: finished items run latest first, so that the newest history
    // is nearest the open items. The monitor walks this list, and the item that a due reminder
    // asks about is the nearest started one before it.
    static void sortShared(std::vector<Item*>& items);
    // The lists the user reads ("Today", "Anytime"): the earlier first in both groups, so the
    // day reads in the order it was lived.
    static void sortForList(std::vector<Item*>& items);
};

} // namespace lullet
