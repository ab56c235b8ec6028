#pragma once

#include "core/dates/Date.h"
#include "core/sync/SyncResult.h"

#include <QObject>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace lullet {

class Catalogue;
class ChangeLog;
class Clock;
class HttpPort;
class Library;
class RunningItem;
class SecretStore;
class Settings;
class Store;
class SyncEngine;

// Keeps the store in step with the user's CalDAV collection ("syncURL"): at launch, every few
// minutes ("syncInterval"), a few seconds after a local change, and at quit, within a bound.
// Nothing of the network exists while sync is off or between two syncs. After a sync that
// brought changes the lists are read again, the repeat list is rebuilt and the views are told,
// as after a restore; a running item deleted or finished elsewhere stops.
class Sync final : public QObject {
    Q_OBJECT
public:
    using PortFactory =
        std::function<std::unique_ptr<HttpPort>(const QString& user, const QString& password)>;
    struct Services {
        const Clock& clock;
        Settings& settings;
        Store& store;
        Library& library;
        Catalogue& catalogue;
        RunningItem& running;
        SecretStore& secrets;
        ChangeLog& changeLog;
    };
    // Without ports there is no network, and sync stays off.
    Sync(const Services& services, PortFactory ports, QObject* parent = nullptr);
    ~Sync() override;

    // The keyring's account of a server's password: "sync:" + user + "@" + host.
    static QString account(const QUrl& url, const QString& user);

    bool isOn() const;
    QUrl url() const;
    QString user() const;
    bool isSyncing() const { return m_engine || m_readingPassword; }
    // How the last sync went, and when the last good one ended.
    const std::optional<SyncResult>& lastResult() const { return m_last; }
    std::optional<Date> lastSyncedAt() const { return m_lastSynced; }

    // Syncs with this server or collection from now on, as this user; the password goes to the
    // keyring, never to the settings. Without a password the one stored for the same account
    // stays. `done` hears the keyring's refusal, or nothing.
    void connectTo(const QUrl& url, const QString& user, const std::optional<QString>& password,
                   QObject* context, std::function<void(const QString& error)> done);
    // Sync stops, and the server's password leaves the keyring. What the store knows of the
    // server stays, for a return to it.
    void turnOff();

    // The program runs: a first sync now, then the rhythm.
    void start();
    void syncNow();
    // Quitting: a last sync sends what waits, given at most `bound`; then `done`.
    void finishBeforeQuit(std::chrono::milliseconds bound, std::function<void()> done);
    // The store was replaced by a restore: its past with the server no longer holds, and it
    // merges with what the server has at the next sync.
    void storeReplaced();

Q_SIGNALS:
    // Turned on or off, started or ended a sync.
    void stateChanged();
    // A sync brought changes: the lists were read again.
    void changesArrived();

private:
    void run();
    void begin(const QString& user, const QString& password);
    void onFinished(const SyncResult& result);
    void reload();
    void onLocalChange();
    void armInterval();
    void quitNow();

    Services m_services;
    PortFactory m_ports;
    QTimer m_soon;
    QTimer m_every;
    std::unique_ptr<HttpPort> m_port;
    std::unique_ptr<SyncEngine> m_engine;
    bool m_readingPassword = false;
    bool m_started = false;
    bool m_quitting = false;
    bool m_ledgerChecked = false;
    int m_passes = 0;
    std::optional<SyncResult> m_last;
    std::optional<Date> m_lastSynced;
    std::function<void()> m_quitDone;
};

} // namespace lullet
