#pragma once

#include <QString>
#include <QStringList>

#include <array>

namespace lullet {

// The unit of a rule's step, stored in repeatIntervalType. The order is the order of the form's
// unit menu.
enum TaskRepeatTypes : int {
    ID_REPEAT_MIN = 0,
    ID_REPEAT_HOUR = 1,
    ID_REPEAT_DAY = 2,
    ID_REPEAT_WEEK = 3,
    ID_REPEAT_MONTH = 4,
    ID_REPEAT_YEAR = 5,
};

inline bool isKnownRepeatType(int code)
{
    return code >= ID_REPEAT_MIN && code <= ID_REPEAT_YEAR;
}

// Days of advance notice, stored in remindBefore. The code is the number of days, so the codes
// have a gap where the menu has none.
enum RemindBeforeDaysOptions : int {
    ID_ON_DAY = 0,
    ID_1_DAY = 1,
    ID_2_DAYS = 2,
    ID_3_DAYS = 3,
    ID_4_DAYS = 4,
    ID_5_DAYS = 5,
    ID_6_DAYS = 6,
    ID_7_DAYS = 7,
    ID_10_DAYS = 10,
    ID_15_DAYS = 15,
};

inline constexpr std::array<int, 10> remindBeforeCodes = {0, 1, 2, 3, 4, 5, 6, 7, 10, 15};

// How many days ahead an item counts as coming up: the code itself for a known code, no days for
// anything else.
inline int remindBeforeDays(int code)
{
    for (const int known : remindBeforeCodes) {
        if (known == code)
            return code;
    }
    return 0;
}

inline QStringList remindBeforeLabels()
{
    return {QStringLiteral("On date"), QStringLiteral("1 day"),  QStringLiteral("2 days"),
            QStringLiteral("3 days"),  QStringLiteral("4 days"), QStringLiteral("5 days"),
            QStringLiteral("6 days"),  QStringLiteral("7 days"), QStringLiteral("10 days"),
            QStringLiteral("15 days")};
}

// Written into an occurrence's repeatOption to mark a to-do; never a rule's own repeatOption.
struct RepeatOptionsToDo {
    static constexpr int TODO_VAL = -5;
};

} // namespace lullet
