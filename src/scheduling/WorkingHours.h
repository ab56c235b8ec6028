#pragma once

#include "core/dates/Date.h"

#include <optional>

namespace lullet {

class funcGetData;

// Whether a moment lies inside the working hours. Both the weekday and the calendar day are
// those of the launch, not of the moment: a run that crosses midnight keeps testing against the
// day it started on, until the next launch.
class WorkingHours {
public:
    WorkingHours(funcGetData& schedules, Date fetchedDate, Date cDate);

    // Strictly after the start and strictly before the end of the launch day's hours.
    bool checkIsTimeInSchedule(Date date) const;
    // The hour and minute of `time` on the day of launch, seconds zero.
    Date returnTimeWithCurrentDate(Date time) const;

private:
    funcGetData& m_schedules;
    Date m_fetchedDate;
    Date m_cDate;
};

} // namespace lullet
