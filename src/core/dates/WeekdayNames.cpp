#include "core/dates/WeekdayNames.h"

#include <array>

namespace lullet {

QString WeekdayNames::english(int weekday)
{
    static const std::array<QString, 7> names = {
        QStringLiteral("Sunday"),    QStringLiteral("Monday"),   QStringLiteral("Tuesday"),
        QStringLiteral("Wednesday"), QStringLiteral("Thursday"), QStringLiteral("Friday"),
        QStringLiteral("Saturday")};
    if (weekday < 1 || weekday > 7)
        return {};
    return names[std::size_t(weekday - 1)];
}

} // namespace lullet
