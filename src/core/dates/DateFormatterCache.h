#pragma once

#include <QString>

#include <unicode/uversion.h>

#include <memory>

U_NAMESPACE_BEGIN
class Locale;
class SimpleDateFormat;
class TimeZone;
U_NAMESPACE_END

namespace lullet {

// Pattern formatters are costly to make, so the pattern-driven paths share them. The cache is
// filled on first use of each (pattern, zone, locale) and never emptied. Formatters are handed
// out as they are and only ever used through const calls, which is safe across threads.
class DateFormatterCache {
public:
    static std::shared_ptr<const icu::SimpleDateFormat>
    formatter(const QString& pattern, const icu::TimeZone& zone, const icu::Locale& locale);
};

} // namespace lullet
