#include "core/dates/DateFormatterCache.h"

#include "core/dates/IcuString.h"

#include <QHash>

#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

#include <mutex>

namespace lullet {

std::shared_ptr<const icu::SimpleDateFormat>
DateFormatterCache::formatter(const QString& pattern, const icu::TimeZone& zone,
                              const icu::Locale& locale)
{
    static std::mutex mutex;
    static QHash<QString, std::shared_ptr<const icu::SimpleDateFormat>> cache;

    icu::UnicodeString zoneId;
    zone.getID(zoneId);
    // The key joins the hashes of the three parts as decimal text.
    const QString key = QString::number(qHash(pattern)) + QString::number(qHash(fromIcu(zoneId))) +
                        QString::number(locale.hashCode());

    std::lock_guard lock(mutex);
    if (auto it = cache.constFind(key); it != cache.constEnd())
        return *it;

    UErrorCode status = U_ZERO_ERROR;
    auto fmt = std::make_shared<icu::SimpleDateFormat>(toIcu(pattern), locale, status);
    if (U_FAILURE(status))
        return {};
    fmt->setTimeZone(zone);
    fmt->setLenient(false);
    cache.insert(key, fmt);
    return fmt;
}

} // namespace lullet
