#include "core/sync/SyncLedger.h"

#include "core/store/Db.h"
#include "core/store/Stmt.h"
#include "core/store/Transaction.h"

#include <QByteArray>

#include <functional>

namespace lullet {

namespace {

constexpr const char* entryColumns =
    "SELECT id, entity, rowId, uid, href, etag, synced, changedAt, pending FROM SyncRecord ";

SyncLedger::Entry readEntry(const Stmt& stmt)
{
    SyncLedger::Entry entry;
    entry.id = stmt.columnInt64(0);
    entry.entity = Record::Entity(stmt.columnInt(1).value_or(int(Record::Entity::Item)));
    if (!stmt.isNull(2))
        entry.rowId = stmt.columnInt64(2);
    entry.uid = stmt.columnText(3).value_or(QString());
    entry.href = stmt.columnText(4).value_or(QString());
    entry.etag = stmt.columnText(5).value_or(QString());
    entry.synced = stmt.columnText(6).value_or(QString());
    entry.changedAt = stmt.columnDate(7);
    if (!stmt.isNull(8))
        entry.pending = stmt.columnInt64(8);
    return entry;
}

std::optional<QString> orNull(const QString& text)
{
    return text.isEmpty() ? std::nullopt : std::optional<QString>(text);
}

} // namespace

SyncLedger::SyncLedger(Db& db)
    : m_db(db)
{
}

std::optional<SyncLedger::Entry> SyncLedger::one(const char* where,
                                                 const std::function<void(Stmt&)>& bind)
{
    Stmt stmt(m_db, (QByteArray(entryColumns) + where).constData());
    bind(stmt);
    if (!stmt.step())
        return std::nullopt;
    return readEntry(stmt);
}

bool SyncLedger::run(const char* sql, const std::function<void(Stmt&)>& bind)
{
    Stmt stmt(m_db, sql);
    bind(stmt);
    return stmt.run();
}

std::optional<SyncLedger::Entry> SyncLedger::byUid(const QString& uid)
{
    return one("WHERE uid = ?", [&](Stmt& s) { s.bind(0, std::optional<QString>(uid)); });
}

std::optional<SyncLedger::Entry> SyncLedger::byHref(const QString& href)
{
    return one("WHERE href = ?", [&](Stmt& s) { s.bind(0, std::optional<QString>(href)); });
}

std::optional<SyncLedger::Entry> SyncLedger::byRow(Record::Entity entity, qint64 rowId)
{
    return one("WHERE entity = ? AND rowId = ?", [&](Stmt& s) {
        s.bind(0, std::optional<int>(int(entity)));
        s.bind(1, std::optional<qint64>(rowId));
    });
}

std::vector<SyncLedger::Entry> SyncLedger::pending()
{
    return many("WHERE pending IS NOT NULL ORDER BY entity, id");
}

bool SyncLedger::adoptUnknownRows()
{
    return m_db.exec(
        "INSERT INTO SyncRecord (entity, rowId, pending) SELECT 0, id, 0 FROM Project WHERE id "
        "NOT IN (SELECT rowId FROM SyncRecord WHERE entity = 0 AND rowId IS NOT NULL); "
        "INSERT INTO SyncRecord (entity, rowId, pending) SELECT 1, id, 0 FROM RepeatReminderInfo "
        "WHERE id NOT IN (SELECT rowId FROM SyncRecord WHERE entity = 1 AND rowId IS NOT NULL); "
        "INSERT INTO SyncRecord (entity, rowId, pending) SELECT 2, id, 0 FROM ReminderInfo WHERE "
        "id NOT IN (SELECT rowId FROM SyncRecord WHERE entity = 2 AND rowId IS NOT NULL);");
}

std::vector<SyncLedger::Entry> SyncLedger::withoutUid()
{
    return many("WHERE uid IS NULL AND rowId IS NOT NULL ORDER BY entity, rowId");
}

std::vector<SyncLedger::Entry> SyncLedger::many(const char* where)
{
    Stmt stmt(m_db, (QByteArray(entryColumns) + where).constData());
    std::vector<Entry> entries;
    while (stmt.step())
        entries.push_back(readEntry(stmt));
    return entries;
}

bool SyncLedger::hasPending()
{
    return m_db.queryInt("SELECT EXISTS (SELECT 1 FROM SyncRecord WHERE pending IS NOT NULL)")
               .value_or(0) != 0;
}

QHash<QString, QString> SyncLedger::etags()
{
    Stmt stmt(m_db, "SELECT href, etag FROM SyncRecord WHERE href IS NOT NULL");
    QHash<QString, QString> known;
    while (stmt.step())
        known.insert(*stmt.columnText(0), stmt.columnText(1).value_or(QString()));
    return known;
}

QString SyncLedger::freeUid(const QString& wanted)
{
    Stmt taken(m_db, "SELECT EXISTS (SELECT 1 FROM SyncRecord WHERE uid = ?)");
    QString uid = wanted;
    for (int n = 2;; ++n) {
        taken.bind(0, std::optional<QString>(uid));
        const bool used = taken.step() && taken.columnInt(0).value_or(0) != 0;
        taken.reset();
        if (!used)
            return uid;
        uid = wanted + QLatin1Char('-') + QString::number(n);
    }
}

qint64 SyncLedger::nextSequence()
{
    return m_db.queryInt("SELECT coalesce(max(pending), 0) + 1 FROM SyncRecord").value_or(1);
}

bool SyncLedger::logInsert(Record::Entity entity, qint64 rowId, const QString& uid, Date at,
                           qint64 seq)
{
    return run("INSERT INTO SyncRecord (entity, rowId, uid, changedAt, pending) "
               "VALUES (?, ?, ?, ?, ?)",
               [&](Stmt& s) {
                   s.bind(0, std::optional<int>(int(entity)));
                   s.bind(1, std::optional<qint64>(rowId));
                   s.bind(2, std::optional<QString>(uid));
                   s.bind(3, std::optional<Date>(at));
                   s.bind(4, std::optional<qint64>(seq));
               });
}

bool SyncLedger::logChange(Record::Entity entity, qint64 rowId, Date at, qint64 seq)
{
    // A record older than the ledger gets its entry now.
    return run("INSERT INTO SyncRecord (entity, rowId, changedAt, pending) VALUES (?, ?, ?, ?) "
               "ON CONFLICT (entity, rowId) DO UPDATE SET changedAt = excluded.changedAt, "
               "pending = excluded.pending",
               [&](Stmt& s) {
                   s.bind(0, std::optional<int>(int(entity)));
                   s.bind(1, std::optional<qint64>(rowId));
                   s.bind(2, std::optional<Date>(at));
                   s.bind(3, std::optional<qint64>(seq));
               });
}

bool SyncLedger::logDelete(Record::Entity entity, qint64 rowId, Date at, qint64 seq)
{
    const auto bindRow = [&](Stmt& s, int from) {
        s.bind(from, std::optional<int>(int(entity)));
        s.bind(from + 1, std::optional<qint64>(rowId));
    };
    return run("DELETE FROM SyncRecord WHERE entity = ? AND rowId = ? AND href IS NULL",
               [&](Stmt& s) { bindRow(s, 0); }) &&
           run("UPDATE SyncRecord SET rowId = NULL, changedAt = ?, pending = ? "
               "WHERE entity = ? AND rowId = ?",
               [&](Stmt& s) {
                   s.bind(0, std::optional<Date>(at));
                   s.bind(1, std::optional<qint64>(seq));
                   bindRow(s, 2);
               });
}

bool SyncLedger::setUid(qint64 id, const QString& uid)
{
    return run("UPDATE SyncRecord SET uid = ? WHERE id = ?", [&](Stmt& s) {
        s.bind(0, std::optional<QString>(uid));
        s.bind(1, std::optional<qint64>(id));
    });
}

bool SyncLedger::record(qint64 id, const QString& href, const QString& etag, const QString& synced)
{
    return run("UPDATE SyncRecord SET href = ?, etag = ?, synced = ? WHERE id = ?", [&](Stmt& s) {
        s.bind(0, orNull(href));
        s.bind(1, orNull(etag));
        s.bind(2, orNull(synced));
        s.bind(3, std::optional<qint64>(id));
    });
}

bool SyncLedger::settle(qint64 id, std::optional<qint64> seen)
{
    return run("UPDATE SyncRecord SET pending = NULL WHERE id = ? AND pending IS ?", [&](Stmt& s) {
        s.bind(0, std::optional<qint64>(id));
        s.bind(1, seen);
    });
}

bool SyncLedger::remove(qint64 id)
{
    return run("DELETE FROM SyncRecord WHERE id = ?",
               [&](Stmt& s) { s.bind(0, std::optional<qint64>(id)); });
}

bool SyncLedger::atOnce(const std::function<void()>& changes)
{
    Transaction txn(m_db);
    changes();
    return !txn.isActive() || txn.commit();
}

QString SyncLedger::state(const QString& key)
{
    Stmt stmt(m_db, "SELECT value FROM SyncState WHERE key = ?");
    stmt.bind(0, std::optional<QString>(key));
    return stmt.step() ? stmt.columnText(0).value_or(QString()) : QString();
}

bool SyncLedger::setState(const QString& key, const QString& value)
{
    // A sync that changed nothing writes nothing.
    if (state(key) == value)
        return true;
    return run("INSERT INTO SyncState (key, value) VALUES (?, ?) "
               "ON CONFLICT (key) DO UPDATE SET value = excluded.value",
               [&](Stmt& s) {
                   s.bind(0, std::optional<QString>(key));
                   s.bind(1, std::optional<QString>(value));
               });
}

bool SyncLedger::forgetServer()
{
    Transaction txn(m_db);
    return txn.isActive() &&
           m_db.exec("DELETE FROM SyncRecord WHERE rowId IS NULL; "
                     "UPDATE SyncRecord SET href = NULL, etag = NULL, synced = NULL, "
                     "pending = coalesce(pending, 0); "
                     "DELETE FROM SyncState;") &&
           txn.commit();
}

} // namespace lullet
