#pragma once

#include "core/dates/Date.h"

#include <QTest>

namespace lullet {

// Lets QCOMPARE print dates it finds unequal.
inline char* toString(const Date& date)
{
    const QString text = date.toString(DateFormat::iso8601(ISO8601Format::DateTimeSec)) +
                         QStringLiteral(" (%1)").arg(date.timeIntervalSince1970(), 0, 'f', 3);
    return QTest::toString(text);
}

} // namespace lullet

namespace lullet {

inline char* toString(const std::optional<Date>& date)
{
    return date ? toString(*date) : QTest::toString(QStringLiteral("no date"));
}

} // namespace lullet
