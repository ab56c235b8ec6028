#include "core/text/LocalizedText.h"

#include "core/dates/CalendarContext.h"
#include "core/dates/IcuString.h"

#include <unicode/coll.h>
#include <unicode/locid.h>

#include <memory>

namespace lullet {

int LocalizedText::compare(const QString& a, const QString& b) {
    // One collator per thread, rebuilt when the user's locale changes.
    thread_local int generation = 0;
    thread_local std::unique_ptr<icu::Collator> collator;
    if (!collator || generation != CalendarContext::generation()) {
        generation = CalendarContext::generation();
        UErrorCode status = U_ZERO_ERROR;
        collator.reset(icu::Collator::createInstance(CalendarContext::locale(), status));
        if (U_FAILURE(status))
            collator.reset();
    }
    if (!collator)
        return a.compare(b);
    UErrorCode status = U_ZERO_ERROR;
    return int(collator->compare(toIcu(a), toIcu(b), status));
}

} // namespace lullet
