#pragma once

#include "core/dates/Date.h"

namespace lullet {

class WorkingSchedule;

// Whether a moment lies inside the working hours. Both the weekday and the calendar day are
// those of the launch, not of the moment: a run that crosses midnight keeps testing against the
// day it started on, until the next launch. The schedule is read at each test, so an edit of
// the hours counts at once.
class WorkingHours {
public:
    WorkingHours(WorkingSchedule& schedule, Date launch);

    // Strictly after the start and strictly before the end of the launch day's hours.
    bool isWorkingTime(Date moment) const;
    // The hour and minute of `time` on the day of launch, seconds zero.
    Date onLaunchDay(Date time) const;

private:
    WorkingSchedule& m_schedule;
    Date m_launch;
};

} // namespace lullet
