#include "core/settings/Settings.h"

#include "core/settings/PrivateFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

namespace lullet {

QString Settings::defaultPath()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
        .filePath(QStringLiteral("Lullet/Lullet.conf"));
}

Settings::Settings(const QString& filePath)
    : m_file(filePath, QSettings::IniFormat)
{
    // The user's settings are nobody else's, whatever an earlier version made them.
    PrivateFiles::makeFolder(QFileInfo(filePath).path());
    PrivateFiles::keepFile(filePath);
    // A password some earlier program left in the file goes at once, in whatever form it took.
    const QVariantMap password = dictionary(SettingsKeys::passwordValues);
    const QVariant left = password.value(SettingsKeys::password);
    if (left.isValid() && left != QVariant(QString()))
        setDictionary(SettingsKeys::passwordValues, password);
}

bool Settings::contains(QLatin1String key) const
{
    return m_file.contains(key);
}

QVariant Settings::value(QLatin1String key) const
{
    QVariant stored = m_file.value(key);
    if (stored.isValid())
        return stored;
    for (const SettingsKeys::Default& d : SettingsKeys::registeredDefaults()) {
        if (d.key == key)
            return d.value;
    }
    return {};
}

int Settings::integer(QLatin1String key) const
{
    const QVariant v = value(key);
    bool ok = false;
    const int number = v.toInt(&ok);
    if (ok)
        return number;
    // INI files keep booleans as "true" and "false".
    return v.toBool() ? 1 : 0;
}

bool Settings::boolean(QLatin1String key) const
{
    return value(key).toBool();
}

QByteArray Settings::data(QLatin1String key) const
{
    const QVariant v = value(key);
    return v.typeId() == QMetaType::QByteArray ? v.toByteArray() : QByteArray();
}

QVariantMap Settings::dictionary(QLatin1String key) const
{
    const QVariant v = value(key);
    if (v.typeId() == QMetaType::QVariantMap)
        return v.toMap();
    const QJsonDocument doc = QJsonDocument::fromJson(v.toString().toUtf8());
    return doc.isObject() ? doc.object().toVariantMap() : QVariantMap();
}

void Settings::setValue(QLatin1String key, const QVariant& value)
{
    if (key == SettingsKeys::passwordValues) {
        setDictionary(key, value.toMap());
        return;
    }
    m_file.setValue(key, value);
}

void Settings::setDictionary(QLatin1String key, const QVariantMap& value)
{
    QVariantMap stored = value;
    if (key == SettingsKeys::passwordValues && stored.contains(SettingsKeys::password))
        stored.insert(SettingsKeys::password, QString());
    const QByteArray json =
        QJsonDocument(QJsonObject::fromVariantMap(stored)).toJson(QJsonDocument::Compact);
    m_file.setValue(key, QString::fromUtf8(json));
}

void Settings::remove(QLatin1String key)
{
    m_file.remove(key);
}

void Settings::sync()
{
    m_file.sync();
}

bool Settings::welcomeDone() const
{
    return contains(SettingsKeys::isShowFirst) && boolean(SettingsKeys::isShowFirst);
}

void Settings::setWelcomeDone()
{
    setValue(SettingsKeys::introPageShown, 1);
    setValue(SettingsKeys::isShowFirst, 1);
    sync();
}

void Settings::writeIdleQuestionSwitchIfAbsent()
{
    if (!contains(SettingsKeys::disableAutoPrompt))
        setValue(SettingsKeys::disableAutoPrompt, 0);
}

bool Settings::passwordProtected() const
{
    return dictionary(SettingsKeys::passwordValues).value(SettingsKeys::isPassword).toBool();
}

} // namespace lullet
