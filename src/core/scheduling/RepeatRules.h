#pragma once

#include "core/dates/Date.h"

#include <optional>

namespace lullet {

class Clock;
class Rule;

// How a rule's step is applied and where its grid lies next. Reads rules only.
class RepeatRules {
public:
    // One step of `count` units from `d`; an unknown unit leaves `d` as it is.
    static Date step(Date d, int repeatType, int count);
    // One step back, as the generation window measures it.
    static Date stepBack(Date d, int repeatType, int count);

    // True when the rule has a step that moves time forward: a known unit and a count above 0.
    // Stored data without one is skipped by every caller rather than looped over.
    static bool hasUsableStep(const Rule& rule);

    // The rule's next date seen from now: an anchor of today at or after the present minute is
    // returned as it is; otherwise the first date of the grid at or after now, at least one step
    // after the anchor. A rule without an anchor answers now; one without a usable step answers
    // nothing. Minute and hour grids are computed directly, and day to year grids leap over the
    // stretches where stepping changes nothing: either way with the very dates the step by step
    // walk gives, however old the anchor.
    static std::optional<Date> nextDate(const Rule& rule, const Clock& clock);

    // One step after the given date; the rule's end is not looked at. An unknown unit answers the
    // date given.
    static Date stepAfter(const Rule& rule, Date basedOnDate);

    // The walk itself, step by step, for every unit. nextDate gives the same dates; tests and
    // benchmarks hold the two side by side.
    static std::optional<Date> walkToNextDate(const Rule& rule, const Clock& clock);
};

} // namespace lullet
