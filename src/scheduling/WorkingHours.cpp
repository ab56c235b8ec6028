#include "scheduling/WorkingHours.h"

#include "scheduling/funcGetData.h"

namespace lullet {

WorkingHours::WorkingHours(funcGetData& schedules, Date fetchedDate, Date cDate)
    : m_schedules(schedules)
    , m_fetchedDate(fetchedDate)
    , m_cDate(cDate)
{
}

bool WorkingHours::checkIsTimeInSchedule(Date date) const
{
    const auto entries = m_schedules.returnScheduleDataByType(m_fetchedDate.weekday());
    if (entries.empty())
        return false;
    const ScheduleInfo& first = *entries.front();
    if (!first.isDaySelected || !first.startTime || !first.endTime)
        return false;
    const Date start = returnTimeWithCurrentDate(*first.startTime);
    const Date end = returnTimeWithCurrentDate(*first.endTime);
    return date > start && date < end;
}

Date WorkingHours::returnTimeWithCurrentDate(Date time) const
{
    const DateComponents day = m_cDate.components();
    const DateComponents clock = time.components();
    return Date::dateFromComponents(*day.year, *day.month, *day.day, *clock.hour, *clock.minute, 0);
}

} // namespace lullet
