#pragma once

#include "core/dates/Date.h"

#include <QByteArray>
#include <QJsonObject>

#include <optional>
#include <vector>

namespace lullet {

// The working hours of one weekday. Only the hour and minute of the two times count.
struct ScheduleInfo {
    int day = 0; // 1 = Sunday to 7 = Saturday
    std::optional<Date> startTime;
    std::optional<Date> endTime;
    bool isDaySelected = false;

    QJsonObject toJson() const;
    // An entry without a day number reads as no entry.
    static std::optional<ScheduleInfo> fromJson(const QJsonObject& json);

    // The archive kept in the settings: a JSON array. An unreadable archive reads as empty.
    static QByteArray archive(const std::vector<ScheduleInfo>& list);
    static std::vector<ScheduleInfo> unarchive(const QByteArray& data);
};

} // namespace lullet
