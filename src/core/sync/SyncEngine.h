#pragma once

#include "core/sync/CalDavClient.h"
#include "core/sync/LocalRecords.h"
#include "core/sync/RequestQueue.h"
#include "core/sync/SyncLedger.h"
#include "core/sync/SyncResult.h"

#include <QObject>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <vector>

namespace lullet {

class ChangeLog;
class Clock;
class HttpPort;
class Library;
class Store;

// One synchronisation with the collection: what changed on the server since the last one is
// read (a sync report from the last token, else the collection's ctag and its members' etags)
// and merged into the store, then every local change that waits is sent. Each step is recorded
// as it succeeds, so a sync cut short anywhere loses nothing and the next one goes on from there.
// With nothing changed on either side it costs one request.
class SyncEngine final : public QObject {
    Q_OBJECT
public:
    struct Services {
        const Clock& clock;
        Store& store;
        Library& library;
        ChangeLog& changeLog;
        HttpPort& port;
    };
    // `account` names the server and user: a store that meets another starts afresh with it.
    SyncEngine(const Services& services, const QUrl& source, const QString& account,
               QObject* parent = nullptr);
    ~SyncEngine() override;

    void run();
    // Stops at once: what was done stays, the rest waits for the next sync.
    void abort();

Q_SIGNALS:
    void finished(const lullet::SyncResult& result);

private:
    struct Incoming;
    using Outcome = CalDavClient::Outcome;

    void assignMissingUids();
    void start();
    void readChanges();
    void readByCtag();
    void compare(const std::vector<CalDavClient::Member>& members);
    void fetch(const QStringList& hrefs);
    void applyRemote();
    bool applyOne(Incoming& incoming);
    void applyRemoval(const QString& href);
    bool settleIncoming();
    void upload();
    void uploadChunk();
    void put(const SyncLedger::Entry& entry, const QJsonObject& fields, const QString& uid);
    void sendDeletion(const SyncLedger::Entry& entry);
    void afterWrite(const Outcome& outcome, std::function<void()> written);
    void recordWritten();
    void giveUid(SyncLedger::Entry& entry, const QString& derived);
    // What changed on the server is no longer known: the next pass compares every resource.
    void compareAllNextTime();

    void fail(const Outcome& outcome);
    void finish();

    Services m_services;
    QUrl m_source;
    QString m_account;
    SyncLedger m_ledger;
    CalDavClient m_dav;
    LocalRecords m_local;
    QUrl m_collection;
    SyncResult m_result;
    QString m_newToken;
    QString m_newCtag;
    std::vector<Incoming> m_incoming;
    QStringList m_removed;
    std::vector<SyncLedger::Entry> m_pending;
    std::size_t m_nextPending = 0;
    RequestQueue m_requests;
    // What to record of the writes the server took, not recorded yet.
    std::vector<std::function<void()>> m_written;
    bool m_finished = false;
};

} // namespace lullet
