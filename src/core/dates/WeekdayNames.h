#pragma once

#include <QString>

namespace lullet {

// The names of the weekdays in the user's language, as the schedule table shows them.
class WeekdayNames {
public:
    // 1 is "Sunday" through 7 "Saturday"; any other number gives the empty text.
    static QString name(int weekday);
};

} // namespace lullet
