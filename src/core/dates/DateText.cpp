#include "core/dates/CalendarContext.h"
#include "core/dates/Clock.h"
#include "core/dates/Date.h"
#include "core/dates/DateFormatterCache.h"
#include "core/dates/IcuString.h"
#include "core/dates/StyledDateFormat.h"

#include <QCoreApplication>

#include <unicode/dtfmtsym.h>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

#include <cmath>

// Date's texts: reading a date from text, writing it in a format or a style, the names of its
// weekday and month, and how long ago it was.
namespace lullet {

namespace {

constexpr int hourInSeconds = 3600;

const icu::DateFormatSymbols& defaultSymbols()
{
    thread_local int generation = 0;
    thread_local std::shared_ptr<const icu::SimpleDateFormat> formatter;
    if (generation != CalendarContext::generation() || !formatter) {
        generation = CalendarContext::generation();
        formatter =
            DateFormatterCache::formatter(QString::fromUtf16(DefaultFormat),
                                          *CalendarContext::timeZone(), CalendarContext::locale());
    }
    return *formatter->getDateFormatSymbols();
}

QString symbol(int index, icu::DateFormatSymbols::DtWidthType width, bool weekday)
{
    const icu::DateFormatSymbols& symbols = defaultSymbols();
    int32_t count = 0;
    const icu::UnicodeString* list =
        weekday ? symbols.getWeekdays(count, icu::DateFormatSymbols::FORMAT, width)
                : symbols.getMonths(count, icu::DateFormatSymbols::FORMAT, width);
    // ICU's weekday list starts with an empty entry so that Sunday is at 1.
    const int at = weekday ? index + 1 : index;
    return at >= 0 && at < count ? fromIcu(list[at]) : QString();
}

QString translated(const char* text)
{
    return QCoreApplication::translate("Date", text, "Show the relative time from a date");
}

std::unique_ptr<icu::TimeZone> zoneFor(TimeZone zone)
{
    if (zone == TimeZone::Utc)
        return std::unique_ptr<icu::TimeZone>(icu::TimeZone::getGMT()->clone());
    return CalendarContext::timeZone();
}

icu::Locale localeFor(const DateFormat& format)
{
    if (format.locale.isEmpty())
        return CalendarContext::locale();
    return icu::Locale(
        (format.locale + QStringLiteral("@calendar=gregorian")).toLatin1().constData());
}

const icu::Locale& posixLocale()
{
    static const icu::Locale locale("en_US_POSIX@calendar=gregorian");
    return locale;
}

// A parse counts only when the whole text was read.
std::optional<Date> parse(QStringView text, const QString& pattern, const icu::Locale& locale,
                          TimeZone zone)
{
    const auto formatter = DateFormatterCache::formatter(pattern, *zoneFor(zone), locale);
    if (!formatter)
        return std::nullopt;
    const icu::UnicodeString input = toIcu(text);
    icu::ParsePosition pos(0);
    const UDate ms = formatter->parse(input, pos);
    if (pos.getErrorIndex() >= 0 || pos.getIndex() != input.length())
        return std::nullopt;
    return Date(ms / 1000.0);
}

QString format(Date d, const QString& pattern, const icu::Locale& locale, TimeZone zone)
{
    const auto formatter = DateFormatterCache::formatter(pattern, *zoneFor(zone), locale);
    if (!formatter)
        return {};
    icu::UnicodeString out;
    formatter->format(d.timeIntervalSince1970() * 1000.0, out);
    return fromIcu(out);
}
} // namespace

Date Date::fromString(QStringView text, const DateFormat& format, const Clock& clock, TimeZone zone)
{
    if (text.isEmpty())
        return clock.now();
    std::optional<Date> parsed;
    switch (format.kind) {
    case DateFormat::Kind::DotNet: {
        const qsizetype open = text.indexOf(u'(');
        const qsizetype close = text.indexOf(u')');
        if (open >= 0 && close > open) {
            bool ok = false;
            const qint64 ms = text.sliced(open + 1, close - open - 1).toLongLong(&ok);
            // Whole seconds, as the text is read.
            const qint64 seconds = ms / 1000;
            if (ok)
                parsed = Date(double(seconds));
        }
        break;
    }
    case DateFormat::Kind::Iso8601: {
        const ISO8601Format iso = format.iso.value_or(iso8601FormatForDateString(text));
        parsed = parse(text, iso8601Pattern(iso), posixLocale(), zone);
        break;
    }
    case DateFormat::Kind::Rss:
    case DateFormat::Kind::AltRss: {
        QString input = text.toString();
        if (input.endsWith(u'Z'))
            input = input.chopped(1) + QStringLiteral("GMT");
        const char16_t* pattern = format.kind == DateFormat::Kind::Rss ? RSSFormat : AltRSSFormat;
        parsed = parse(input, QString::fromUtf16(pattern), CalendarContext::locale(), zone);
        break;
    }
    case DateFormat::Kind::Custom:
        parsed = parse(text, format.pattern, localeFor(format), zone);
        break;
    }
    return parsed.value_or(clock.now());
}
QString Date::weekdayToString() const
{
    return symbol(weekday() - 1, icu::DateFormatSymbols::WIDE, true);
}

QString Date::shortWeekdayToString() const
{
    return symbol(weekday() - 1, icu::DateFormatSymbols::ABBREVIATED, true);
}

QString Date::veryShortWeekdayToString() const
{
    return symbol(weekday() - 1, icu::DateFormatSymbols::NARROW, true);
}

QString Date::monthToString() const
{
    return symbol(month() - 1, icu::DateFormatSymbols::WIDE, false);
}

QString Date::shortMonthToString() const
{
    return symbol(month() - 1, icu::DateFormatSymbols::ABBREVIATED, false);
}

QString Date::veryShortMonthToString() const
{
    return symbol(month() - 1, icu::DateFormatSymbols::NARROW, false);
}

QString Date::toString() const
{
    return toString(DateStyle::Short, DateStyle::Short);
}

QString Date::toString(DateStyle dateStyle, DateStyle timeStyle, const Clock* relativeTo) const
{
    return StyledDateFormat::format(*this, dateStyle, timeStyle, relativeTo);
}

QString Date::toString(const DateFormat& fmt, TimeZone zone) const
{
    switch (fmt.kind) {
    case DateFormat::Kind::DotNet: {
        UErrorCode status = U_ZERO_ERROR;
        int32_t raw = 0;
        int32_t dst = 0;
        zoneFor(zone)->getOffset(m_seconds * 1000.0, false, raw, dst, status);
        const int hours = (raw + dst) / 1000 / hourInSeconds;
        return QString::asprintf("/Date(%.0f%+03d)/", m_seconds * 1000.0, hours);
    }
    case DateFormat::Kind::Iso8601:
        return format(*this, iso8601Pattern(fmt.iso.value_or(ISO8601Format::DateTimeMilliSec)),
                      posixLocale(), zone);
    case DateFormat::Kind::Rss:
        return format(*this, QString::fromUtf16(RSSFormat), CalendarContext::locale(), zone);
    case DateFormat::Kind::AltRss:
        return format(*this, QString::fromUtf16(AltRSSFormat), CalendarContext::locale(), zone);
    case DateFormat::Kind::Custom:
        return format(*this, fmt.pattern, localeFor(fmt), zone);
    }
    return {};
}

QString Date::relativeTimeToString(const Clock& clock) const
{
    const double n = clock.now().m_seconds;
    const bool past = n - m_seconds > 0;
    const double sec = std::fabs(n - m_seconds);
    const double min = std::round(sec / 60);
    const double hr = std::round(min / 60);
    const double d = std::round(hr / 24);

    const auto describe = [past](const QString& text) {
        return past ? translated("%1 ago").arg(text) : translated("in %1").arg(text);
    };
    const auto number = [](double value) { return QString::number(value, 'f', 0); };

    if (sec < 60) {
        if (sec < 10)
            return translated("just now");
        return describe(translated("%1 seconds").arg(number(sec)));
    }
    if (min < 60)
        return describe(min == 1 ? translated("1 minute")
                                 : translated("%1 minutes").arg(number(min)));
    if (hr < 24)
        return describe(hr == 1 ? translated("1 hour") : translated("%1 hours").arg(number(hr)));
    if (d < 7)
        return describe(d == 1 ? translated("1 day") : translated("%1 days").arg(number(d)));
    return toString();
}

QString iso8601Pattern(ISO8601Format format)
{
    switch (format) {
    case ISO8601Format::Year:
        return QStringLiteral("yyyy");
    case ISO8601Format::YearMonth:
        return QStringLiteral("yyyy-MM");
    case ISO8601Format::Date:
        return QStringLiteral("yyyy-MM-dd");
    case ISO8601Format::DateTime:
        return QStringLiteral("yyyy-MM-dd'T'HH:mmZ");
    case ISO8601Format::DateTimeSec:
        return QStringLiteral("yyyy-MM-dd'T'HH:mm:ssZ");
    case ISO8601Format::DateTimeMilliSec:
        return QStringLiteral("yyyy-MM-dd'T'HH:mm:ss.SSSZ");
    }
    return {};
}

ISO8601Format iso8601FormatForDateString(QStringView dateString)
{
    switch (dateString.size()) {
    case 4:
        return ISO8601Format::Year;
    case 7:
        return ISO8601Format::YearMonth;
    case 10:
        return ISO8601Format::Date;
    case 22:
        return ISO8601Format::DateTime;
    case 25:
        return ISO8601Format::DateTimeSec;
    default:
        return ISO8601Format::DateTimeMilliSec;
    }
}
} // namespace lullet
