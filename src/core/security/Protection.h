#pragma once

#include "core/security/SecretStore.h"

#include <QObject>

#include <chrono>

namespace lullet {

class Lock;
class Settings;

// The password protection: whether it is on ("isPassword" of "passwordValues") and the password
// itself, which lives in the keyring only. The security settings write through here, the login
// page reads through here, and nothing else touches either. A keyring that has not answered
// within a few seconds counts as unavailable, and its late answer is dropped: nothing waits on it
// for ever.
class Protection final : public QObject {
    Q_OBJECT
public:
    Protection(Settings& settings, SecretStore& secrets, Lock& lock, QObject* parent = nullptr);

    // How long the keyring is waited for.
    void setKeyringPatience(std::chrono::milliseconds patience) { m_patience = patience; }
    // The keyring's account of the launch password: the process name and "AppAccount".
    static QString account() { return QStringLiteral("lulletAppAccount"); }

    // The launch asks for the password.
    bool isOn() const;

    // The stored password. None stored while protection is on repairs the protection: it goes
    // off, since it has nothing to hold to. An unreachable keyring changes nothing.
    void readPassword(QObject* context, SecretStore::ReadDone done);
    // Switched on before any password exists: the protection is half set until one is stored.
    void switchOn();
    // Switched off: the launch no longer asks, and the keyring's item goes. `done` hears why the
    // item could not be removed, or nothing when it is gone.
    void switchOff(QObject* context, SecretStore::WriteDone done);
    // Stores the password (already checked) and turns protection on. A keyring that can't store
    // it leaves protection off and says why.
    void storePassword(const QString& password, QObject* context, SecretStore::WriteDone done);

    enum class Login {
        Blank,
        Wrong,
        In,
        // The keyring can't be reached: the program stays locked, since no answer is not "no
        // password".
        Unavailable,
    };
    using LoginDone = std::function<void(Login, const QString& error)>;
    // Checks what the user typed, exactly as typed, and unlocks the program when it matches.
    // With protection on and no password stored, any entry that isn't blank lets the user in and
    // turns protection off.
    void logIn(const QString& typed, QObject* context, LoginDone done);

private:
    // The login page's rewrite also carries an empty "email", as the settings always had.
    enum class Writer { Settings, LoginPage };
    void writeSwitch(bool on, Writer writer = Writer::Settings);
    // The keyring's answer to a read, within the patience.
    void read(QObject* context, SecretStore::ReadDone done);

    Settings& m_settings;
    SecretStore& m_secrets;
    Lock& m_lock;
    std::chrono::milliseconds m_patience = std::chrono::seconds(6);
};

} // namespace lullet
