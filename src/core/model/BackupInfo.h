#pragma once

#include "core/dates/Date.h"

#include <QByteArray>
#include <QJsonObject>
#include <QMetaType>
#include <QString>

#include <optional>
#include <vector>

namespace lullet {

// One known copy of the store.
struct BackupInfo {
    QString path;
    std::optional<Date> createdDate;
    QString sizeDisplay;
    QString type;
    QString entityType;

    QJsonObject toJson() const;
    // Missing texts read as empty.
    static BackupInfo fromJson(const QJsonObject& json);

    // The archive kept in the settings: a JSON array. An unreadable archive reads as empty.
    static QByteArray archive(const std::vector<BackupInfo>& list);
    static std::vector<BackupInfo> unarchive(const QByteArray& data);
};

} // namespace lullet

Q_DECLARE_METATYPE(lullet::BackupInfo)
