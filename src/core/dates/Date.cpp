#include "core/dates/Date.h"

#include "core/dates/CalendarContext.h"
#include "core/dates/Clock.h"
#include "core/dates/ZoneOffsets.h"

#include <QtGlobal>

#include <unicode/calendar.h>

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

} // namespace

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

} // namespace lullet
