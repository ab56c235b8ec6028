#pragma once

#include "core/dates/Date.h"

#include <QString>

namespace lullet {

class Clock;

// Fixed display helpers shared by lists, reports and the schedule editor.
class projectFunc {
public:
    // "1" is "SUNDAY" through "7" "SATURDAY"; anything else the empty text.
    static QString getDayName(const QString& day);
    // 0 is "JANUARY" through 11 "DECEMBER": counted from 0, unlike getDayName.
    static QString ChangeMonthName(int month);
    // Fixed en_US patterns: 0 "yyyy-MM-dd", 1 "yyyy/MM/dd", 2 "dd", 3 "MM", 4 "yyyy", 5 "MMMM",
    // anything else "dd".
    static QString dateStringFromDate(int option, Date date);
    // Midnight of the date's day.
    static Date returnDateComp(Date date);
    // The date's whole hour: minutes and seconds dropped.
    static Date returnDateTimeComp(Date date);
    // "Yesterday", "Today", or the date as "dd MMM YYYY".
    static QString transformedValue(Date date, const Clock& clock);
    // "hh:mm:ss.mmm" of a span of seconds.
    static QString stringFromTimeInterval(double interval);
};

} // namespace lullet
