#pragma once

#include <QString>
#include <QVariant>

namespace lullet {

// Shows a weekday number of the schedule table as its English name.
class DayValueTransformer {
public:
    // 1 is "Sunday" through 7 "Saturday"; no value or any other number gives the empty text.
    QString transformedValue(const QVariant& value);

    QString txt;
};

} // namespace lullet
