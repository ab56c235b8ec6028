#pragma once

#include "core/sync/SyncLedger.h"

#include <QHash>
#include <QJsonObject>
#include <QSet>
#include <QString>

#include <functional>
#include <vector>

namespace lullet {

class ChangeLog;
class Library;
class Project;
class Record;

// This store's side of synchronisation: the record each ledger entry stands for, a record's
// fields, and the records made, changed and deleted as the server says. The one place where
// synchronisation reaches the history on disk: an item there is read in alone when the server
// changes it, and the history is only passed over, never kept, when its items are sent.
class LocalRecords {
public:
    LocalRecords(Library& library, ChangeLog& changeLog, SyncLedger& ledger);

    // Looks at the records in memory again, as they may have changed since.
    void refresh();
    // Reads in the items of these entries that are still on disk.
    void bringIn(const std::vector<SyncLedger::Entry>& entries);
    // The record of the entry, in memory; none for a record deleted or still on disk.
    Record* recordOf(const SyncLedger::Entry& entry);

    struct OnDisk {
        QJsonObject fields;
        // The UID the item would be given.
        QString uid;
    };
    // The fields of these items of the history still on disk, by row.
    QHash<qint64, OnDisk> onDisk(const QSet<qint64>& rowIds);

    // The record's fields. An item in a project unknown here keeps its link from `base`: it is
    // none of this store's business.
    QJsonObject fieldsOf(const Record& record, const QJsonObject& base = {});
    QString projectName(const QJsonObject& fields);

    // A record made from the server's fields; it keeps the server's UID.
    Record* make(const QJsonObject& fields, const QString& uid);
    void change(Record& record, const QJsonObject& fields);
    // Deletes the record here; an item that runs stops.
    void remove(Record& record);

private:
    QString uidOf(const Project* project);
    Project* projectOf(const QString& uid);

    Library& m_library;
    ChangeLog& m_changeLog;
    SyncLedger& m_ledger;
    bool m_indexed = false;
    QHash<QPair<int, qint64>, Record*> m_byRow;
    // Records made in this pass, by their UID, and the UID of each record known so far.
    QHash<QString, Record*> m_made;
    QHash<const Record*, QString> m_uids;
};

} // namespace lullet
