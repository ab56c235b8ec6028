#pragma once

#include "core/dates/CalendarContext.h"
#include "core/dates/Date.h"

namespace lullet::test {

// The locale and zone that most tests reckon in: US English, Berlin time (with its daylight
// saving changes).
inline void useTestCalendar()
{
    CalendarContext::setLocale(QStringLiteral("en_US"));
    CalendarContext::setTimeZone(QStringLiteral("Europe/Berlin"));
}

// A moment on the test calendar's wall clock.
inline Date at(int y, int mo, int d, int h = 0, int mi = 0, int s = 0)
{
    return Date::dateFromComponents(y, mo, d, h, mi, s);
}

} // namespace lullet::test
