#include "core/scheduling/WorkingHours.h"

#include "core/scheduling/WorkingSchedule.h"

namespace lullet {

WorkingHours::WorkingHours(WorkingSchedule& schedule, Date launch)
    : m_schedule(schedule)
    , m_launch(launch)
{
}

bool WorkingHours::isWorkingTime(Date moment) const
{
    const auto entries = m_schedule.entriesFor(m_launch.weekday());
    if (entries.empty())
        return false;
    const ScheduleInfo& first = *entries.front();
    if (!first.isDaySelected || !first.startTime || !first.endTime)
        return false;
    return moment > onLaunchDay(*first.startTime) && moment < onLaunchDay(*first.endTime);
}

Date WorkingHours::onLaunchDay(Date time) const
{
    const DateComponents day = m_launch.components();
    const DateComponents clock = time.components();
    return Date::dateFromComponents(*day.year, *day.month, *day.day, *clock.hour, *clock.minute, 0);
}

} // namespace lullet
