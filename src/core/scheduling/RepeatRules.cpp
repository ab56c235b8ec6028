#include "core/scheduling/RepeatRules.h"

#include "core/dates/Clock.h"
#include "core/model/RepeatCodes.h"
#include "core/model/Rule.h"
#include "core/scheduling/CalendarGrid.h"

#include <cmath>

namespace lullet {

namespace {

// Fixed-length units in seconds, or 0 for calendar units.
double fixedSeconds(int repeatType, int count)
{
    switch (repeatType) {
    case RepeatUnit::Minute:
        return double(count) * 60.0;
    case RepeatUnit::Hour:
        return double(count) * 3600.0;
    default:
        return 0;
    }
}

// Step 2 of the search: an anchor of today that is not yet past, by hour and minute.
bool isTodayAndAhead(Date anchor, Date now, const Clock& clock)
{
    if (!anchor.isToday(clock))
        return false;
    const int anchorHour = anchor.hour();
    const int nowHour = now.hour();
    return anchorHour > nowHour || (anchorHour == nowHour && anchor.minute() >= now.minute());
}

} // namespace

Date RepeatRules::step(Date d, int repeatType, int count)
{
    switch (repeatType) {
    case RepeatUnit::Minute:
        return d.dateByAddingMinutes(count);
    case RepeatUnit::Hour:
        return d.dateByAddingHours(count);
    case RepeatUnit::Day:
        return d.dateByAddingDays(count);
    case RepeatUnit::Week:
        return d.dateByAddingWeeks(count);
    case RepeatUnit::Month:
        return d.dateByAddingMonths(count);
    case RepeatUnit::Year:
        return d.dateByAddingMonths(count * 12);
    default:
        return d;
    }
}

Date RepeatRules::stepBack(Date d, int repeatType, int count)
{
    switch (repeatType) {
    case RepeatUnit::Minute:
        return d.dateBySubtractingMinutes(count);
    case RepeatUnit::Hour:
        return d.dateBySubtractingHours(count);
    case RepeatUnit::Day:
        return d.dateBySubtractingDays(count);
    case RepeatUnit::Week:
        return d.dateBySubtractingWeeks(count);
    case RepeatUnit::Month:
        return d.dateBySubtractingMonths(count);
    case RepeatUnit::Year:
        return d.dateBySubtractingMonths(count * 12);
    default:
        return d;
    }
}

bool RepeatRules::hasUsableStep(const Rule& rule)
{
    const std::optional<int> type = rule.repeatIntervalType();
    const std::optional<int> count = rule.repeatInterval();
    // Counts beyond a few thousand years' worth of months are damage, not a rule.
    return type && count && RepeatUnit::isKnown(*type) && *count > 0 && *count <= 1'000'000;
}

std::optional<Date> RepeatRules::nextDate(const Rule& rule, const Clock& clock)
{
    const Date now = clock.now();
    if (!rule.dtReminder())
        return now;
    if (!hasUsableStep(rule))
        return std::nullopt;
    const Date anchor = *rule.dtReminder();
    if (isTodayAndAhead(anchor, now, clock))
        return anchor;

    const int type = *rule.repeatIntervalType();
    const int count = *rule.repeatInterval();
    switch (type) {
    case RepeatUnit::Day:
        return CalendarGrid::firstDayStepFrom(anchor, count, now);
    case RepeatUnit::Week:
        return CalendarGrid::firstDayStepFrom(anchor, count * 7, now);
    case RepeatUnit::Month:
        return CalendarGrid::firstMonthStepFrom(anchor, count, now);
    case RepeatUnit::Year:
        return CalendarGrid::firstMonthStepFrom(anchor, count * 12, now);
    default:
        break;
    }

    const double stepSeconds = fixedSeconds(type, count);
    // The walk adds whole seconds to the anchor k times, each sum exact; k * step is exact too,
    // so anchor + k * step is the walk's own k-th date. k is the fewest steps, at least one,
    // that reach now.
    const double a = anchor.timeIntervalSince1970();
    const double n = now.timeIntervalSince1970();
    double k = std::max(1.0, std::ceil((n - a) / stepSeconds));
    while (k > 1 && a + (k - 1) * stepSeconds >= n)
        k -= 1;
    while (a + k * stepSeconds < n)
        k += 1;
    return Date(a + k * stepSeconds);
}

Date RepeatRules::stepAfter(const Rule& rule, Date basedOnDate)
{
    return step(basedOnDate, rule.repeatIntervalType().value_or(-1),
                rule.repeatInterval().value_or(0));
}

std::optional<Date> RepeatRules::walkToNextDate(const Rule& rule, const Clock& clock)
{
    const Date now = clock.now();
    if (!rule.dtReminder())
        return now;
    if (!hasUsableStep(rule))
        return std::nullopt;
    Date d = *rule.dtReminder();
    if (isTodayAndAhead(d, now, clock))
        return d;
    const int type = *rule.repeatIntervalType();
    const int count = *rule.repeatInterval();
    // At least one step, then on until at or after now: the comparison is inclusive.
    do {
        d = step(d, type, count);
    } while (!d.isLaterThanDate(now));
    return d;
}

} // namespace lullet
