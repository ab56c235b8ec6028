#pragma once

#include "core/dates/Date.h"
#include "core/settings/SettingsKeys.h"

#include <QByteArray>
#include <QObject>
#include <QSettings>
#include <QString>
#include <QVariant>
#include <QVariantMap>

namespace lullet {

// The user's settings: an INI file below the configuration folder. Keys the user never set
// answer with their registered default, which is never written to the file. Each key has its
// typed reader and writer here, so that no view encodes a value itself; every write is told by
// changed(). Main thread only.
class Settings final : public QObject {
    Q_OBJECT
public:
    // "Lullet/Lullet.conf" in the user's configuration folder.
    static QString defaultPath();

    explicit Settings(const QString& filePath, QObject* parent = nullptr);

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
    void setPromptDuration(int minutes);
    // The idle questions are switched off ("disableAutoPrompt" above 0).
    bool idleQuestionsOff() const { return integer(SettingsKeys::disableAutoPrompt) > 0; }
    void setIdleQuestionsOff(bool off);
    // The switch is written as "on" the first time the program runs.
    void writeIdleQuestionSwitchIfAbsent();
    // The launch asks for the password ("isPassword" of "passwordValues").
    bool passwordProtected() const;

    // A copy of the store at each launch, and how long the copies are kept.
    bool automaticBackup() const { return boolean(SettingsKeys::automaticBackup); }
    void setAutomaticBackup(bool on);
    int backupOption() const { return integer(SettingsKeys::backupOption); }
    void setBackupOption(int option);

    // Written as the user's choice once the autostart entry is made or removed.
    void setOpenAtLogin(bool on);
    // The window shows in the taskbar at launch; the icon shows in the tray.
    bool dockIcon() const { return boolean(SettingsKeys::UDDockIcon); }
    void setDockIcon(bool on);
    bool statusBarIcon() const { return boolean(SettingsKeys::UDStatusBarIcon); }
    void setStatusBarIcon(bool on);
    // The reminders' pause: none, until a moment, or until the user resumes them.
    enum class Pause { None, Until, UntilResumed };
    Pause remindersPause() const;
    // The pause's end, with Pause::Until.
    Date remindersPausedUntil() const;
    void setRemindersPause(Pause pause, Date until = Date());

    int awayMinutes() const { return integer(SettingsKeys::awayMinutes); }
    void setAwayMinutes(int minutes);
    bool holdWhileFullScreen() const { return boolean(SettingsKeys::holdWhileFullScreen); }
    void setHoldWhileFullScreen(bool on);
    bool naturalBreaks() const { return boolean(SettingsKeys::naturalBreaks); }
    void setNaturalBreaks(bool on);
    bool promptSound() const { return boolean(SettingsKeys::promptSound); }
    void setPromptSound(bool on);

    // The CalDAV server or collection synchronised with, and the user there; empty: no sync.
    QString syncURL() const { return value(SettingsKeys::syncURL).toString().trimmed(); }
    QString syncUser() const { return value(SettingsKeys::syncUser).toString(); }
    void setSyncServer(const QString& url, const QString& user);
    int syncInterval() const { return integer(SettingsKeys::syncInterval); }

    // Where the main window stood, as Qt saves a window's geometry.
    QByteArray mainWindowGeometry() const { return data(SettingsKeys::mainWindowGeometry); }
    void setMainWindowGeometry(const QByteArray& geometry);

Q_SIGNALS:
    // The key's value was written or removed.
    void changed(const QString& key);

private:
    // Writes the value and says so; `now` writes the file at once, for choices that must
    // survive a crash.
    void write(QLatin1String key, const QVariant& value, bool now = false);

    QSettings m_file;
};

} // namespace lullet
