#pragma once

#include "core/model/ScheduleInfo.h"

#include <optional>
#include <vector>

namespace lullet {

class Clock;
class UserDefaults;

// The working schedule: seven weekdays with their hours, kept in the settings under
// "schedules". Monday to Friday, 09:00 to 18:00, until the user says otherwise.
class funcGetData {
public:
    funcGetData(UserDefaults& defaults, const Clock& clock);

    // Makes sure seven entries are loaded; an archive that can't be read or holds another count
    // is replaced by the defaults, which are written back at once.
    void prepareSchedules();
    std::vector<ScheduleInfo>& returnScheduleData();
    // The entries of one weekday (1 = Sunday), normally one.
    std::vector<ScheduleInfo*> returnScheduleDataByType(int day);
    // The entry whose start time lies on the given date's day. Start times keep the date they
    // were made on, so this finds an entry only for that day.
    std::optional<ScheduleInfo> getDataByDate(Date date);
    // Writes the entries to the settings.
    void saveSchedules();

    // Seven entries: Monday to Friday at work from 09:00 to 18:00 of today.
    std::vector<ScheduleInfo> defaultSchedules() const;

    std::vector<ScheduleInfo> arrSchedules;

private:
    UserDefaults& m_defaults;
    const Clock& m_clock;
};

} // namespace lullet
