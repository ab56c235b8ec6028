#include "core/scheduling/CalendarGrid.h"

#include "core/dates/CalendarContext.h"
#include "core/dates/ZoneOffsets.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace lullet {

namespace {

constexpr double msPerDay = 86400000.0;
// Before any zone's first change of offset, and within the calendar's range.
constexpr double earliestMs = -1e17;

qint64 floorDiv(qint64 a, qint64 b)
{
    const qint64 q = a / b;
    return (a % b != 0 && (a < 0) != (b < 0)) ? q - 1 : q;
}

// Months are counted from January of year 0 (1 BC) in the proleptic Gregorian calendar, so that
// a step of n months adds n.
bool isLeapYear(qint64 year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int daysInMonth(qint64 month)
{
    static constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const qint64 year = floorDiv(month, 12);
    const int inYear = int(month - year * 12);
    return inYear == 1 && isLeapYear(year) ? 29 : lengths[inYear];
}

// Days since 1970-01-01 of a day of a month (the civil-days algorithm of H. Hinnant).
qint64 dayNumber(qint64 month, int day)
{
    qint64 year = floorDiv(month, 12);
    const qint64 m = month - year * 12 + 1;
    year -= m <= 2;
    const qint64 era = floorDiv(year, 400);
    const qint64 yearOfEra = year - era * 400;
    const qint64 dayOfYear = (153 * (m > 2 ? m - 3 : m + 9) + 2) / 5 + day - 1;
    const qint64 dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

// The month and the day of the month of a day number: the inverse of dayNumber().
std::pair<qint64, int> monthAndDay(qint64 days)
{
    days += 719468;
    const qint64 era = floorDiv(days, 146097);
    const qint64 dayOfEra = days - era * 146097;
    const qint64 yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const qint64 dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const qint64 shifted = (5 * dayOfYear + 2) / 153;
    const qint64 m = shifted < 10 ? shifted + 3 : shifted - 9;
    const qint64 year = yearOfEra + era * 400 + (m <= 2);
    return {year * 12 + m - 1, int(dayOfYear - (153 * shifted + 2) / 5 + 1)};
}

qint64 monthOfLocal(double localMs)
{
    return monthAndDay(qint64(std::floor(localMs / msPerDay))).first;
}

// Where a moment lies on the local calendar.
struct Place {
    qint64 month = 0;
    int day = 1;
    double msOfDay = 0;
};

Place placeOf(Date d)
{
    const double ms = d.timeIntervalSince1970() * 1000.0;
    const double local = ms + ZoneOffsets::spanAt(ms).offset;
    const double days = std::floor(local / msPerDay);
    const auto [month, day] = monthAndDay(qint64(days));
    return {month, day, local - days * msPerDay};
}

// A change of offset where the clock skips forward: the local times [from, to) do not exist.
struct Skip {
    double at = 0;
    double from = 0;
    double to = 0;
};

// The zone's skips up to at least `untilMs`, earliest first, kept per thread until the zone
// changes. False when the zone does not tell its changes.
bool skipsUntil(double untilMs, const std::vector<Skip>*& list)
{
    thread_local int generation = -1;
    thread_local std::vector<Skip> skips;
    thread_local double reached = earliestMs;
    thread_local bool told = true;
    if (generation != CalendarContext::generation()) {
        generation = CalendarContext::generation();
        skips.clear();
        reached = earliestMs;
        told = true;
    }
    // A year beyond what was asked, so that a clock moving on does not extend the list each call.
    const double target = untilMs + 366 * msPerDay;
    while (told && reached < target) {
        const ZoneOffsets::Span span = ZoneOffsets::spanAt(reached);
        if (!span.contains(reached)) {
            told = false;
            break;
        }
        if (!std::isfinite(span.end)) {
            reached = span.end;
            break;
        }
        const ZoneOffsets::Span next = ZoneOffsets::spanAt(span.end);
        if (next.offset > span.offset)
            skips.push_back({span.end, span.end + span.offset, span.end + next.offset});
        reached = span.end;
    }
    list = &skips;
    return told;
}

// How many steps of `months` from `d` the walk takes as one calendar addition, all of them before
// now: none of them but the last may cut the day of the month or land in skipped time, since
// either changes every later step. Zero when the zone's skips are unknown.
qint64 monthLeap(Date d, int months, Date now)
{
    const Place from = placeOf(d);
    // A date two months or more before now's month lies before now, whatever the offsets.
    qint64 steps = floorDiv(placeOf(now).month - 2 - from.month, months);
    if (steps <= 0)
        return 0;
    if (from.day > 28) {
        // Month lengths repeat every 400 years, 4800 months: a cut not found by then never comes.
        const qint64 horizon = std::min<qint64>(steps, 4800);
        for (qint64 j = 1; j <= horizon; ++j) {
            if (daysInMonth(from.month + j * months) < from.day) {
                steps = j;
                break;
            }
        }
    }
    const std::vector<Skip>* skips = nullptr;
    if (!skipsUntil(now.timeIntervalSince1970() * 1000.0, skips))
        return 0;
    const double fromMs = d.timeIntervalSince1970() * 1000.0;
    auto skip = std::upper_bound(skips->begin(), skips->end(), fromMs,
                                 [](double ms, const Skip& s) { return ms < s.at; });
    for (; skip != skips->end() && monthOfLocal(skip->from) <= from.month + steps * months;
         ++skip) {
        // The grid's date in each month the skipped stretch touches.
        for (const double local : {skip->from, skip->to - 1}) {
            const qint64 ahead = monthOfLocal(local) - from.month;
            if (ahead <= 0 || ahead % months != 0 || ahead / months > steps)
                continue;
            const double onGrid =
                double(dayNumber(from.month + ahead, from.day)) * msPerDay + from.msOfDay;
            if (onGrid >= skip->from && onGrid < skip->to)
                return ahead / months;
        }
    }
    return steps;
}

// The last date of the grid from `d` before now and before the zone's next change of offset: up
// to that change a day step adds whole days of seconds and nothing else.
Date dayLeap(Date d, double step, Date now)
{
    const double s = d.timeIntervalSince1970();
    const ZoneOffsets::Span span = ZoneOffsets::spanAt(s * 1000.0);
    if (!span.contains(s * 1000.0))
        return d;
    const double limit = std::min(span.end / 1000.0, now.timeIntervalSince1970());
    if (limit <= s)
        return d;
    double j = std::floor((limit - s) / step);
    while (j > 0 && s + j * step >= limit)
        j -= 1;
    while (s + (j + 1) * step < limit)
        j += 1;
    return j > 0 ? Date(s + j * step) : d;
}

} // namespace

Date CalendarGrid::firstDayStepFrom(Date anchor, int days, Date now)
{
    const double step = double(days) * 86400.0;
    Date d = anchor;
    do {
        d = dayLeap(d, step, now).dateByAddingDays(days);
    } while (!d.isLaterThanDate(now));
    return d;
}

Date CalendarGrid::firstMonthStepFrom(Date anchor, int months, Date now)
{
    Date d = anchor;
    do {
        if (const qint64 leap = monthLeap(d, months, now); leap > 0)
            d = d.dateByAddingMonths(int(leap * months));
        d = d.dateByAddingMonths(months);
    } while (!d.isLaterThanDate(now));
    return d;
}

} // namespace lullet
