#include "core/sync/ChangeLog.h"

#include "core/dates/Clock.h"
#include "core/model/Record.h"
#include "core/store/Store.h"
#include "core/sync/SyncIdentity.h"
#include "core/sync/SyncLedger.h"

namespace lullet {

ChangeLog::ChangeLog(const Clock& clock, Store& store, QObject* parent)
    : QObject(parent)
    , m_clock(clock)
    , m_store(store)
{
}

void ChangeLog::assignUid(const Record* record, const QString& uid)
{
    m_assigned.insert(record, uid);
}

bool ChangeLog::saving(const Changes& changes)
{
    SyncLedger ledger(m_store.db());
    const Date now = m_clock.now();
    const qint64 seq = ledger.nextSequence();
    for (const Record* record : changes.inserted) {
        const QString wanted = m_assigned.value(record);
        const QString uid =
            ledger.freeUid(wanted.isEmpty() ? SyncIdentity::uidFor(*record) : wanted);
        if (!ledger.logInsert(record->entity(), record->rowId(), uid, now, seq))
            return false;
    }
    for (const Record* record : changes.updated) {
        if (!ledger.logChange(record->entity(), record->rowId(), now, seq))
            return false;
    }
    for (const Record* record : changes.deleted) {
        if (!ledger.logDelete(record->entity(), record->rowId(), now, seq))
            return false;
    }
    for (const qint64 rowId : changes.deletedHistory) {
        if (!ledger.logDelete(Record::Entity::Item, rowId, now, seq))
            return false;
    }
    m_logged = true;
    return true;
}

void ChangeLog::saved()
{
    // Kept until a save succeeds: a save that fails leaves its records to the next.
    m_assigned.clear();
    if (m_logged)
        Q_EMIT changed();
    m_logged = false;
}

} // namespace lullet
