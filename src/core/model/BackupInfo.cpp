#include "core/model/BackupInfo.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace lullet {

QJsonObject BackupInfo::toJson() const
{
    QJsonObject json{{QStringLiteral("path"), path},
                     {QStringLiteral("sizeDisplay"), sizeDisplay},
                     {QStringLiteral("type"), type},
                     {QStringLiteral("entityType"), entityType}};
    if (createdDate)
        json.insert(QStringLiteral("createdDate"), createdDate->timeIntervalSince1970());
    return json;
}

BackupInfo BackupInfo::fromJson(const QJsonObject& json)
{
    BackupInfo info;
    info.path = json.value(QStringLiteral("path")).toString();
    const QJsonValue created = json.value(QStringLiteral("createdDate"));
    if (created.isDouble() && std::isfinite(created.toDouble()))
        info.createdDate = Date(created.toDouble());
    info.sizeDisplay = json.value(QStringLiteral("sizeDisplay")).toString();
    info.type = json.value(QStringLiteral("type")).toString();
    info.entityType = json.value(QStringLiteral("entityType")).toString();
    return info;
}

QByteArray BackupInfo::archive(const std::vector<BackupInfo>& list)
{
    QJsonArray array;
    for (const BackupInfo& info : list)
        array.append(info.toJson());
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

std::vector<BackupInfo> BackupInfo::unarchive(const QByteArray& data)
{
    std::vector<BackupInfo> list;
    const QJsonDocument doc = QJsonDocument::fromJson(data);
    if (!doc.isArray())
        return list;
    for (const auto& value : doc.array()) {
        if (value.isObject())
            list.push_back(fromJson(value.toObject()));
    }
    return list;
}

} // namespace lullet
