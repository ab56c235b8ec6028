#include "core/settings/UserDefaults.h"

#include "core/settings/SettingsKeys.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

namespace lullet {

QString UserDefaults::defaultPath()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
        .filePath(QStringLiteral("Lullet/Lullet.conf"));
}

UserDefaults::UserDefaults(const QString& filePath)
    : m_settings(filePath, QSettings::IniFormat)
{
}

void UserDefaults::registerDefaults(const QVariantMap& defaults)
{
    for (auto it = defaults.begin(); it != defaults.end(); ++it)
        m_registered.insert(it.key(), it.value());
}

bool UserDefaults::hasValue(QLatin1String key) const
{
    return m_settings.contains(key);
}

QVariant UserDefaults::object(QLatin1String key) const
{
    const QVariant stored = m_settings.value(key);
    return stored.isValid() ? stored : m_registered.value(key);
}

int UserDefaults::integer(QLatin1String key) const
{
    bool ok = false;
    const int value = object(key).toInt(&ok);
    if (ok)
        return value;
    // INI files keep booleans as "true" and "false".
    return object(key).toBool() ? 1 : 0;
}

bool UserDefaults::boolean(QLatin1String key) const
{
    return object(key).toBool();
}

QByteArray UserDefaults::data(QLatin1String key) const
{
    const QVariant value = object(key);
    return value.typeId() == QMetaType::QByteArray ? value.toByteArray() : QByteArray();
}

// Dictionaries are kept as JSON text, so that the file stays readable.
QVariantMap UserDefaults::dictionary(QLatin1String key) const
{
    const QVariant value = object(key);
    if (value.typeId() == QMetaType::QVariantMap)
        return value.toMap();
    const QJsonDocument doc = QJsonDocument::fromJson(value.toString().toUtf8());
    return doc.isObject() ? doc.object().toVariantMap() : QVariantMap();
}

void UserDefaults::set(QLatin1String key, const QVariant& value)
{
    m_settings.setValue(key, value);
}

void UserDefaults::setDictionary(QLatin1String key, const QVariantMap& value)
{
    QVariantMap stored = value;
    // The password itself lives in the keychain only; the settings file never holds it.
    if (key == SettingsKeys::passwordValues && stored.contains(SettingsKeys::password))
        stored.insert(SettingsKeys::password, QString());
    const QByteArray json =
        QJsonDocument(QJsonObject::fromVariantMap(stored)).toJson(QJsonDocument::Compact);
    m_settings.setValue(key, QString::fromUtf8(json));
}

void UserDefaults::remove(QLatin1String key)
{
    m_settings.remove(key);
}

void UserDefaults::synchronize()
{
    m_settings.sync();
}

} // namespace lullet
