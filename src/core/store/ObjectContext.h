#pragma once

#include "core/model/Item.h"
#include "core/model/Project.h"
#include "core/model/Rule.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace lullet {

class Db;
class SaveObserver;
class Stmt;
class StringPool;

// The one object context of the application: an identity map over the store that owns every
// record for the whole run, tracks inserts, changes and deletes, and writes them all in one
// transaction on save(). A change is visible to everyone holding the record at once, before any
// save. Belongs to the main thread.
class ObjectContext {
public:
    explicit ObjectContext(Db& db);
    ~ObjectContext();
    ObjectContext(const ObjectContext&) = delete;
    ObjectContext& operator=(const ObjectContext&) = delete;

    // Reads the records of the store. False on a read error; errorCode() tells which.
    // With `historyBefore`, the history stays on disk until asked for: items finished, not
    // started, and dated before it. A store of years holds tens of thousands of them, and the
    // day's work needs none.
    bool load(std::optional<Date> historyBefore = std::nullopt);
    bool isLoaded() const { return m_loaded; }

    // Whether the history stays on disk (HistoryOnDisk reads it), not among items().
    bool holdsHistory() const { return m_historyBefore.has_value(); }
    // Changes whenever the history on disk does as a whole: at a load, a reset, or a save that
    // deleted a project's.
    quint32 historyVersion() const { return m_historyVersion; }
    // The rows of the items in memory, deleted ones not yet saved among them: none of them is
    // the history's any more.
    QSet<qint64> itemRowIds() const;
    // The project's history on disk goes with the next save, in its transaction.
    void deleteHistoryOf(const Project& project);

    // Every live record of one entity, in store order; loads the store on first use.
    const std::vector<Project*>& projects();
    const std::vector<Rule*>& rules();
    const std::vector<Item*>& items();

    Project* insertProject();
    Rule* insertRule();
    // A new item starts unfinished: lists compare hasFinished with false.
    Item* insertItem();
    // Takes the record out of the data. Its memory stays valid, flagged as deleted.
    void deleteObject(Record* record);

    // Told of every save from now on; nullptr for none.
    void setSaveObserver(SaveObserver* observer) { m_observer = observer; }

    bool hasChanges() const;
    // Writes every change in one transaction. On failure nothing is written, the changes stay
    // here for the next try, and errorMessage() says why.
    bool save();
    // Forgets every record, as after the store file was replaced: records lose their context and
    // the next read loads the store again. Unsaved changes are dropped.
    void reset();

    int errorCode() const { return m_errorCode; }
    QString errorMessage() const { return m_errorMessage; }

private:
    friend class Record;
    friend class HistoryOnDisk;
    void recordChanged(Record* record);
    template <class T> T* adopt(std::vector<T*>& live);
    QHash<qint64, Project*> projectsByRowId() const;
    static void linkToProject(Item& item, const Stmt& stmt, int column,
                              const QHash<qint64, Project*>& projects);
    bool fail();
    bool writeInserts();
    bool writeUpdates();
    bool writeDeletes();
    // Appends the rows of history it deletes to `deleted`.
    bool writeHistoryDeletes(std::vector<qint64>& deleted);

    Db& m_db;
    SaveObserver* m_observer = nullptr;
    bool m_loaded = false;
    std::optional<Date> m_historyBefore;
    // Rows of projects whose history on disk the next save deletes.
    std::vector<qint64> m_historyDeletes;
    quint32 m_historyVersion = 0;
    std::vector<std::unique_ptr<Record>> m_owned;
    std::vector<Project*> m_projects;
    std::vector<Rule*> m_rules;
    std::vector<Item*> m_reminders;
    std::vector<Record*> m_inserted;
    std::vector<Record*> m_updated;
    std::vector<Record*> m_deleted;
    int m_errorCode = 0;
    QString m_errorMessage;
};

} // namespace lullet
