#include "core/dates/ZoneOffsets.h"

#include "core/dates/CalendarContext.h"

#include <unicode/basictz.h>
#include <unicode/calendar.h>
#include <unicode/tztrans.h>

#include <array>
#include <limits>

namespace lullet {

ZoneOffsets::Span ZoneOffsets::spanAt(double utcMs)
{
    // A few spans, since a step across a change of offset looks at both sides in turn.
    constexpr std::size_t slots = 4;
    thread_local int generation = 0;
    thread_local std::array<Span, slots> cached;
    thread_local std::size_t next = 0;
    const int current = CalendarContext::generation();
    if (generation != current) {
        cached.fill(Span{});
        generation = current;
    }
    for (const Span& span : cached) {
        if (span.contains(utcMs))
            return span;
    }

    const icu::TimeZone& zone = CalendarContext::calendar().getTimeZone();
    UErrorCode status = U_ZERO_ERROR;
    int32_t raw = 0;
    int32_t dst = 0;
    zone.getOffset(utcMs, false, raw, dst, status);
    Span span{utcMs, utcMs, double(raw) + double(dst)};

    if (const auto* basic = dynamic_cast<const icu::BasicTimeZone*>(&zone)) {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        icu::TimeZoneTransition transition;
        span.start = basic->getPreviousTransition(utcMs, true, transition) ? transition.getTime()
                                                                           : -infinity;
        span.end =
            basic->getNextTransition(utcMs, false, transition) ? transition.getTime() : infinity;
        cached[next] = span;
        next = (next + 1) % slots;
    }
    return span;
}

} // namespace lullet
