#include "scheduling/funcGetData.h"

#include "core/dates/Clock.h"
#include "core/settings/SettingsKeys.h"
#include "core/settings/UserDefaults.h"

namespace lullet {

funcGetData::funcGetData(UserDefaults& defaults, const Clock& clock)
    : m_defaults(defaults)
    , m_clock(clock)
{
}

std::vector<ScheduleInfo> funcGetData::defaultSchedules() const
{
    const Date today = m_clock.now();
    std::vector<ScheduleInfo> list;
    for (int day = 1; day <= 7; ++day) {
        ScheduleInfo info;
        info.day = day;
        info.isDaySelected = day >= 2 && day <= 6;
        info.startTime = today.setTimeOfDate(9, 0, 0);
        info.endTime = today.setTimeOfDate(18, 0, 0);
        list.push_back(info);
    }
    return list;
}

void funcGetData::prepareSchedules()
{
    if (arrSchedules.size() == 7)
        return;
    if (m_defaults.hasValue(SettingsKeys::schedules))
        arrSchedules = ScheduleInfo::unarchive(m_defaults.data(SettingsKeys::schedules));
    if (arrSchedules.size() != 7) {
        arrSchedules = defaultSchedules();
        saveSchedules();
    }
}

std::vector<ScheduleInfo>& funcGetData::returnScheduleData()
{
    prepareSchedules();
    return arrSchedules;
}

std::vector<ScheduleInfo*> funcGetData::returnScheduleDataByType(int day)
{
    prepareSchedules();
    std::vector<ScheduleInfo*> found;
    for (ScheduleInfo& info : arrSchedules) {
        if (info.day == day)
            found.push_back(&info);
    }
    return found;
}

std::optional<ScheduleInfo> funcGetData::getDataByDate(Date date)
{
    prepareSchedules();
    const Date start = date.dateAtStartOfDay();
    const Date end = date.dateAtEndOfDay();
    std::optional<ScheduleInfo> match;
    int count = 0;
    for (const ScheduleInfo& info : arrSchedules) {
        if (info.startTime && *info.startTime >= start && *info.startTime <= end) {
            match = info;
            ++count;
        }
    }
    return count == 1 ? match : std::nullopt;
}

void funcGetData::saveSchedules()
{
    m_defaults.set(SettingsKeys::schedules, ScheduleInfo::archive(arrSchedules));
    m_defaults.synchronize();
}

} // namespace lullet
