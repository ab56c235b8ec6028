#pragma once

#include "core/model/ScheduleInfo.h"

#include <vector>

namespace lullet {

class Clock;
class Settings;

// The working schedule: seven weekdays with their hours, kept in the settings under "schedules".
// Monday to Friday, 09:00 to 18:00, until the user says otherwise.
class WorkingSchedule {
public:
    WorkingSchedule(Settings& settings, const Clock& clock);

    // Makes sure seven entries are loaded; an archive that can't be read or holds another count
    // is replaced by the default week, which is written back at once.
    void ensureLoaded();
    // The seven entries, for reading and for editing in place.
    std::vector<ScheduleInfo>& days();
    // The entries of one weekday (1 = Sunday), normally one.
    std::vector<ScheduleInfo*> entriesFor(int weekday);
    // Writes the entries to the settings.
    void save();

    // Seven entries: Monday to Friday at work from 09:00 to 18:00 of today.
    std::vector<ScheduleInfo> defaultWeek() const;

    // True once, after a stored week that could not be read was kept aside and replaced.
    bool takeReplacedNotice();

private:
    Settings& m_settings;
    const Clock& m_clock;
    std::vector<ScheduleInfo> m_days;
    bool m_replaced = false;
};

} // namespace lullet
