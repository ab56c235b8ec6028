#include "core/store/ObjectContext.h"

#include "core/store/Db.h"
#include "core/store/HistoryOnDisk.h"
#include "core/store/RecordSql.h"
#include "core/store/SaveObserver.h"
#include "core/store/Stmt.h"
#include "core/store/StringPool.h"
#include "core/store/Transaction.h"

#include <QByteArray>
#include <QHash>

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <optional>

namespace lullet {

namespace {

// Calls f with the record as its own type.
template <class F> bool visit(Record* record, F&& f)
{
    switch (record->entity()) {
    case Record::Entity::Project:
        return f(*static_cast<Project*>(record));
    case Record::Entity::Rule:
        return f(*static_cast<Rule*>(record));
    case Record::Entity::Item:
        return f(*static_cast<Item*>(record));
    }
    return false;
}

template <class T> void eraseFrom(std::vector<T*>& list, Record* record)
{
    const auto it = std::find(list.begin(), list.end(), record);
    if (it != list.end())
        list.erase(it);
}

} // namespace

void Record::changed()
{
    if (m_context && !m_deleted)
        m_context->recordChanged(this);
}

ObjectContext::ObjectContext(Db& db)
    : m_db(db)
{
}

ObjectContext::~ObjectContext() = default;

bool ObjectContext::fail()
{
    m_errorCode = m_db.isOutOfSpace() ? SQLITE_FULL : m_db.errorCode();
    m_errorMessage = m_db.errorMessage();
    return false;
}

template <class T> T* ObjectContext::adopt(std::vector<T*>& live)
{
    auto owned = std::make_unique<T>();
    T* record = owned.get();
    record->m_context = this;
    m_owned.push_back(std::move(owned));
    live.push_back(record);
    return record;
}

bool ObjectContext::load(std::optional<Date> historyBefore)
{
    if (m_loaded)
        return true;
    m_historyBefore = historyBefore;
    StringPool pool;

    const auto loadTable = [this, &pool](auto& live, const QByteArray& sql, auto&& extra) {
        using T = std::remove_pointer_t<typename std::decay_t<decltype(live)>::value_type>;
        Stmt stmt(m_db, sql.constData());
        if (!stmt.isValid())
            return false;
        if constexpr (std::is_same_v<T, Item>) {
            if (m_historyBefore)
                HistoryOnDisk::bindBounds(stmt, *m_historyBefore);
        }
        while (stmt.step()) {
            T* record = adopt(live);
            record->m_rowId = stmt.columnInt64(0);
            extra(record, stmt, RecordSql::readColumns(stmt, *record, pool));
        }
        return !stmt.failed();
    };
    const auto nothingMore = [](auto*, const Stmt&, int) {};

    bool ok =
        loadTable(m_projects, "SELECT id, " + RecordSql::columnList<Project>() + " FROM Project",
                  nothingMore) &&
        loadTable(m_rules,
                  "SELECT id, " + RecordSql::columnList<Rule>() + " FROM RepeatReminderInfo",
                  nothingMore);
    if (ok) {
        QByteArray items = "SELECT id, " + RecordSql::columnList<Item>() + " FROM ReminderInfo";
        if (m_historyBefore)
            items += QByteArray(" WHERE NOT coalesce(") + HistoryOnDisk::condition + ", 0)";
        const QHash<qint64, Project*> projects = projectsByRowId();
        ok = loadTable(m_reminders, items, [&](Item* item, const Stmt& stmt, int link) {
            linkToProject(*item, stmt, link, projects);
        });
    }
    if (!ok) {
        fail();
        reset();
        return false;
    }
    m_loaded = true;
    ++m_historyVersion;
    return true;
}

QHash<qint64, Project*> ObjectContext::projectsByRowId() const
{
    QHash<qint64, Project*> byRowId;
    for (Project* project : m_projects)
        byRowId.insert(project->rowId(), project);
    return byRowId;
}

void ObjectContext::linkToProject(Item& item, const Stmt& stmt, int column,
                                  const QHash<qint64, Project*>& projects)
{
    if (stmt.isNull(column))
        return;
    if (Project* project = projects.value(stmt.columnInt64(column))) {
        item.m_toProject = project;
        project->m_toReminders.push_back(&item);
    }
}

QSet<qint64> ObjectContext::itemRowIds() const
{
    // Records of a store read before a reset are no longer ours, and their rows are another
    // file's; deleted ones not yet saved still are.
    QSet<qint64> ids;
    for (const auto& record : m_owned) {
        if (record->m_context == this && record->entity() == Record::Entity::Item &&
            record->m_rowId)
            ids.insert(record->m_rowId);
    }
    return ids;
}

const std::vector<Project*>& ObjectContext::projects()
{
    load(m_historyBefore);
    return m_projects;
}

const std::vector<Rule*>& ObjectContext::rules()
{
    load(m_historyBefore);
    return m_rules;
}

const std::vector<Item*>& ObjectContext::items()
{
    load(m_historyBefore);
    return m_reminders;
}

Project* ObjectContext::insertProject()
{
    load(m_historyBefore);
    Project* p = adopt(m_projects);
    p->m_inserted = true;
    m_inserted.push_back(p);
    return p;
}

Rule* ObjectContext::insertRule()
{
    load(m_historyBefore);
    Rule* r = adopt(m_rules);
    r->m_inserted = true;
    m_inserted.push_back(r);
    return r;
}

Item* ObjectContext::insertItem()
{
    load(m_historyBefore);
    Item* r = adopt(m_reminders);
    r->m_inserted = true;
    r->loadFlag(Item::HasFinished, false);
    m_inserted.push_back(r);
    return r;
}

void ObjectContext::recordChanged(Record* record)
{
    if (record->m_inserted || record->m_updated)
        return;
    record->m_updated = true;
    m_updated.push_back(record);
}

void ObjectContext::deleteObject(Record* record)
{
    if (!record || record->m_context != this || record->m_deleted)
        return;
    record->m_deleted = true;
    switch (record->entity()) {
    case Record::Entity::Project: {
        auto* project = static_cast<Project*>(record);
        // The items stay; they only leave the project.
        for (Item* item : std::vector<Item*>(project->m_toReminders))
            item->setToProject(nullptr);
        eraseFrom(m_projects, record);
        break;
    }
    case Record::Entity::Rule:
        eraseFrom(m_rules, record);
        break;
    case Record::Entity::Item:
        static_cast<Item*>(record)->setToProject(nullptr);
        eraseFrom(m_reminders, record);
        break;
    }
    eraseFrom(m_updated, record);
    record->m_updated = false;
    if (record->m_inserted) {
        eraseFrom(m_inserted, record);
        record->m_inserted = false;
        record->m_context = nullptr;
    } else {
        m_deleted.push_back(record);
    }
}

bool ObjectContext::hasChanges() const
{
    return !m_inserted.empty() || !m_updated.empty() || !m_deleted.empty() ||
           !m_historyDeletes.empty();
}

void ObjectContext::deleteHistoryOf(const Project& project)
{
    // A project never saved has no history on disk.
    if (m_historyBefore && project.rowId())
        m_historyDeletes.push_back(project.rowId());
}

bool ObjectContext::writeHistoryDeletes(std::vector<qint64>& deleted)
{
    if (m_historyDeletes.empty())
        return true;
    // After the updates: an item moved out of the project meanwhile is no longer its own. The
    // rows go with their ids, which those who keep track of deletions are told.
    const QByteArray sql = QByteArray("DELETE FROM ReminderInfo WHERE ") +
                           HistoryOnDisk::condition + " AND toProject = ?3 RETURNING id";
    Stmt stmt(m_db, sql.constData());
    for (const qint64 project : m_historyDeletes) {
        HistoryOnDisk::bindBounds(stmt, *m_historyBefore);
        stmt.bind(2, std::optional<qint64>(project));
        while (stmt.step())
            deleted.push_back(stmt.columnInt64(0));
        if (stmt.failed())
            return false;
        stmt.reset();
    }
    return true;
}

bool ObjectContext::writeInserts()
{
    // Projects first, so that items can refer to their rows.
    std::vector<Record*> ordered(m_inserted);
    std::stable_sort(ordered.begin(), ordered.end(), [](const Record* a, const Record* b) {
        return int(a->entity()) < int(b->entity());
    });
    std::array<std::optional<Stmt>, 3> statements;
    for (Record* record : ordered) {
        const bool ok = visit(record, [&](auto& typed) {
            using T = std::decay_t<decltype(typed)>;
            auto& stmt = statements[std::size_t(record->entity())];
            if (!stmt)
                stmt.emplace(
                    m_db,
                    RecordSql::insertSql<T>(RecordSql::tableOf(record->entity())).constData());
            RecordSql::bindAll(*stmt, typed);
            return stmt->run();
        });
        if (!ok)
            return false;
        record->m_rowId = sqlite3_last_insert_rowid(m_db.handle());
    }
    return true;
}

bool ObjectContext::writeUpdates()
{
    std::array<std::optional<Stmt>, 3> statements;
    for (Record* record : m_updated) {
        const bool ok = visit(record, [&](auto& typed) {
            using T = std::decay_t<decltype(typed)>;
            auto& stmt = statements[std::size_t(record->entity())];
            if (!stmt)
                stmt.emplace(
                    m_db,
                    RecordSql::updateSql<T>(RecordSql::tableOf(record->entity())).constData());
            stmt->bind(RecordSql::bindAll(*stmt, typed), std::optional<qint64>(record->m_rowId));
            return stmt->run();
        });
        if (!ok)
            return false;
    }
    return true;
}

bool ObjectContext::writeDeletes()
{
    for (Record* record : m_deleted) {
        const QByteArray sql =
            QByteArray("DELETE FROM ") + RecordSql::tableOf(record->entity()) + " WHERE id = ?";
        Stmt stmt(m_db, sql.constData());
        stmt.bind(0, std::optional<qint64>(record->m_rowId));
        if (!stmt.run())
            return false;
    }
    return true;
}

bool ObjectContext::save()
{
    if (!hasChanges())
        return true;
    Transaction txn(m_db);
    if (!txn.isActive())
        return fail();
    std::vector<qint64> historyDeleted;
    if (!writeInserts() || !writeUpdates() || !writeHistoryDeletes(historyDeleted) ||
        !writeDeletes() ||
        (m_observer && !m_observer->saving({m_inserted, m_updated, m_deleted, historyDeleted}))) {
        fail();
        // The rows written in this try are gone with the rollback.
        for (Record* record : m_inserted)
            record->m_rowId = 0;
        return false;
    }
    if (!txn.commit()) {
        fail();
        for (Record* record : m_inserted)
            record->m_rowId = 0;
        return false;
    }
    for (Record* record : m_inserted)
        record->m_inserted = false;
    for (Record* record : m_updated)
        record->m_updated = false;
    for (Record* record : m_deleted)
        record->m_context = nullptr;
    m_inserted.clear();
    m_updated.clear();
    m_deleted.clear();
    if (!std::exchange(m_historyDeletes, {}).empty())
        ++m_historyVersion;
    m_errorCode = 0;
    m_errorMessage.clear();
    if (m_observer)
        m_observer->saved();
    return true;
}

void ObjectContext::reset()
{
    for (const auto& record : m_owned) {
        record->m_context = nullptr;
        record->m_inserted = record->m_updated = false;
    }
    m_projects.clear();
    m_rules.clear();
    m_reminders.clear();
    m_inserted.clear();
    m_updated.clear();
    m_deleted.clear();
    m_historyDeletes.clear();
    m_loaded = false;
    ++m_historyVersion;
}

} // namespace lullet
