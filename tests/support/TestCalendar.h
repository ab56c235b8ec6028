#pragma once

#include "core/dates/CalendarContext.h"

namespace lullet::test {

// The locale and zone that most tests reckon in: US English, Berlin time (with its daylight
// saving changes).
inline void useTestCalendar()
{
    CalendarContext::setLocale(QStringLiteral("en_US"));
    CalendarContext::setTimeZone(QStringLiteral("Europe/Berlin"));
}

} // namespace lullet::test
