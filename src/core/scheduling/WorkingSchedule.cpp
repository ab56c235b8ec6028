#include "core/scheduling/WorkingSchedule.h"

#include "core/dates/Clock.h"
#include "core/settings/Settings.h"

namespace lullet {

WorkingSchedule::WorkingSchedule(Settings& settings, const Clock& clock)
    : m_settings(settings)
    , m_clock(clock)
{
}

std::vector<ScheduleInfo> WorkingSchedule::defaultWeek() const
{
    const Date today = m_clock.now();
    std::vector<ScheduleInfo> week;
    for (int day = 1; day <= 7; ++day) {
        ScheduleInfo info;
        info.day = day;
        info.isDaySelected = day >= 2 && day <= 6;
        info.startTime = today.setTimeOfDate(9, 0, 0);
        info.endTime = today.setTimeOfDate(18, 0, 0);
        week.push_back(info);
    }
    return week;
}

void WorkingSchedule::ensureLoaded()
{
    if (m_days.size() == 7)
        return;
    if (m_settings.contains(SettingsKeys::schedules))
        m_days = ScheduleInfo::unarchive(m_settings.data(SettingsKeys::schedules));
    if (m_days.size() != 7) {
        m_days = defaultWeek();
        save();
    }
}

std::vector<ScheduleInfo>& WorkingSchedule::days()
{
    ensureLoaded();
    return m_days;
}

std::vector<ScheduleInfo*> WorkingSchedule::entriesFor(int weekday)
{
    ensureLoaded();
    std::vector<ScheduleInfo*> found;
    for (ScheduleInfo& info : m_days) {
        if (info.day == weekday)
            found.push_back(&info);
    }
    return found;
}

void WorkingSchedule::save()
{
    // Nothing loaded, nothing to write: the stored week stays as it is.
    if (m_days.size() != 7)
        return;
    m_settings.setValue(SettingsKeys::schedules, ScheduleInfo::archive(m_days));
    m_settings.sync();
}

} // namespace lullet
