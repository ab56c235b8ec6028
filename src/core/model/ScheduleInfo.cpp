#include "core/model/ScheduleInfo.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace lullet {

namespace {

std::optional<Date> dateFrom(const QJsonValue& value)
{
    if (!value.isDouble() || !std::isfinite(value.toDouble()))
        return std::nullopt;
    return Date(value.toDouble());
}

} // namespace

QJsonObject ScheduleInfo::toJson() const
{
    QJsonObject json{{QStringLiteral("day"), day},
                     {QStringLiteral("isDaySelected"), isDaySelected}};
    // Times are written only when set.
    if (startTime)
        json.insert(QStringLiteral("startTime"), startTime->timeIntervalSince1970());
    if (endTime)
        json.insert(QStringLiteral("endTime"), endTime->timeIntervalSince1970());
    return json;
}

std::optional<ScheduleInfo> ScheduleInfo::fromJson(const QJsonObject& json)
{
    const QJsonValue day = json.value(QStringLiteral("day"));
    if (!day.isDouble())
        return std::nullopt;
    ScheduleInfo info;
    info.day = day.toInt();
    info.startTime = dateFrom(json.value(QStringLiteral("startTime")));
    info.endTime = dateFrom(json.value(QStringLiteral("endTime")));
    info.isDaySelected = json.value(QStringLiteral("isDaySelected")).toBool();
    return info;
}

QByteArray ScheduleInfo::archive(const std::vector<ScheduleInfo>& list)
{
    QJsonArray array;
    for (const ScheduleInfo& info : list)
        array.append(info.toJson());
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

std::vector<ScheduleInfo> ScheduleInfo::unarchive(const QByteArray& data)
{
    std::vector<ScheduleInfo> list;
    const QJsonDocument doc = QJsonDocument::fromJson(data);
    if (!doc.isArray())
        return list;
    for (const auto& value : doc.array()) {
        if (auto info = fromJson(value.toObject()))
            list.push_back(*info);
    }
    return list;
}

} // namespace lullet
