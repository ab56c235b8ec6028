#pragma once

#include "core/store/Store.h"

namespace lullet::bench {

// Fills an open store with a plausible history: projects, rules, and items spread over the two
// years around `now`, most of them finished.
void generateStore(Store& store, Date now, int items, int rules, int projects);

} // namespace lullet::bench
