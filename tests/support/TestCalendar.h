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

// A moment on the test calendar's wall clock, named before that calendar is set (as a test
// class is made) and reckoned when needed.
struct WallTime {
    int year, month, day, hour = 0, minute = 0, second = 0;
    Date date() const { return at(year, month, day, hour, minute, second); }
};

} // namespace lullet::test
