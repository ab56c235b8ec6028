#include "core/sync/Sync.h"

#include "core/activity/RunningItem.h"
#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/scheduling/Catalogue.h"
#include "core/security/SecretStore.h"
#include "core/settings/Settings.h"
#include "core/store/Store.h"
#include "core/sync/ChangeLog.h"
#include "core/sync/HttpPort.h"
#include "core/sync/SyncEngine.h"
#include "core/sync/SyncLedger.h"

#include <QPointer>

#include <algorithm>

namespace lullet {

namespace {

using namespace std::chrono_literals;

// A change is sent once the user has paused: a run of edits goes in one sync.
constexpr auto afterChange = 5s;
// At launch the windows come first.
constexpr auto afterLaunch = 2s;
// Passes in a row when each leaves something to do: a server that keeps refusing is not
// asked again and again.
constexpr int maxPasses = 3;

} // namespace

Sync::Sync(const Services& services, PortFactory ports, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_ports(std::move(ports))
{
    m_soon.setSingleShot(true);
    m_every.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &Sync::run);
    connect(&m_every, &QTimer::timeout, this, &Sync::run);
    connect(&m_services.changeLog, &ChangeLog::changed, this, &Sync::onLocalChange);
}

Sync::~Sync() = default;

QString Sync::account(const QUrl& url, const QString& user)
{
    return QStringLiteral("sync:") + user + QLatin1Char('@') + url.host();
}

bool Sync::isOn() const
{
    return m_ports && url().isValid() && !url().isEmpty();
}

QUrl Sync::url() const
{
    return QUrl(m_services.settings.syncURL());
}

QString Sync::user() const
{
    return m_services.settings.syncUser();
}

void Sync::connectTo(const QUrl& url, const QString& user, const std::optional<QString>& password,
                     QObject* context, std::function<void(const QString& error)> done)
{
    const QString previous = account(this->url(), this->user());
    const auto save = [this, url, user, previous] {
        if (!this->user().isEmpty() && previous != account(url, user))
            m_services.secrets.remove(previous, this, [](const QString&) {});
        m_services.settings.setSyncServer(url.toString(), user);
        // A sync with the server that was is of no more use.
        if (m_engine)
            m_engine->abort();
        m_last.reset();
        m_lastSynced.reset();
        Q_EMIT stateChanged();
        if (m_started)
            syncNow();
    };
    if (user.isEmpty() || !password) {
        save();
        done({});
        return;
    }
    QPointer<QObject> guard(context);
    m_services.secrets.write(account(url, user), *password, this,
                             [save, guard, done = std::move(done)](const QString& error) {
                                 if (error.isEmpty())
                                     save();
                                 if (guard)
                                     done(error);
                             });
}

void Sync::turnOff()
{
    if (!user().isEmpty())
        m_services.secrets.remove(account(url(), user()), this, [](const QString&) {});
    m_services.settings.setSyncServer(QString(), QString());
    m_soon.stop();
    m_every.stop();
    if (m_engine)
        m_engine->abort();
    Q_EMIT stateChanged();
}

void Sync::start()
{
    m_started = true;
    if (isOn())
        m_soon.start(afterLaunch);
}

void Sync::syncNow()
{
    if (isSyncing())
        return;
    m_passes = 0;
    run();
}

void Sync::onLocalChange()
{
    // A sync under way sends what it finds waiting when it ends.
    if (m_started && isOn() && !isSyncing() && !m_quitDone)
        m_soon.start(afterChange);
}

void Sync::armInterval()
{
    const int minutes = std::max(1, m_services.settings.syncInterval());
    m_every.start(std::chrono::minutes(minutes));
}

void Sync::run()
{
    if (!isOn() || isSyncing() || (m_quitting && !m_quitDone))
        return;
    m_soon.stop();
    m_every.stop();
    m_readingPassword = true;
    Q_EMIT stateChanged();
    const QString user = this->user();
    if (user.isEmpty()) {
        begin(user, {});
        return;
    }
    m_services.secrets.read(account(url(), user), this,
                            [this, user](const SecretStore::Reading& reading) {
                                if (reading.outcome != SecretStore::Outcome::Unavailable) {
                                    begin(user, reading.secret);
                                    return;
                                }
                                m_readingPassword = false;
                                SyncResult result;
                                result.keyringUnavailable = true;
                                result.detail = reading.error;
                                onFinished(result);
                            });
}

void Sync::begin(const QString& user, const QString& password)
{
    m_readingPassword = false;
    // Sync was turned off, or the program quit, while the keyring answered.
    if (!isOn() || (m_quitting && !m_quitDone)) {
        Q_EMIT stateChanged();
        return;
    }
    // Records written while nothing kept the ledger (a store made before it, or by another
    // tool) join it once a run.
    if (!std::exchange(m_ledgerChecked, true))
        SyncLedger(m_services.store.db()).adoptUnknownRows();
    m_port = m_ports(user, password);
    m_engine = std::make_unique<SyncEngine>(SyncEngine::Services{m_services.clock, m_services.store,
                                                                 m_services.library,
                                                                 m_services.changeLog, *m_port},
                                            url(), account(url(), user));
    connect(m_engine.get(), &SyncEngine::finished, this, &Sync::onFinished);
    m_engine->run();
}

void Sync::onFinished(const SyncResult& result)
{
    // The engine and its port end once their last answer has returned.
    if (m_engine) {
        m_engine.release()->deleteLater();
        QTimer::singleShot(0, [port = std::shared_ptr<HttpPort>(std::move(m_port))] {});
    }
    m_last = result;
    if (result.ok())
        m_lastSynced = m_services.clock.now();
    if (result.received > 0)
        reload();
    if (m_quitDone) {
        quitNow();
        return;
    }
    // What was changed here meanwhile, or refused by a conflict, goes at once.
    const bool again =
        result.ok() && (result.again || SyncLedger(m_services.store.db()).hasPending());
    m_passes = again ? m_passes + 1 : 0;
    if (again && m_passes < maxPasses)
        m_soon.start(0);
    else if (isOn())
        armInterval();
    Q_EMIT stateChanged();
}

void Sync::reload()
{
    Library& library = m_services.library;
    library.load();
    m_services.catalogue.rebuild();
    if (const Item* running = m_services.running.item();
        running && (!running->hasContext() || running->isFinished()))
        m_services.running.forget();
    library.announceReloaded();
    Q_EMIT changesArrived();
}

void Sync::finishBeforeQuit(std::chrono::milliseconds bound, std::function<void()> done)
{
    m_soon.stop();
    m_every.stop();
    m_quitting = true;
    if (!isOn()) {
        done();
        return;
    }
    m_quitDone = std::move(done);
    if (!isSyncing())
        run();
    if (!m_quitDone)
        return;
    QTimer::singleShot(bound, this, [this] {
        if (m_engine)
            m_engine->abort();
        else if (m_quitDone)
            quitNow();
    });
}

void Sync::storeReplaced()
{
    if (m_engine)
        m_engine->abort();
    SyncLedger(m_services.store.db()).forgetServer();
    m_ledgerChecked = false;
}

void Sync::quitNow()
{
    if (std::function<void()> done = std::exchange(m_quitDone, {}))
        done();
}

} // namespace lullet
