#include "core/dates/DayValueTransformer.h"

#include <array>

namespace lullet {

QString DayValueTransformer::transformedValue(const QVariant& value)
{
    static const std::array<QString, 7> names = {
        QStringLiteral("Sunday"),    QStringLiteral("Monday"),   QStringLiteral("Tuesday"),
        QStringLiteral("Wednesday"), QStringLiteral("Thursday"), QStringLiteral("Friday"),
        QStringLiteral("Saturday")};
    txt.clear();
    if (value.isValid() && !value.isNull() && value.canConvert<int>()) {
        bool ok = false;
        const int day = value.toInt(&ok);
        if (ok && day >= 1 && day <= 7)
            txt = names[std::size_t(day - 1)];
    }
    return txt;
}

} // namespace lullet
