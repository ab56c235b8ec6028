#include "support/TestMain.h"
#include "ui/desktop/KeyringSecretStore.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>

#include <optional>

using namespace lullet;

// The password in a real Secret Service, started for this test alone by with-keyring.sh.
class TestKeyring : public QObject {
    Q_OBJECT
    KeyringSecretStore m_keyring;
    const QString account = QStringLiteral("lulletAppAccount");

    SecretStore::Reading read(const QString& which)
    {
        std::optional<SecretStore::Reading> reading;
        m_keyring.read(which, this, [&](const SecretStore::Reading& r) { reading = r; });
        if (!QTest::qWaitFor([&] { return reading.has_value(); }, 20000))
            qFatal("the keyring did not answer a read");
        return *reading;
    }

    QString wait(const std::function<void(SecretStore::WriteDone)>& job)
    {
        std::optional<QString> error;
        job([&](const QString& e) { error = e; });
        if (!QTest::qWaitFor([&] { return error.has_value(); }, 20000))
            qFatal("the keyring did not answer");
        return *error;
    }

private Q_SLOTS:
    void storesReadsAndRemovesThePassword()
    {
        QCOMPARE(read(account).outcome, SecretStore::Outcome::NotFound);
        const QString secret = QStringLiteral("Kestrel 9 \u00e9\u0301");
        QCOMPARE(wait([&](auto done) { m_keyring.write(account, secret, this, done); }), QString());
        SecretStore::Reading found = read(account);
        QCOMPARE(found.outcome, SecretStore::Outcome::Found);
        QCOMPARE(found.secret, secret);
        // Storing again replaces.
        QCOMPARE(wait([&](auto done) {
                     m_keyring.write(account, QStringLiteral("Falcon77"), this, done);
                 }),
                 QString());
        QCOMPARE(read(account).secret, QStringLiteral("Falcon77"));
        QCOMPARE(wait([&](auto done) { m_keyring.remove(account, this, done); }), QString());
        QCOMPARE(read(account).outcome, SecretStore::Outcome::NotFound);
        // Each account holds its own password.
        const QString server = QStringLiteral("sync:bob@dav.example.org");
        QCOMPARE(
            wait([&](auto done) { m_keyring.write(server, QStringLiteral("Owl"), this, done); }),
            QString());
        QCOMPARE(read(account).outcome, SecretStore::Outcome::NotFound);
        QCOMPARE(read(server).secret, QStringLiteral("Owl"));
        QCOMPARE(wait([&](auto done) { m_keyring.remove(server, this, done); }), QString());
        // Removing what isn't there is no failure.
        QCOMPARE(wait([&](auto done) { m_keyring.remove(account, this, done); }), QString());
    }

    // A locked keyring that can't be unlocked (here: no display for its dialog) hides the
    // password. That is no answer, never "no password".
    void aLockedKeyringIsUnavailable()
    {
        QCOMPARE(wait([&](auto done) {
                     m_keyring.write(account, QStringLiteral("Kestrel9"), this, done);
                 }),
                 QString());
        QDBusMessage lock = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.secrets"), QStringLiteral("/org/freedesktop/secrets"),
            QStringLiteral("org.freedesktop.Secret.Service"), QStringLiteral("Lock"));
        lock << QVariant::fromValue(QList<QDBusObjectPath>{
            QDBusObjectPath(QStringLiteral("/org/freedesktop/secrets/collection/login"))});
        const QDBusMessage locked = QDBusConnection::sessionBus().call(lock);
        QCOMPARE(locked.type(), QDBusMessage::ReplyMessage);
        const SecretStore::Reading reading = read(account);
        QCOMPARE(reading.outcome, SecretStore::Outcome::Unavailable);
        QVERIFY(!reading.error.isEmpty());
    }
};

LULLET_TEST_MAIN(TestKeyring)
#include "tst_keyring.moc"
