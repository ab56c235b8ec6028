#include "core/scheduling/WorkingSchedule.h"

#include "core/dates/Clock.h"
#include "core/settings/Settings.h"

#include <utility>

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
    const bool stored = m_settings.contains(SettingsKeys::schedules);
    if (stored)
        m_days = ScheduleInfo::unarchive(m_settings.data(SettingsKeys::schedules));
    if (m_days.size() != 7) {
        // What the user had is kept, not overwritten: it may be mended by hand.
        if (stored) {
            m_settings.setValue(SettingsKeys::schedulesUnreadable,
                                m_settings.value(SettingsKeys::schedules));
            m_replaced = true;
        }
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

bool WorkingSchedule::takeReplacedNotice()
{
    return std::exchange(m_replaced, false);
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
