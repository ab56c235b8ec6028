#pragma once

#include "core/dates/DateFormats.h"

#include <QMetaType>
#include <QString>

#include <compare>
#include <optional>

namespace lullet {

class Clock;

// Calendar fields of a date, in the user's current calendar and zone. Fields that were not asked
// for are empty. Weekday 1 is Sunday.
struct DateComponents {
    std::optional<int> year, month, day, weekOfYear, hour, minute, second, weekday, weekdayOrdinal;
};

// A point in time: seconds since 1970 as one double, with no zone in the value. Every calendar
// operation works in the user's current calendar and zone. Comparisons are inclusive on purpose:
// a date is both earlier and later than itself, and every scheduling rule relies on that.
// Operations that need the present moment take the clock that tells it.
class Date {
public:
    constexpr Date() = default;
    constexpr explicit Date(double secondsSince1970)
        : m_seconds(secondsSince1970)
    {
    }

    // Reads a text in the given format; an empty text or one that doesn't parse yields now.
    static Date fromString(QStringView text, const DateFormat& format, const Clock& clock,
                           TimeZone zone = TimeZone::Local);
    // The moment of a wall-clock time in the current calendar and zone; month counts from 1.
    static Date dateFromComponents(int year, int month, int day, int hour = 0, int minute = 0,
                                   int second = 0);
    static Date tomorrow(const Clock& clock);
    static Date yesterday(const Clock& clock);

    constexpr double timeIntervalSince1970() const { return m_seconds; }
    constexpr auto operator<=>(const Date&) const = default;

    // Comparisons (inclusive)
    constexpr bool isEarlierThanDate(Date d) const { return m_seconds <= d.m_seconds; }
    constexpr bool isLaterThanDate(Date d) const { return m_seconds >= d.m_seconds; }
    bool isInFuture(const Clock& clock) const;
    bool isInPast(const Clock& clock) const;
    bool isEqualToDateIgnoringTime(Date d) const;
    bool isToday(const Clock& clock) const;
    bool isTomorrow(const Clock& clock) const;
    bool isYesterday(const Clock& clock) const;
    bool isSameWeekAsDate(Date d) const;
    bool isThisWeek(const Clock& clock) const;
    bool isNextWeek(const Clock& clock) const;
    bool isLastWeek(const Clock& clock) const;
    bool isSameMonthAsDate(Date d) const;
    bool isSameYearAsDate(Date d) const;
    bool isThisYear(const Clock& clock) const;
    bool isNextYear(const Clock& clock) const;
    bool isLastYear(const Clock& clock) const;
    bool isWeekday() const;
    bool isWeekend() const;

    // Arithmetic: the calendar's own adding, so wall time survives daylight-saving changes and a
    // month step from 31 January lands on the last day of February.
    Date dateByAddingSeconds(int n) const;
    Date dateBySubtractingSeconds(int n) const { return dateByAddingSeconds(-n); }
    Date dateByAddingMinutes(int n) const;
    Date dateBySubtractingMinutes(int n) const { return dateByAddingMinutes(-n); }
    Date dateByAddingHours(int n) const;
    Date dateBySubtractingHours(int n) const { return dateByAddingHours(-n); }
    Date dateByAddingDays(int n) const;
    Date dateBySubtractingDays(int n) const { return dateByAddingDays(-n); }
    Date dateByAddingWeeks(int n) const { return dateByAddingDays(n * 7); }
    Date dateBySubtractingWeeks(int n) const { return dateByAddingDays(-n * 7); }
    Date dateByAddingMonths(int n) const;
    Date dateBySubtractingMonths(int n) const { return dateByAddingMonths(-n); }

    // Anchors
    Date dateAtStartOfDay() const;
    // 23:59:59 with no fraction of a second.
    Date dateAtEndOfDay() const;
    Date dateAtStartOfWeek() const;
    // The start (00:00) of the last weekday, not its end.
    Date dateAtEndOfWeek() const;
    Date dateAtTheStartOfMonth() const;
    Date dateAtTheEndOfMonth() const;
    Date dateAtTheStartOfYear() const;
    Date dateAtTheEndOfYear() const;
    Date setTimeOfDate(int hour, int minute, int second) const;

    // Differences, truncated toward zero: days are 24-hour spans, not calendar days.
    qint64 secondsAfterDate(Date d) const;
    qint64 secondsBeforeDate(Date d) const { return d.secondsAfterDate(*this); }
    qint64 minutesAfterDate(Date d) const;
    qint64 minutesBeforeDate(Date d) const { return d.minutesAfterDate(*this); }
    qint64 hoursAfterDate(Date d) const;
    qint64 hoursBeforeDate(Date d) const { return d.hoursAfterDate(*this); }
    qint64 daysAfterDate(Date d) const;
    qint64 daysBeforeDate(Date d) const { return d.daysAfterDate(*this); }

    // Field readers
    DateComponents components() const;
    int seconds() const;
    int minute() const;
    int hour() const;
    int day() const;
    int month() const;
    int year() const;
    int week() const;
    int weekday() const;
    int nthWeekday() const;
    // The hour of self moved half an hour; which way is decided by the seconds field.
    int nearestHour() const;
    int monthDays() const;
    // Day of month of the Sunday that starts this week, whatever the locale's first weekday.
    int firstDayOfWeek() const;
    // Day of month of the Sunday after this week.
    int lastDayOfWeek() const;

    // Names of days and months in the current locale.
    QString weekdayToString() const;
    QString shortWeekdayToString() const;
    QString veryShortWeekdayToString() const;
    QString monthToString() const;
    QString shortMonthToString() const;
    QString veryShortMonthToString() const;

    // Short date and short time, not relative.
    QString toString() const;
    // The styled form. With a clock, dates near today read as words ("Today", "Tomorrow").
    QString toString(DateStyle dateStyle, DateStyle timeStyle,
                     const Clock* relativeTo = nullptr) const;
    QString toString(const DateFormat& format, TimeZone zone = TimeZone::Local) const;
    // "just now", "5 minutes ago", "in 2 hours", ... and the short date beyond a week.
    QString relativeTimeToString(const Clock& clock) const;

private:
    double m_seconds = 0;
};

} // namespace lullet

Q_DECLARE_METATYPE(lullet::Date)
