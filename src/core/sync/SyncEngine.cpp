#include "core/sync/SyncEngine.h"

#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/store/Store.h"
#include "core/sync/ChangeLog.h"
#include "core/sync/RecordFields.h"
#include "core/sync/SyncIdentity.h"
#include "core/sync/SyncMerge.h"
#include "core/sync/VTodo.h"

#include <QSet>

#include <algorithm>

namespace lullet {

namespace {

using Problem = CalDavClient::Problem;

constexpr int fetchBatch = 100;
constexpr std::size_t entriesPerChunk = 2000;
constexpr std::size_t writtenPerRecord = 100;

const QString sourceKey = QStringLiteral("source");
const QString collectionKey = QStringLiteral("collection");
const QString methodKey = QStringLiteral("method");
const QString tokenKey = QStringLiteral("syncToken");
const QString ctagKey = QStringLiteral("ctag");
const QString byCtag = QStringLiteral("ctag");

QJsonObject fieldsOfText(const QString& text)
{
    if (text.isEmpty())
        return {};
    const std::optional<VTodo::Read> read = VTodo::read(text.toUtf8());
    return read ? read->fields : QJsonObject();
}

// Projects first, then rules, then items: an item finds the project it belongs to.
int orderOf(const QJsonObject& fields)
{
    return int(RecordFields::kindOf(fields).value_or(Record::Entity::Item));
}

} // namespace

struct SyncEngine::Incoming {
    QString href;
    QString etag;
    QString text;
    VTodo::Read read;
    std::optional<SyncLedger::Entry> entry;
    // Set once applied: the record made here, and whether the merge must go back.
    Record* made = nullptr;
    bool send = false;
    bool skipped = false;
};

SyncEngine::SyncEngine(const Services& services, const QUrl& source, const QString& account,
                       QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_source(source)
    , m_account(account)
    , m_ledger(services.store.db())
    , m_dav(services.port)
    , m_local(services.library, services.changeLog, m_ledger)
    , m_requests(services.port, [this] { finish(); })
{
}

SyncEngine::~SyncEngine() = default;

void SyncEngine::fail(const Outcome& outcome)
{
    if (m_requests.isStopped())
        return;
    m_result.problem = outcome.problem;
    m_result.detail = outcome.detail;
    m_requests.stop();
}

void SyncEngine::abort()
{
    fail({Problem::Aborted, {}});
}

void SyncEngine::finish()
{
    if (!m_requests.isIdle() || m_finished)
        return;
    m_finished = true;
    recordWritten();
    Q_EMIT finished(m_result);
}

void SyncEngine::run()
{
    // Everything this store knew of another server, or of this one as another user, is moot.
    if (m_ledger.state(sourceKey) != m_account) {
        m_ledger.forgetServer();
        m_ledger.setState(sourceKey, m_account);
    }
    // Whatever the store saved is what goes.
    if (!m_services.library.save()) {
        m_result.saveFailed = true;
        finish();
        return;
    }
    assignMissingUids();
    start();
}

// Records older than the ledger get their UIDs before anything comes from the server, so that
// those the server already has from another store are found, not made twice.
void SyncEngine::assignMissingUids()
{
    std::vector<SyncLedger::Entry> missing = m_ledger.withoutUid();
    QSet<qint64> onDisk;
    for (SyncLedger::Entry& entry : missing) {
        if (Record* record = m_local.recordOf(entry))
            giveUid(entry, SyncIdentity::uidFor(*record));
        else if (entry.entity == Record::Entity::Item)
            onDisk.insert(*entry.rowId);
    }
    const QHash<qint64, LocalRecords::OnDisk> disk = m_local.onDisk(onDisk);
    m_ledger.atOnce([&] {
        for (SyncLedger::Entry& entry : missing) {
            if (entry.uid.isEmpty() && entry.entity == Record::Entity::Item &&
                disk.contains(*entry.rowId))
                giveUid(entry, disk[*entry.rowId].uid);
        }
    });
}

void SyncEngine::start()
{
    const QString known = m_ledger.state(collectionKey);
    if (!known.isEmpty()) {
        m_collection = QUrl(known);
        readChanges();
        return;
    }
    m_dav.discover(m_source, m_requests.answer([this](const Outcome& outcome,
                                                      const CalDavClient::Collection& found) {
        if (!outcome.ok()) {
            fail(outcome);
            return;
        }
        m_collection = found.url;
        m_ledger.setState(collectionKey, found.url.toString());
        m_ledger.setState(methodKey, found.syncReport ? QString() : byCtag);
        readChanges();
    }));
}

void SyncEngine::readChanges()
{
    if (m_ledger.state(methodKey) == byCtag) {
        readByCtag();
        return;
    }
    const QString token = m_ledger.state(tokenKey);
    m_dav.changesSince(m_collection, token,
                       m_requests.answer([this, token](const Outcome& outcome,
                                                       const CalDavClient::Changes& changes) {
                           if (outcome.problem == Problem::TokenExpired && !token.isEmpty()) {
                               m_ledger.setState(tokenKey, QString());
                               readChanges();
                               return;
                           }
                           if (outcome.problem == Problem::Refused && token.isEmpty()) {
                               // No sync reports here after all: the ctag will do.
                               m_ledger.setState(methodKey, byCtag);
                               readByCtag();
                               return;
                           }
                           if (outcome.problem == Problem::NotFound)
                               m_ledger.setState(collectionKey, QString());
                           if (!outcome.ok()) {
                               fail(outcome);
                               return;
                           }
                           m_newToken = changes.token;
                           m_result.again = changes.truncated;
                           // From no token the answer lists every member: what it lacks is gone.
                           if (token.isEmpty() && !changes.truncated) {
                               compare(changes.changed);
                               return;
                           }
                           m_removed = changes.removed;
                           QStringList wanted;
                           for (const CalDavClient::Member& member : changes.changed) {
                               const std::optional<SyncLedger::Entry> known =
                                   m_ledger.byHref(member.href);
                               if (!known || known->etag != member.etag)
                                   wanted.append(member.href);
                           }
                           fetch(wanted);
                       }));
}

void SyncEngine::readByCtag()
{
    m_dav.ctag(m_collection, m_requests.answer([this](const Outcome& outcome, const QString& ctag) {
        if (!outcome.ok()) {
            fail(outcome);
            return;
        }
        m_newCtag = ctag;
        if (!ctag.isEmpty() && ctag == m_ledger.state(ctagKey)) {
            applyRemote();
            return;
        }
        m_dav.members(m_collection,
                      m_requests.answer([this](const Outcome& listed,
                                               const std::vector<CalDavClient::Member>& members) {
                          if (listed.ok())
                              compare(members);
                          else
                              fail(listed);
                      }));
    }));
}

// A full listing: what is new or changed is fetched, what is no longer there was removed.
void SyncEngine::compare(const std::vector<CalDavClient::Member>& members)
{
    QHash<QString, QString> known = m_ledger.etags();
    QStringList wanted;
    for (const CalDavClient::Member& member : members) {
        if (known.take(member.href) != member.etag)
            wanted.append(member.href);
    }
    m_removed = known.keys();
    fetch(wanted);
}

void SyncEngine::fetch(const QStringList& hrefs)
{
    for (qsizetype at = 0; at < hrefs.size(); at += fetchBatch) {
        const QStringList batch = hrefs.mid(at, fetchBatch);
        m_requests.add([this, batch] {
            m_dav.fetch(m_collection, batch,
                        m_requests.answer([this](const Outcome& outcome,
                                                 const std::vector<DavXml::Resource>& found) {
                            if (!outcome.ok()) {
                                fail(outcome);
                                return;
                            }
                            for (const DavXml::Resource& r : found)
                                m_incoming.push_back({r.href,
                                                      r.etag,
                                                      QString::fromUtf8(r.calendarData),
                                                      {},
                                                      {},
                                                      nullptr,
                                                      false,
                                                      false});
                            m_requests.run();
                        }));
        });
    }
    m_requests.run([this] { applyRemote(); });
}

void SyncEngine::applyRemote()
{
    // What can't be read as a to-do is left on the server as it is.
    std::vector<Incoming> readable;
    std::vector<SyncLedger::Entry> entries;
    for (Incoming& incoming : m_incoming) {
        std::optional<VTodo::Read> read = VTodo::read(incoming.text.toUtf8());
        if (!read) {
            ++m_result.unreadable;
            continue;
        }
        incoming.read = std::move(*read);
        incoming.entry = m_ledger.byUid(incoming.read.uid);
        if (!incoming.entry)
            incoming.entry = m_ledger.byHref(incoming.href);
        if (incoming.entry)
            entries.push_back(*incoming.entry);
        readable.push_back(std::move(incoming));
    }
    m_incoming = std::move(readable);
    std::stable_sort(m_incoming.begin(), m_incoming.end(), [](const auto& a, const auto& b) {
        return orderOf(a.read.fields) < orderOf(b.read.fields);
    });
    m_local.bringIn(entries);
    {
        const Library::Batch news(m_services.library);
        for (Incoming& incoming : m_incoming)
            m_result.received += applyOne(incoming) ? 1 : 0;
        for (const QString& href : m_removed)
            applyRemoval(href);
    }
    if (!settleIncoming())
        return;
    // A change left for later must be seen again: without a token the next pass compares all.
    const bool leftSome = std::any_of(m_incoming.begin(), m_incoming.end(),
                                      [](const Incoming& incoming) { return incoming.skipped; });
    m_ledger.setState(tokenKey, leftSome ? QString() : m_newToken);
    m_ledger.setState(ctagKey, leftSome ? QString() : m_newCtag);
    m_incoming.clear();
    upload();
}

// Answers whether the record here changed.
bool SyncEngine::applyOne(Incoming& incoming)
{
    const QJsonObject& theirs = incoming.read.fields;
    std::optional<SyncLedger::Entry>& entry = incoming.entry;
    Record* record = entry ? m_local.recordOf(*entry) : nullptr;
    if (entry && entry->rowId && !record) {
        // Out of reach for now (deleted here since, or unreadable): the next pass sees to it.
        incoming.skipped = true;
        return false;
    }
    if (!record) {
        // New here, or deleted here and changed there: a record changed on one side is kept.
        if (entry)
            m_ledger.remove(entry->id);
        entry.reset();
        incoming.made = m_local.make(theirs, incoming.read.uid);
        return true;
    }
    const QJsonObject base = fieldsOfText(entry->synced);
    const QJsonObject ours = m_local.fieldsOf(*record, base);
    QJsonObject merged = theirs;
    if (entry->pending)
        merged =
            SyncMerge::merge(base, {ours, entry->changedAt}, {theirs, incoming.read.lastModified});
    incoming.send = merged != theirs;
    if (merged == ours)
        return false;
    m_local.change(*record, merged);
    return true;
}

void SyncEngine::applyRemoval(const QString& href)
{
    const std::optional<SyncLedger::Entry> entry = m_ledger.byHref(href);
    if (!entry)
        return;
    Record* record = m_local.recordOf(*entry);
    // Without its resource the entry is no longer the server's: a record deleted here goes
    // unannounced, a record changed here goes back as new.
    m_ledger.record(entry->id, {}, {}, {});
    if (!record) {
        m_ledger.remove(entry->id);
        return;
    }
    const QJsonObject base = fieldsOfText(entry->synced);
    if (!entry->pending || SyncMerge::onlyRan(base, m_local.fieldsOf(*record, base))) {
        m_local.remove(*record);
        ++m_result.received;
    }
}

// Saves what came, then records what the two sides now agree on.
bool SyncEngine::settleIncoming()
{
    if (!m_services.library.save()) {
        m_result.saveFailed = true;
        m_requests.stop();
        return false;
    }
    m_ledger.atOnce([this] {
        for (const Incoming& incoming : m_incoming) {
            if (incoming.skipped)
                continue;
            std::optional<SyncLedger::Entry> now =
                incoming.made ? m_ledger.byRow(incoming.made->entity(), incoming.made->rowId())
                              : m_ledger.byUid(incoming.read.uid);
            if (!now)
                now = m_ledger.byHref(incoming.href);
            if (!now)
                continue;
            m_ledger.record(now->id, incoming.href, incoming.etag, incoming.text);
            if (!incoming.send)
                m_ledger.settle(now->id, now->pending);
        }
    });
    return true;
}

void SyncEngine::upload()
{
    m_pending = m_ledger.pending();
    m_nextPending = 0;
    // Projects and rules first, each with its UID: the items name their project by it.
    for (SyncLedger::Entry& entry : m_pending) {
        if (entry.entity == Record::Entity::Item || !entry.uid.isEmpty())
            continue;
        if (Record* record = m_local.recordOf(entry))
            giveUid(entry, SyncIdentity::uidFor(*record));
    }
    uploadChunk();
}

void SyncEngine::giveUid(SyncLedger::Entry& entry, const QString& derived)
{
    entry.uid = m_ledger.freeUid(derived);
    m_ledger.setUid(entry.id, entry.uid);
}

// The waiting changes go a chunk at a time: the history on disk is passed over once a chunk.
void SyncEngine::uploadChunk()
{
    recordWritten();
    if (m_nextPending >= m_pending.size()) {
        finish();
        return;
    }
    // Records may have been made meanwhile.
    m_local.refresh();
    const std::size_t end = std::min(m_pending.size(), m_nextPending + entriesPerChunk);
    QSet<qint64> onDisk;
    for (std::size_t i = m_nextPending; i < end; ++i) {
        const SyncLedger::Entry& entry = m_pending[i];
        if (entry.rowId && !m_local.recordOf(entry) && entry.entity == Record::Entity::Item)
            onDisk.insert(*entry.rowId);
    }
    const QHash<qint64, LocalRecords::OnDisk> disk = m_local.onDisk(onDisk);
    m_ledger.atOnce([&] {
        for (; m_nextPending < end; ++m_nextPending) {
            SyncLedger::Entry& entry = m_pending[m_nextPending];
            if (!entry.rowId) {
                sendDeletion(entry);
            } else if (Record* record = m_local.recordOf(entry)) {
                if (entry.uid.isEmpty())
                    giveUid(entry, SyncIdentity::uidFor(*record));
                put(entry, m_local.fieldsOf(*record, fieldsOfText(entry.synced)), entry.uid);
            } else if (disk.contains(*entry.rowId)) {
                const LocalRecords::OnDisk& item = disk[*entry.rowId];
                if (entry.uid.isEmpty())
                    giveUid(entry, item.uid);
                put(entry, item.fields, entry.uid);
            }
            // Anything else is deleted here and not saved yet: its deletion goes next time.
        }
    });
    m_requests.run([this] { uploadChunk(); });
}

void SyncEngine::put(const SyncLedger::Entry& entry, const QJsonObject& fields, const QString& uid)
{
    const QString href = entry.href.isEmpty()
                             ? m_collection.path(QUrl::FullyDecoded) + uid + QStringLiteral(".ics")
                             : entry.href;
    const QByteArray text =
        VTodo::write({uid, fields, entry.changedAt.value_or(m_services.clock.now()),
                      m_local.projectName(fields)},
                     entry.synced.toUtf8());
    // A resource whose version isn't known is written only if it isn't there.
    const QString etag = entry.href.isEmpty() ? QString() : entry.etag;
    m_requests.add([this, entry, href, text, etag] {
        m_dav.put(CalDavClient::urlOf(m_collection, href), text, etag,
                  m_requests.answer(
                      [this, entry, href, text](const Outcome& outcome, const QString& newTag) {
                          afterWrite(outcome, [this, entry, href, newTag, text] {
                              m_ledger.record(entry.id, href, newTag, QString::fromUtf8(text));
                              m_ledger.settle(entry.id, entry.pending);
                          });
                      }));
    });
}

void SyncEngine::compareAllNextTime()
{
    m_ledger.setState(tokenKey, QString());
    m_ledger.setState(ctagKey, QString());
    m_result.again = true;
}

void SyncEngine::sendDeletion(const SyncLedger::Entry& entry)
{
    if (entry.href.isEmpty()) {
        m_ledger.remove(entry.id);
        return;
    }
    m_requests.add([this, entry] {
        m_dav.remove(CalDavClient::urlOf(m_collection, entry.href), entry.etag,
                     m_requests.answer([this, entry](const Outcome& outcome) {
                         // Changed there meanwhile, it comes back here at the next pass.
                         if (outcome.problem == Problem::Conflict)
                             m_ledger.remove(entry.id);
                         afterWrite(outcome, [this, entry] { m_ledger.remove(entry.id); });
                     }));
    });
}

// What the server took is recorded a batch at a time: should the program end before, the next
// sync finds those resources there and only confirms them.
void SyncEngine::recordWritten()
{
    if (m_written.empty())
        return;
    m_ledger.atOnce([this] {
        for (const std::function<void()>& record : m_written)
            record();
    });
    m_written.clear();
}

// The answer to a write: done, left to the next pass (changed there meanwhile), or refused and
// left waiting here; anything else ends the sync.
void SyncEngine::afterWrite(const Outcome& outcome, std::function<void()> written)
{
    if (outcome.ok()) {
        m_written.push_back(std::move(written));
        if (m_written.size() >= writtenPerRecord)
            recordWritten();
        ++m_result.sent;
    } else if (outcome.problem == Problem::Conflict) {
        compareAllNextTime();
    } else if (outcome.problem == Problem::Refused) {
        ++m_result.refused;
    } else {
        fail(outcome);
        return;
    }
    m_requests.run();
}

} // namespace lullet
