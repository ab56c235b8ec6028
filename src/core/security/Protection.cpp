#include "core/security/Protection.h"

#include "core/security/Lock.h"
#include "core/security/PasswordRules.h"
#include "core/settings/Settings.h"

#include <QTimer>

#include <memory>

namespace lullet {

namespace {

// Hands `done` the keyring's answer, or `silence` when none has come within `patience`: once,
// whichever is first.
template <typename Done, typename Answer>
auto inTime(QObject* context, Done done, Answer silence, std::chrono::milliseconds patience)
{
    auto pending = std::make_shared<Done>(std::move(done));
    QTimer::singleShot(patience, context, [pending, silence] {
        if (const Done answer = std::exchange(*pending, nullptr))
            answer(silence);
    });
    return [pending](const Answer& answer) {
        if (const Done told = std::exchange(*pending, nullptr))
            told(answer);
    };
}

QString silenceText()
{
    return Protection::tr("Your keyring did not answer.");
}

} // namespace

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

void Protection::read(QObject* context, SecretStore::ReadDone done)
{
    const SecretStore::Reading silence{SecretStore::Outcome::Unavailable, {}, silenceText()};
    m_secrets.read(account(), context, inTime(context, std::move(done), silence, m_patience));
}

void Protection::readPassword(QObject* context, SecretStore::ReadDone done)
{
    read(context, [this, done = std::move(done)](const SecretStore::Reading& reading) {
        if (reading.outcome == SecretStore::Outcome::NotFound)
            writeSwitch(false);
        done(reading);
    });
}

void Protection::switchOn()
{
    writeSwitch(true);
}

void Protection::switchOff(QObject* context, SecretStore::WriteDone done)
{
    // The switch is off whatever the keyring answers; a password it could not remove is read as
    // the current password when protection is next set.
    writeSwitch(false);
    m_secrets.remove(account(), context,
                     inTime(context, std::move(done), silenceText(), m_patience));
}

void Protection::storePassword(const QString& password, QObject* context,
                               SecretStore::WriteDone done)
{
    const auto stored = [this, done = std::move(done)](const QString& error) {
        writeSwitch(error.isEmpty());
        done(error);
    };
    m_secrets.write(account(), password, context,
                    inTime(context, SecretStore::WriteDone(stored), silenceText(), m_patience));
}

void Protection::logIn(const QString& typed, QObject* context, LoginDone done)
{
    if (PasswordRules::trimmed(typed).isEmpty()) {
        done(Login::Blank, {});
        return;
    }
    read(context, [this, typed, done = std::move(done)](const SecretStore::Reading& reading) {
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
