#pragma once

#include "core/settings/SettingsKeys.h"

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <QVariant>
#include <QVariantMap>

namespace lullet {

// The user's settings: an INI file below the configuration folder. Keys the user never set
// answer with their registered default, which is never written to the file. Main thread only.
class Settings {
public:
    // "Lullet/Lullet.conf" in the user's configuration folder.
    static QString defaultPath();

    explicit Settings(const QString& filePath);

    // True when the file holds the key; defaults don't count.
    bool contains(QLatin1String key) const;
    // The stored value, else the registered default, else an invalid value.
    QVariant value(QLatin1String key) const;
    // A missing or unreadable value reads as 0, false, empty.
    int integer(QLatin1String key) const;
    bool boolean(QLatin1String key) const;
    QByteArray data(QLatin1String key) const;
    QVariantMap dictionary(QLatin1String key) const;

    void setValue(QLatin1String key, const QVariant& value);
    // Dictionaries are kept as JSON text. The password of "passwordValues" is always written
    // empty: the secret lives in the keyring only.
    void setDictionary(QLatin1String key, const QVariantMap& value);
    void remove(QLatin1String key);
    // Writes pending changes to the file now.
    void sync();

    QString filePath() const { return m_file.fileName(); }

    // The welcome pages are done ("isShowFirst" present and true).
    bool welcomeDone() const;
    void setWelcomeDone();
    // Minutes between idle questions.
    int promptDuration() const { return integer(SettingsKeys::promptDuration); }
    // The idle questions are switched off ("disableAutoPrompt" above 0).
    bool idleQuestionsOff() const { return integer(SettingsKeys::disableAutoPrompt) > 0; }
    // The switch is written as "on" the first time the program runs.
    void writeIdleQuestionSwitchIfAbsent();
    // The launch asks for the password ("isPassword" of "passwordValues").
    bool passwordProtected() const;

private:
    QSettings m_file;
};

} // namespace lullet
