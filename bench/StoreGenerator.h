#pragma once

#include "core/store/StoreStack.h"

namespace lullet::bench {

// Fills an open store with a plausible history: projects, rules, and items spread over the two
// years around `now`, most of them finished.
void generateStore(StoreStack& store, Date now, int items, int rules, int projects);

} // namespace lullet::bench
