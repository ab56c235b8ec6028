#include "core/sync/SyncMerge.h"

#include <QSet>

#include <algorithm>

namespace lullet {

QJsonObject SyncMerge::merge(const QJsonObject& base, const Side& local, const Side& remote)
{
    const double localAt = local.changedAt ? local.changedAt->timeIntervalSince1970() : 0;
    const double remoteAt = remote.changedAt ? remote.changedAt->timeIntervalSince1970() : 0;
    QSet<QString> keys;
    for (const QJsonObject* side : {&base, &local.fields, &remote.fields}) {
        for (auto it = side->begin(); it != side->end(); ++it)
            keys.insert(it.key());
    }
    QJsonObject merged;
    for (const QString& key : keys) {
        const QJsonValue ours = local.fields.value(key);
        const QJsonValue theirs = remote.fields.value(key);
        const QJsonValue was = base.value(key);
        QJsonValue value;
        if (ours == theirs || theirs == was)
            value = ours;
        else if (ours == was)
            value = theirs;
        else
            value = localAt > remoteAt ? ours : theirs;
        if (!value.isUndefined())
            merged.insert(key, value);
    }
    const QLatin1String finished("hasFinished");
    if (local.fields.value(finished).toBool() || remote.fields.value(finished).toBool()) {
        merged.insert(finished, true);
        merged.insert(QLatin1String("hasStarted"), false);
    }
    const QLatin1String elapsed("elapsedTime");
    if (local.fields.contains(elapsed) || remote.fields.contains(elapsed))
        merged.insert(elapsed, std::max(local.fields.value(elapsed).toInt(),
                                        remote.fields.value(elapsed).toInt()));
    // The kind of record is this store's to say.
    merged.insert(QLatin1String("kind"), local.fields.value(QLatin1String("kind")));
    return merged;
}

bool SyncMerge::onlyRan(const QJsonObject& base, const QJsonObject& side)
{
    static const QSet<QString> running = {
        QStringLiteral("hasStarted"), QStringLiteral("elapsedTime"), QStringLiteral("timeLimit"),
        QStringLiteral("timeLimitExtendedBy"), QStringLiteral("runningTimeCovered")};
    const QLatin1String started("hasStarted");
    // Starting an item also gives it the moment it started.
    const bool didStart = base.value(started) != side.value(started);
    QSet<QString> keys;
    for (const QJsonObject* fields : {&base, &side}) {
        for (auto it = fields->begin(); it != fields->end(); ++it)
            keys.insert(it.key());
    }
    return std::all_of(keys.begin(), keys.end(), [&](const QString& key) {
        return base.value(key) == side.value(key) || running.contains(key) ||
               (didStart && key == QLatin1String("dtReminderPostponed"));
    });
}

} // namespace lullet
