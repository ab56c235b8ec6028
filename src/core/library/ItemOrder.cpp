#include "core/library/ItemOrder.h"

#include <algorithm>

namespace lullet {

namespace {

// Open before finished; then dated before undated. Answers whether that settles it.
bool settledByGroup(const Item* a, const Item* b, bool& aFirst)
{
    const bool aDone = a->isFinished();
    const bool bDone = b->isFinished();
    if (aDone != bDone) {
        aFirst = !aDone;
        return true;
    }
    if (!a->effectiveDate() || !b->effectiveDate()) {
        aFirst = a->effectiveDate().has_value() && !b->effectiveDate().has_value();
        return true;
    }
    return false;
}

} // namespace

void ItemOrder::sortShared(std::vector<Item*>& items)
{
    std::stable_sort(items.begin(), items.end(), [](const Item* a, const Item* b) {
        bool aFirst = false;
        if (settledByGroup(a, b, aFirst))
            return aFirst;
        return a->isFinished() ? *b->effectiveDate() < *a->effectiveDate()
                               : *a->effectiveDate() < *b->effectiveDate();
    });
}

void ItemOrder::sortForList(std::vector<Item*>& items)
{
    std::stable_sort(items.begin(), items.end(), [](const Item* a, const Item* b) {
        bool aFirst = false;
        if (settledByGroup(a, b, aFirst))
            return aFirst;
        return *a->effectiveDate() < *b->effectiveDate();
    });
}

} // namespace lullet
