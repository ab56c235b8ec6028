#pragma once

#include "core/dates/Date.h"
#include "core/model/Record.h"

#include <QHash>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace lullet {

class Db;
class Stmt;

// What the store keeps for synchronisation: an entry for each record (the SyncRecord table) and
// the state of the collection (SyncState). Each call is a statement on the store's connection.
class SyncLedger {
public:
    struct Entry {
        qint64 id = 0;
        Record::Entity entity = Record::Entity::Item;
        // None once the record is deleted here.
        std::optional<qint64> rowId;
        // Empty until the record is first sent.
        QString uid;
        QString href;
        QString etag;
        // The resource's text as both sides last agreed on it; empty for none.
        QString synced;
        std::optional<Date> changedAt;
        // The sequence number of the last change not yet sent; none when nothing waits.
        std::optional<qint64> pending;
    };

    explicit SyncLedger(Db& db);

    std::optional<Entry> byUid(const QString& uid);
    std::optional<Entry> byHref(const QString& href);
    std::optional<Entry> byRow(Record::Entity entity, qint64 rowId);
    // Every entry whose change waits to be sent, deletions among them.
    std::vector<Entry> pending();
    bool hasPending();
    // Records the ledger doesn't know (written while nothing kept it) join it, waiting to be
    // sent.
    bool adoptUnknownRows();
    // The entries of records never given a UID (records older than the ledger), by row.
    std::vector<Entry> withoutUid();
    // The version of each resource known here, by href.
    QHash<QString, QString> etags();
    // A UID that no entry has yet: the wanted one, else the wanted one numbered "-2", "-3"...
    QString freeUid(const QString& wanted);

    // The change log's side, inside a save.
    qint64 nextSequence();
    bool logInsert(Record::Entity entity, qint64 rowId, const QString& uid, Date at, qint64 seq);
    bool logChange(Record::Entity entity, qint64 rowId, Date at, qint64 seq);
    // A record never sent is simply forgotten; a record the server holds keeps its entry, without
    // a row, until the server is told.
    bool logDelete(Record::Entity entity, qint64 rowId, Date at, qint64 seq);

    // The engine's side.
    bool setUid(qint64 id, const QString& uid);
    // The resource at `href` is in version `etag`, with this text; whatever waits still waits.
    bool record(qint64 id, const QString& href, const QString& etag, const QString& synced);
    // Nothing waits any more, unless the record changed again after `seen` was read.
    bool settle(qint64 id, std::optional<qint64> seen);
    bool remove(qint64 id);

    // Makes the changes as one transaction: many small ones cost one write of the store.
    bool atOnce(const std::function<void()>& changes);

    QString state(const QString& key);
    bool setState(const QString& key, const QString& value);
    // The server is another, or this store's past with it no longer holds (a restore): every
    // record waits to be merged with what the server has and sent, and nothing deleted here is
    // told. UIDs stay, so that records the server knows are found again.
    bool forgetServer();

private:
    std::optional<Entry> one(const char* where, const std::function<void(Stmt&)>& bind);
    std::vector<Entry> many(const char* where);
    bool run(const char* sql, const std::function<void(Stmt&)>& bind);

    Db& m_db;
};

} // namespace lullet
