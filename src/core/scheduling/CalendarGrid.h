#pragma once

#include "core/dates/Date.h"

namespace lullet {

// The first date at or after now on a grid of day or month steps from an anchor, at least one
// step after it: the very date that taking the steps one by one finds, without taking them all.
// Between two changes of the zone's offset a day step adds whole days of seconds; a month step
// keeps its day of the month and its time of day until a shorter month cuts the day or an hour
// the clock skips moves the time. The search leaps over what lies between such events and takes
// the steps at them one at a time, so its cost follows the zone's changes of offset since the
// anchor (a few hundred in the worst zones), never the anchor's age. Anchors on a whole second,
// as Lullet writes them, give the walk's dates to the bit; an anchor with a fraction of a second
// may differ from the walk's by the rounding of that fraction.
class CalendarGrid {
public:
    // Steps of `days` days; a week is seven.
    static Date firstDayStepFrom(Date anchor, int days, Date now);
    // Steps of `months` months; a year is twelve.
    static Date firstMonthStepFrom(Date anchor, int months, Date now);
};

} // namespace lullet
