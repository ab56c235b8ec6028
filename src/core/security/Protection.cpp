#include "core/security/Protection.h"

#include "core/security/Lock.h"
#include "core/security/PasswordRules.h"
#include "core/settings/Settings.h"

namespace lullet {

Protection::Protection(Settings& settings, SecretStore& secrets, Lock& lock, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_secrets(secrets)
    , m_lock(lock)
{
}

bool Protection::isOn() const
{
    return m_settings.passwordProtected();
}

void Protection::writeSwitch(bool on, Writer writer)
{
    // The password's own key is kept, and kept empty: the secret is the keyring's alone.
    QVariantMap values{{QString(SettingsKeys::isPassword), on},
                       {QString(SettingsKeys::password), QString()}};
    if (writer == Writer::LoginPage)
        values.insert(QString(SettingsKeys::email), QString());
    m_settings.setDictionary(SettingsKeys::passwordValues, values);
}

void Protection::readPassword(QObject* context, SecretStore::ReadDone done)
{
    m_secrets.read(account(), context,
                   [this, done = std::move(done)](const SecretStore::Reading& reading) {
                       if (reading.outcome == SecretStore::Outcome::NotFound)
                           writeSwitch(false);
                       done(reading);
                   });
}

void Protection::switchOn()
{
    writeSwitch(true);
}

void Protection::switchOff()
{
    // The answer changes nothing: the switch is off either way, and a password left behind in
    // an unreachable keyring is read as the current password when protection is next set.
    m_secrets.remove(account(), this, [](const QString&) {});
    writeSwitch(false);
}

void Protection::storePassword(const QString& password, QObject* context,
                               SecretStore::WriteDone done)
{
    m_secrets.write(account(), password, context,
                    [this, done = std::move(done)](const QString& error) {
                        writeSwitch(error.isEmpty());
                        done(error);
                    });
}

void Protection::logIn(const QString& typed, QObject* context, LoginDone done)
{
    if (PasswordRules::trimmed(typed).isEmpty()) {
        done(Login::Blank, {});
        return;
    }
    m_secrets.read(account(), context,
                   [this, typed, done = std::move(done)](const SecretStore::Reading& reading) {
                       switch (reading.outcome) {
                       case SecretStore::Outcome::Unavailable:
                           done(Login::Unavailable, reading.error);
                           return;
                       case SecretStore::Outcome::NotFound:
                           writeSwitch(false, Writer::LoginPage);
                           break;
                       case SecretStore::Outcome::Found:
                           if (reading.secret != typed) {
                               done(Login::Wrong, {});
                               return;
                           }
                           break;
                       }
                       done(Login::In, {});
                       m_lock.unlock();
                   });
}

} // namespace lullet
