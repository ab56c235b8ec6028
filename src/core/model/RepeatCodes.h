#pragma once

#include "core/text/CountedText.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <array>

namespace lullet {

// The unit of a rule's step, stored as a number in repeatIntervalType. The order is the order of
// the form's unit menu.
namespace RepeatUnit {
enum Code : int { Minute = 0, Hour = 1, Day = 2, Week = 3, Month = 4, Year = 5 };

inline bool isKnown(int code)
{
    return code >= Minute && code <= Year;
}
} // namespace RepeatUnit

// Days of advance notice, stored in remindBefore. The code is the number of days, so the codes
// have a gap where the form's menu has none.
namespace RemindBefore {
enum Code : int { OnTheDay = 0 };

inline constexpr std::array<int, 10> codes = {0, 1, 2, 3, 4, 5, 6, 7, 10, 15};

// How many days ahead an item counts as coming up: the code itself for a known code, no days for
// anything else.
inline int days(int code)
{
    for (const int known : codes) {
        if (known == code)
            return code;
    }
    return 0;
}

inline QStringList labels()
{
    QStringList labels{QCoreApplication::translate("RemindBefore", "On date")};
    for (const int code : codes) {
        if (code > 0)
            labels << CountedText::text("RemindBefore",
                                        QT_TRANSLATE_N_NOOP("RemindBefore", "%n days"), code,
                                        code == 1 ? "%n day" : nullptr);
    }
    return labels;
}
} // namespace RemindBefore

// The end of a rule: 0 repeats without end, 1 up to its dtRepeatUpto. An occurrence made from a
// to-do rule carries -5 instead, which is never a rule's own value: that marks it as a to-do.
namespace RepeatEnd {
inline constexpr int never = 0;
inline constexpr int untilDate = 1;
inline constexpr int toDoMarker = -5;
} // namespace RepeatEnd

// The fixed uniqueId "<to make>" that identifies nothing: items that no rule made and projects
// duplicated as new all carry it.
inline const QString& placeholderId()
{
    static const QString id = QStringLiteral("<to make>");
    return id;
}

} // namespace lullet
