#pragma once

#include <QString>

namespace lullet {

// The English names of the weekdays, as the schedule table shows them.
class WeekdayNames {
public:
    // 1 is "Sunday" through 7 "Saturday"; any other number gives the empty text.
    static QString english(int weekday);
};

} // namespace lullet
