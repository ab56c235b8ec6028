#include "ui/desktop/KeyringSecretStore.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QObject>
#include <QPointer>
#include <qt6keychain/keychain.h>

namespace lullet {

namespace {

const QString service = QStringLiteral("lullet");

// A job deletes itself once it has answered; its answer reaches `context` only while that lives.
template <typename Job, typename Answer>
void start(Job* job, const QString& account, QObject* context, Answer answer)
{
    job->setAutoDelete(true);
    job->setInsecureFallback(false);
    job->setKey(account);
    QObject::connect(job, &QKeychain::Job::finished, context,
                     [job, answer = std::move(answer)](QKeychain::Job*) { answer(*job); });
    job->start();
}

QString errorText(const QKeychain::Job& job)
{
    return job.errorString().isEmpty()
               ? QCoreApplication::translate("KeyringSecretStore", "The keyring did not say why.")
               : job.errorString();
}

// A keyring that is locked, and can't be unlocked because its unlock dialog could not show or
// the user cancelled it, hides its items: QtKeychain then reports no password. That must not
// read as "no password", which would open the program. The Secret Service lists locked items
// without unlocking them, under the attributes QtKeychain stores with each password.
void confirmNotFound(const QString& account, QObject* context, SecretStore::ReadDone done)
{
    QDBusMessage search = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.secrets"), QStringLiteral("/org/freedesktop/secrets"),
        QStringLiteral("org.freedesktop.Secret.Service"), QStringLiteral("SearchItems"));
    using Attributes = QMap<QString, QString>;
    static const QMetaType registered = qDBusRegisterMetaType<Attributes>();
    Q_UNUSED(registered);
    search << QVariant::fromValue(
        Attributes{{QStringLiteral("server"), service}, {QStringLiteral("user"), account}});
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(search));
    QPointer<QObject> guard(context);
    QObject::connect(
        watcher, &QDBusPendingCallWatcher::finished, watcher,
        [guard, done = std::move(done)](QDBusPendingCallWatcher* call) {
            call->deleteLater();
            if (!guard)
                return;
            const QDBusPendingReply<QList<QDBusObjectPath>, QList<QDBusObjectPath>> reply = *call;
            // Without a Secret Service the password lives in another keyring: its word stands.
            if (reply.isError() ||
                (reply.argumentAt<0>().isEmpty() && reply.argumentAt<1>().isEmpty())) {
                done({SecretStore::Outcome::NotFound, {}, {}});
                return;
            }
            done({SecretStore::Outcome::Unavailable,
                  {},
                  QCoreApplication::translate(
                      "KeyringSecretStore", "Your keyring is locked and could not be unlocked.")});
        });
}

} // namespace

void KeyringSecretStore::read(const QString& account, QObject* context, ReadDone done)
{
    start(new QKeychain::ReadPasswordJob(service), account, context,
          [account, context, done = std::move(done)](const QKeychain::ReadPasswordJob& job) {
              switch (job.error()) {
              case QKeychain::NoError:
                  done({Outcome::Found, job.textData(), {}});
                  return;
              case QKeychain::EntryNotFound:
                  confirmNotFound(account, context, done);
                  return;
              default:
                  done({Outcome::Unavailable, {}, errorText(job)});
                  return;
              }
          });
}

void KeyringSecretStore::write(const QString& account, const QString& secret, QObject* context,
                               WriteDone done)
{
    auto* writing = new QKeychain::WritePasswordJob(service);
    writing->setTextData(secret);
    start(writing, account, context,
          [done = std::move(done)](const QKeychain::WritePasswordJob& job) {
              done(job.error() == QKeychain::NoError ? QString() : errorText(job));
          });
}

void KeyringSecretStore::remove(const QString& account, QObject* context, WriteDone done)
{
    start(new QKeychain::DeletePasswordJob(service), account, context,
          [done = std::move(done)](const QKeychain::DeletePasswordJob& job) {
              const bool gone =
                  job.error() == QKeychain::NoError || job.error() == QKeychain::EntryNotFound;
              done(gone ? QString() : errorText(job));
          });
}

} // namespace lullet
