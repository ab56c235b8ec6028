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

Settings::Settings(const QString& filePath, QObject* parent)
    : QObject(parent)
    , m_file(filePath, QSettings::IniFormat)
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
    write(key, value);
}

void Settings::write(QLatin1String key, const QVariant& value, bool now)
{
    m_file.setValue(key, value);
    if (now)
        m_file.sync();
    Q_EMIT changed(key);
}

void Settings::setDictionary(QLatin1String key, const QVariantMap& value)
{
    QVariantMap stored = value;
    if (key == SettingsKeys::passwordValues && stored.contains(SettingsKeys::password))
        stored.insert(SettingsKeys::password, QString());
    const QByteArray json =
        QJsonDocument(QJsonObject::fromVariantMap(stored)).toJson(QJsonDocument::Compact);
    write(key, QString::fromUtf8(json));
}

void Settings::remove(QLatin1String key)
{
    m_file.remove(key);
    Q_EMIT changed(key);
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
    write(SettingsKeys::introPageShown, 1);
    write(SettingsKeys::isShowFirst, 1, true);
}

void Settings::setPromptDuration(int minutes)
{
    write(SettingsKeys::promptDuration, minutes, true);
}

void Settings::setIdleQuestionsOff(bool off)
{
    write(SettingsKeys::disableAutoPrompt, off ? 1 : 0);
}

void Settings::writeIdleQuestionSwitchIfAbsent()
{
    if (!contains(SettingsKeys::disableAutoPrompt))
        setIdleQuestionsOff(false);
}

void Settings::setAutomaticBackup(bool on)
{
    write(SettingsKeys::automaticBackup, on);
}

void Settings::setBackupOption(int option)
{
    write(SettingsKeys::backupOption, option);
}

void Settings::setOpenAtLogin(bool on)
{
    write(SettingsKeys::openAtLogIn, on ? 1 : 0);
    write(SettingsKeys::UDOpenAtLogin, on, true);
}

void Settings::setDockIcon(bool on)
{
    write(SettingsKeys::UDDockIcon, on, true);
}

void Settings::setStatusBarIcon(bool on)
{
    write(SettingsKeys::UDStatusBarIcon, on, true);
}

Settings::Pause Settings::remindersPause() const
{
    bool ok = false;
    const double stored = m_file.value(SettingsKeys::remindersPausedUntil).toDouble(&ok);
    if (!ok || stored == 0)
        return Pause::None;
    return stored < 0 ? Pause::UntilResumed : Pause::Until;
}

Date Settings::remindersPausedUntil() const
{
    return Date(m_file.value(SettingsKeys::remindersPausedUntil).toDouble());
}

void Settings::setRemindersPause(Pause pause, Date until)
{
    switch (pause) {
    case Pause::None:
        m_file.remove(SettingsKeys::remindersPausedUntil);
        m_file.sync();
        Q_EMIT changed(SettingsKeys::remindersPausedUntil);
        return;
    case Pause::Until:
        write(SettingsKeys::remindersPausedUntil, until.timeIntervalSince1970(), true);
        return;
    case Pause::UntilResumed:
        write(SettingsKeys::remindersPausedUntil, -1, true);
        return;
    }
}

void Settings::setAwayMinutes(int minutes)
{
    write(SettingsKeys::awayMinutes, minutes);
}

void Settings::setHoldWhileFullScreen(bool on)
{
    write(SettingsKeys::holdWhileFullScreen, on);
}

void Settings::setNaturalBreaks(bool on)
{
    write(SettingsKeys::naturalBreaks, on);
}

void Settings::setPromptSound(bool on)
{
    write(SettingsKeys::promptSound, on);
}

void Settings::setSyncServer(const QString& url, const QString& user)
{
    write(SettingsKeys::syncURL, url);
    write(SettingsKeys::syncUser, user);
}

void Settings::setMainWindowGeometry(const QByteArray& geometry)
{
    write(SettingsKeys::mainWindowGeometry, geometry);
}

bool Settings::passwordProtected() const
{
    return dictionary(SettingsKeys::passwordValues).value(SettingsKeys::isPassword).toBool();
}

} // namespace lullet
