#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <QVariant>
#include <QVariantMap>

namespace lullet {

// The user's settings: an INI file below the configuration folder, plus registered defaults
// that answer for keys the user never set. Registered defaults live in memory only and are never
// written to the file.
class UserDefaults {
public:
    // "Lullet/Lullet.conf" in the user's configuration folder.
    static QString defaultPath();

    explicit UserDefaults(const QString& filePath);

    void registerDefaults(const QVariantMap& defaults);

    // True when the file holds the key; registered defaults don't count.
    bool hasValue(QLatin1String key) const;
    // The stored value, else the registered default, else an invalid value.
    QVariant object(QLatin1String key) const;
    // A missing or unreadable value reads as 0, false, empty.
    int integer(QLatin1String key) const;
    bool boolean(QLatin1String key) const;
    QByteArray data(QLatin1String key) const;
    QVariantMap dictionary(QLatin1String key) const;

    void set(QLatin1String key, const QVariant& value);
    void setDictionary(QLatin1String key, const QVariantMap& value);
    void remove(QLatin1String key);
    // Writes pending changes to the file now.
    void synchronize();

    QString filePath() const { return m_settings.fileName(); }

private:
    QSettings m_settings;
    QVariantMap m_registered;
};

} // namespace lullet
