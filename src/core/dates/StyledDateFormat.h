#pragma once

#include "core/dates/DateFormats.h"

#include <QString>

namespace lullet {

class Clock;
class Date;

// Dates in the locale's own styles ("11/22/26, 10:15 AM", "Nov 22, 2026"). With a clock, the
// day part of a date near today becomes a word such as "Today" or "Tomorrow", reckoned against
// that clock rather than the wall clock.
class StyledDateFormat {
public:
    static QString format(Date date, DateStyle dateStyle, DateStyle timeStyle,
                          const Clock* relativeTo);
    // The locale's pattern behind those texts, in ICU's letters ("h:mm a", "HH:mm"), for
    // fields that edit what format() writes.
    static QString pattern(DateStyle dateStyle, DateStyle timeStyle);
    // The locale's word for a day this many days from today ("Yesterday", "Today", ...), or an
    // empty text where the locale has none.
    static QString relativeDayWord(int dayOffset);
};

} // namespace lullet
