#include "core/dates/Date.h"

#include "core/dates/CalendarContext.h"
#include "core/dates/Clock.h"
#include "core/dates/DateFormatterCache.h"
#include "core/dates/IcuString.h"
#include "core/dates/StyledDateFormat.h"
#include "core/dates/ZoneOffsets.h"

#include <QCoreApplication>
#include <QtGlobal>

#include <unicode/calendar.h>
#include <unicode/dtfmtsym.h>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

#include <cmath>
#include <limits>

namespace lullet {

namespace {

constexpr int minuteInSeconds = 60;
constexpr int hourInSeconds = 3600;
constexpr int dayInSeconds = 86400;
constexpr int weekInSeconds = 604800;
constexpr double msPerDay = 86400000.0;

// The calling thread's calendar, set to the given moment.
icu::Calendar& calendarAt(Date d)
{
    icu::Calendar& cal = CalendarContext::calendar();
    UErrorCode status = U_ZERO_ERROR;
    cal.setTime(d.timeIntervalSince1970() * 1000.0, status);
    if (U_FAILURE(status))
        qFatal("Date %f is outside the calendar's range", d.timeIntervalSince1970());
    return cal;
}

int field(icu::Calendar& cal, UCalendarDateFields f)
{
    UErrorCode status = U_ZERO_ERROR;
    const int value = cal.get(f, status);
    if (U_FAILURE(status))
        qFatal("Calendar field %d cannot be read: %s", int(f), u_errorName(status));
    return value;
}

Date timeOf(icu::Calendar& cal)
{
    UErrorCode status = U_ZERO_ERROR;
    const UDate ms = cal.getTime(status);
    if (U_FAILURE(status))
        qFatal("Calendar gave no date: %s", u_errorName(status));
    return Date(ms / 1000.0);
}

void add(icu::Calendar& cal, UCalendarDateFields f, int amount)
{
    UErrorCode status = U_ZERO_ERROR;
    cal.add(f, amount, status);
    if (U_FAILURE(status))
        qFatal("Calendar cannot add %d to field %d: %s", amount, int(f), u_errorName(status));
}

void setTime(icu::Calendar& cal, int hour, int minute, int second)
{
    cal.set(UCAL_HOUR_OF_DAY, hour);
    cal.set(UCAL_MINUTE, minute);
    cal.set(UCAL_SECOND, second);
    cal.set(UCAL_MILLISECOND, 0);
}

// Days since 1970-01-01 of the local calendar day that holds the moment.
double localDayNumber(Date d)
{
    const double ms = d.timeIntervalSince1970() * 1000.0;
    return std::floor((ms + ZoneOffsets::spanAt(ms).offset) / msPerDay);
}

// Milliseconds since local midnight, whole.
qint64 localMillisOfDay(Date d)
{
    const double ms = std::floor(d.timeIntervalSince1970() * 1000.0);
    const double local = ms + ZoneOffsets::spanAt(ms).offset;
    return qint64(local - std::floor(local / msPerDay) * msPerDay);
}

qint64 truncated(double value)
{
    const double t = std::trunc(value);
    if (!std::isfinite(t) || t < double(std::numeric_limits<qint64>::min()) ||
        t > double(std::numeric_limits<qint64>::max()))
        qFatal("Date difference %f does not fit an integer", value);
    return qint64(t);
}

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

Date Date::dateFromComponents(int year, int month, int day, int hour, int minute, int second)
{
    icu::Calendar& cal = CalendarContext::calendar();
    cal.clear();
    cal.set(year, month - 1, day, hour, minute, second);
    return timeOf(cal);
}

Date Date::tomorrow(const Clock& clock)
{
    return clock.now().dateByAddingDays(1).dateAtStartOfDay();
}

Date Date::yesterday(const Clock& clock)
{
    return clock.now().dateBySubtractingDays(1).dateAtStartOfDay();
}

bool Date::isInFuture(const Clock& clock) const
{
    return isLaterThanDate(clock.now());
}

bool Date::isInPast(const Clock& clock) const
{
    return isEarlierThanDate(clock.now());
}

bool Date::isEqualToDateIgnoringTime(Date d) const
{
    // Equal local day numbers are equal years, months and days in a proleptic Gregorian
    // calendar, and the offset look-up is far cheaper than a full field computation.
    return localDayNumber(*this) == localDayNumber(d);
}

bool Date::isToday(const Clock& clock) const
{
    return isEqualToDateIgnoringTime(clock.now());
}

bool Date::isTomorrow(const Clock& clock) const
{
    return isEqualToDateIgnoringTime(clock.now().dateByAddingDays(1));
}

bool Date::isYesterday(const Clock& clock) const
{
    return isEqualToDateIgnoringTime(clock.now().dateBySubtractingDays(1));
}

bool Date::isSameWeekAsDate(Date d) const
{
    if (week() != d.week())
        return false;
    return std::fabs(m_seconds - d.m_seconds) < weekInSeconds;
}

bool Date::isThisWeek(const Clock& clock) const
{
    return isSameWeekAsDate(clock.now());
}

bool Date::isNextWeek(const Clock& clock) const
{
    return isSameWeekAsDate(Date(clock.now().m_seconds + weekInSeconds));
}

bool Date::isLastWeek(const Clock& clock) const
{
    return isSameWeekAsDate(Date(clock.now().m_seconds - weekInSeconds));
}

bool Date::isSameMonthAsDate(Date d) const
{
    return month() == d.month() && year() == d.year();
}

bool Date::isSameYearAsDate(Date d) const
{
    return year() == d.year();
}

bool Date::isThisYear(const Clock& clock) const
{
    return isSameYearAsDate(clock.now());
}

bool Date::isNextYear(const Clock& clock) const
{
    return year() == clock.now().year() + 1;
}

bool Date::isLastYear(const Clock& clock) const
{
    return year() == clock.now().year() - 1;
}

bool Date::isWeekend() const
{
    icu::Calendar& cal = calendarAt(*this);
    const int dow = field(cal, UCAL_DAY_OF_WEEK);
    return dow == cal.getMinimum(UCAL_DAY_OF_WEEK) || dow == cal.getMaximum(UCAL_DAY_OF_WEEK);
}

bool Date::isWeekday() const
{
    return !isWeekend();
}

// Seconds, minutes and hours have one length in the Gregorian calendar, so adding them is plain
// arithmetic, exactly as the calendar would do it.
Date Date::dateByAddingSeconds(int n) const
{
    return Date(m_seconds + double(n));
}

Date Date::dateByAddingMinutes(int n) const
{
    return Date(m_seconds + double(n) * minuteInSeconds);
}

Date Date::dateByAddingHours(int n) const
{
    return Date(m_seconds + double(n) * hourInSeconds);
}

Date Date::dateByAddingDays(int n) const
{
    // The calendar keeps the wall time: it moves by whole days, then corrects by the change of
    // the zone's offset. Where that correction lands on the same wall time the answer is exact
    // without a calendar computation; only a wall time that doesn't exist needs the calendar.
    const double ms = m_seconds * 1000.0;
    const double candidate = ms + double(n) * msPerDay;
    const ZoneOffsets::Span there = ZoneOffsets::spanAt(candidate);
    const double before = ZoneOffsets::spanAt(ms).offset;
    // Like the calendar, a change of a whole day (a zone that skipped a date) is not corrected.
    const double correction = std::fmod(before - there.offset, msPerDay);
    if (correction == 0)
        return Date(candidate / 1000.0);
    const double adjusted = candidate + correction;
    if (ZoneOffsets::spanAt(adjusted).offset == there.offset)
        return Date(adjusted / 1000.0);
    icu::Calendar& cal = calendarAt(*this);
    add(cal, UCAL_DATE, n);
    return timeOf(cal);
}

Date Date::dateByAddingMonths(int n) const
{
    icu::Calendar& cal = calendarAt(*this);
    add(cal, UCAL_MONTH, n);
    return timeOf(cal);
}

Date Date::dateAtStartOfDay() const
{
    // Local midnight by arithmetic, valid when no change of offset lies between it and self.
    const double ms = m_seconds * 1000.0;
    const ZoneOffsets::Span span = ZoneOffsets::spanAt(ms);
    const double midnight = std::floor((ms + span.offset) / msPerDay) * msPerDay - span.offset;
    if (span.contains(midnight))
        return Date(midnight / 1000.0);
    icu::Calendar& cal = calendarAt(*this);
    setTime(cal, 0, 0, 0);
    return timeOf(cal);
}

Date Date::dateAtEndOfDay() const
{
    icu::Calendar& cal = calendarAt(*this);
    setTime(cal, 23, 59, 59);
    return timeOf(cal);
}

// The week is found by counting back to the locale's first weekday rather than by rebuilding it
// from a year and a week number, which goes wrong around New Year when the week belongs to the
// other year.
Date Date::dateAtStartOfWeek() const
{
    icu::Calendar& cal = calendarAt(*this);
    const int back = (field(cal, UCAL_DAY_OF_WEEK) - cal.getFirstDayOfWeek() + 7) % 7;
    add(cal, UCAL_DATE, -back);
    setTime(cal, 0, 0, 0);
    return timeOf(cal);
}

Date Date::dateAtEndOfWeek() const
{
    icu::Calendar& cal = calendarAt(*this);
    const int back = (field(cal, UCAL_DAY_OF_WEEK) - cal.getFirstDayOfWeek() + 7) % 7;
    add(cal, UCAL_DATE, 6 - back);
    setTime(cal, 0, 0, 0);
    return timeOf(cal);
}

Date Date::dateAtTheStartOfMonth() const
{
    icu::Calendar& cal = calendarAt(*this);
    cal.set(UCAL_DATE, 1);
    return timeOf(cal);
}

Date Date::dateAtTheEndOfMonth() const
{
    icu::Calendar& cal = calendarAt(*this);
    UErrorCode status = U_ZERO_ERROR;
    cal.set(UCAL_DATE, cal.getActualMaximum(UCAL_DATE, status));
    return timeOf(cal);
}

Date Date::dateAtTheStartOfYear() const
{
    icu::Calendar& cal = calendarAt(*this);
    cal.set(UCAL_MONTH, UCAL_JANUARY);
    cal.set(UCAL_DATE, 1);
    return timeOf(cal);
}

Date Date::dateAtTheEndOfYear() const
{
    icu::Calendar& cal = calendarAt(*this);
    cal.set(UCAL_MONTH, UCAL_DECEMBER);
    cal.set(UCAL_DATE, 31);
    return timeOf(cal);
}

Date Date::setTimeOfDate(int hour, int minute, int second) const
{
    icu::Calendar& cal = calendarAt(*this);
    setTime(cal, hour, minute, second);
    return timeOf(cal);
}

qint64 Date::secondsAfterDate(Date d) const
{
    return truncated(m_seconds - d.m_seconds);
}

qint64 Date::minutesAfterDate(Date d) const
{
    return truncated((m_seconds - d.m_seconds) / minuteInSeconds);
}

qint64 Date::hoursAfterDate(Date d) const
{
    return truncated((m_seconds - d.m_seconds) / hourInSeconds);
}

qint64 Date::daysAfterDate(Date d) const
{
    return truncated((m_seconds - d.m_seconds) / dayInSeconds);
}

DateComponents Date::components() const
{
    icu::Calendar& cal = calendarAt(*this);
    DateComponents c;
    c.year = field(cal, UCAL_YEAR);
    c.month = field(cal, UCAL_MONTH) + 1;
    c.day = field(cal, UCAL_DATE);
    c.weekOfYear = field(cal, UCAL_WEEK_OF_YEAR);
    c.hour = field(cal, UCAL_HOUR_OF_DAY);
    c.minute = field(cal, UCAL_MINUTE);
    c.second = field(cal, UCAL_SECOND);
    c.weekday = field(cal, UCAL_DAY_OF_WEEK);
    c.weekdayOrdinal = field(cal, UCAL_DAY_OF_WEEK_IN_MONTH);
    return c;
}

// The time-of-day fields are the local time's remainder within its day, exactly as the calendar
// computes them, without a full field computation.
int Date::seconds() const
{
    return int(localMillisOfDay(*this) / 1000) % 60;
}

int Date::minute() const
{
    return int(localMillisOfDay(*this) / 60000) % 60;
}

int Date::hour() const
{
    return int(localMillisOfDay(*this) / 3600000);
}

int Date::day() const
{
    return field(calendarAt(*this), UCAL_DATE);
}

int Date::month() const
{
    return field(calendarAt(*this), UCAL_MONTH) + 1;
}

int Date::year() const
{
    return field(calendarAt(*this), UCAL_YEAR);
}

int Date::week() const
{
    return field(calendarAt(*this), UCAL_WEEK_OF_YEAR);
}

int Date::weekday() const
{
    return field(calendarAt(*this), UCAL_DAY_OF_WEEK);
}

int Date::nthWeekday() const
{
    return field(calendarAt(*this), UCAL_DAY_OF_WEEK_IN_MONTH);
}

int Date::nearestHour() const
{
    // Deliberately the seconds field decides, not the minutes.
    const double shift = seconds() < 30 ? -1800 : 1800;
    return Date(m_seconds + shift).hour();
}

int Date::monthDays() const
{
    UErrorCode status = U_ZERO_ERROR;
    return calendarAt(*this).getActualMaximum(UCAL_DATE, status);
}

int Date::firstDayOfWeek() const
{
    return Date(m_seconds - double(weekday() - 1) * dayInSeconds).day();
}

int Date::lastDayOfWeek() const
{
    return Date(m_seconds - double(weekday() - 1) * dayInSeconds + weekInSeconds).day();
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
