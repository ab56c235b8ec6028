#pragma once

#include <QString>

#include <optional>
#include <utility>

namespace lullet {

// Patterns of the ISO 8601 forms; the value is the date pattern.
enum class ISO8601Format { Year, YearMonth, Date, DateTime, DateTimeSec, DateTimeMilliSec };

QString iso8601Pattern(ISO8601Format format);
// Picks the form by the length of the text; any length outside the table means milliseconds.
ISO8601Format iso8601FormatForDateString(QStringView dateString);

// The toolkit's own zone choice: the local zone, or a zone of 0 seconds from GMT.
enum class TimeZone { Local, Utc };

// Date and time styles of the styled texts, as the locale words them.
enum class DateStyle { None, Short, Medium, Long, Full };

inline constexpr char16_t DefaultFormat[] = u"EEE MMM dd HH:mm:ss Z yyyy";
inline constexpr char16_t RSSFormat[] = u"EEE, d MMM yyyy HH:mm:ss ZZZ";
inline constexpr char16_t AltRSSFormat[] = u"d MMM yyyy HH:mm:ss ZZZ";

// How a date is written or read: a pattern of our own, an ISO form, or a web format.
struct DateFormat {
    enum class Kind { Iso8601, Custom, DotNet, Rss, AltRss };

    Kind kind = Kind::Iso8601;
    std::optional<ISO8601Format> iso;
    QString pattern;
    // For custom patterns: a fixed locale such as "en_US"; empty means the user's locale.
    QString locale;

    static DateFormat iso8601(std::optional<ISO8601Format> format = std::nullopt)
    {
        return {Kind::Iso8601, format, {}, {}};
    }
    static DateFormat custom(QString pattern, QString locale = {})
    {
        return {Kind::Custom, std::nullopt, std::move(pattern), std::move(locale)};
    }
    static DateFormat dotNet() { return {Kind::DotNet, std::nullopt, {}, {}}; }
    static DateFormat rss() { return {Kind::Rss, std::nullopt, {}, {}}; }
    static DateFormat altRSS() { return {Kind::AltRss, std::nullopt, {}, {}}; }
};

} // namespace lullet
