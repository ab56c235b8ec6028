#include "core/store/ObjectContext.h"

#include "core/store/Db.h"
#include "core/store/RecordColumns.h"
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

template <class T> const std::vector<Column<T>>& columnsOf();
template <> const std::vector<Column<Project>>& columnsOf<Project>()
{
    return RecordColumns::project();
}
template <> const std::vector<Column<Rule>>& columnsOf<Rule>()
{
    return RecordColumns::rule();
}
template <> const std::vector<Column<Item>>& columnsOf<Item>()
{
    return RecordColumns::item();
}

const char* tableOf(Record::Entity entity)
{
    switch (entity) {
    case Record::Entity::Project:
        return "Project";
    case Record::Entity::Rule:
        return "RepeatReminderInfo";
    case Record::Entity::Item:
        return "ReminderInfo";
    }
    return "";
}

template <class T> QByteArray columnList()
{
    QByteArray list;
    for (const auto& c : columnsOf<T>()) {
        if (!list.isEmpty())
            list += ", ";
        list += c.name;
    }
    if constexpr (std::is_same_v<T, Item>)
        list += ", toProject";
    return list;
}

template <class T> QByteArray insertSql(const char* table)
{
    const qsizetype count = qsizetype(columnsOf<T>().size()) + (std::is_same_v<T, Item> ? 1 : 0);
    QByteArray marks;
    for (qsizetype i = 0; i < count; ++i)
        marks += i ? ", ?" : "?";
    return QByteArray("INSERT INTO ") + table + " (" + columnList<T>() + ") VALUES (" + marks + ")";
}

template <class T> QByteArray updateSql(const char* table)
{
    QByteArray set;
    for (const auto& c : columnsOf<T>())
        set += QByteArray(set.isEmpty() ? "" : ", ") + c.name + " = ?";
    if constexpr (std::is_same_v<T, Item>)
        set += ", toProject = ?";
    return QByteArray("UPDATE ") + table + " SET " + set + " WHERE id = ?";
}

// Reads a record's attributes from column 1 on; answers the next column, for an item its
// project link.
template <class T> int readColumns(const Stmt& stmt, T& record, StringPool& pool)
{
    int i = 1;
    for (const auto& c : columnsOf<T>())
        c.read(stmt, i++, record, pool);
    return i;
}

// The items of the history: finished, not started, dated before ?2 (and no earlier than any
// plausible date, ?1). It holds exactly for the rows the program reads as such; a value that
// reads otherwise (text in a number column, a date out of range) keeps its item in memory.
constexpr const char* historyCondition =
    "hasFinished = 1 AND coalesce(hasStarted, 0) = 0 AND "
    "coalesce(dtReminderPostponed, dtReminder) BETWEEN ?1 AND ?2";

void bindHistoryBounds(Stmt& stmt, Date before)
{
    stmt.bind(0, std::optional<Date>(Date(-Stmt::maxPlausibleSeconds)));
    stmt.bind(1, std::optional<Date>(before));
}

// Binds every attribute and, for an item, its project link; answers the next free index.
template <class T> int bindAll(Stmt& stmt, const T& record)
{
    int i = 0;
    for (const auto& c : columnsOf<T>())
        c.bind(stmt, i++, record);
    if constexpr (std::is_same_v<T, Item>) {
        const Project* project = record.toProject();
        stmt.bind(i++, project && project->rowId() ? std::optional<qint64>(project->rowId())
                                                   : std::nullopt);
    }
    return i;
}

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
    m_errorCode = m_db.errorCode();
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
                bindHistoryBounds(stmt, *m_historyBefore);
        }
        while (stmt.step()) {
            T* record = adopt(live);
            record->m_rowId = stmt.columnInt64(0);
            extra(record, stmt, readColumns(stmt, *record, pool));
        }
        return !stmt.failed();
    };
    const auto nothingMore = [](auto*, const Stmt&, int) {};

    bool ok = loadTable(m_projects, "SELECT id, " + columnList<Project>() + " FROM Project",
                        nothingMore) &&
              loadTable(m_rules, "SELECT id, " + columnList<Rule>() + " FROM RepeatReminderInfo",
                        nothingMore);
    if (ok) {
        QByteArray items = "SELECT id, " + columnList<Item>() + " FROM ReminderInfo";
        if (m_historyBefore)
            items += QByteArray(" WHERE NOT coalesce(") + historyCondition + ", 0)";
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
    m_historyHeld = m_historyBefore.has_value();
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

bool ObjectContext::readHistory(const Project* project, const QByteArray& rows,
                                const std::function<void(const Stmt&)>& row)
{
    QByteArray sql =
        "SELECT id, " + columnList<Item>() + " FROM ReminderInfo WHERE " + historyCondition + rows;
    if (project)
        sql += " AND toProject = ?3";
    Stmt stmt(m_db, sql.constData());
    if (!stmt.isValid())
        return fail();
    bindHistoryBounds(stmt, *m_historyBefore);
    if (project)
        stmt.bind(2, std::optional<qint64>(project->rowId()));
    const QSet<qint64> known = itemRowIds();
    while (stmt.step()) {
        if (!known.contains(stmt.columnInt64(0)))
            row(stmt);
    }
    return !stmt.failed() || fail();
}

bool ObjectContext::readInto(std::vector<Item*>& read, const Project* project,
                             const QByteArray& rows)
{
    StringPool pool;
    const QHash<qint64, Project*> projects = projectsByRowId();
    return readHistory(project, rows, [&](const Stmt& stmt) {
        Item* item = adopt(m_reminders);
        item->m_rowId = stmt.columnInt64(0);
        linkToProject(*item, stmt, readColumns(stmt, *item, pool), projects);
        read.push_back(item);
    });
}

bool ObjectContext::loadHistory(std::vector<Item*>& read, const Project* project)
{
    if (!m_historyHeld)
        return true;
    // A project never saved has no rows on disk.
    if (project && (!project->rowId() || m_historyReadFor.contains(project->rowId())))
        return true;
    const std::size_t before = read.size();
    const bool ok = readInto(read, project);
    if (ok && project) {
        m_historyReadFor.insert(project->rowId());
    } else if (ok) {
        m_historyHeld = false;
        m_historyReadFor.clear();
    }
    // Totals over the history on disk are worked out again only when it changed.
    if (read.size() > before || !m_historyHeld)
        ++m_historyVersion;
    return ok;
}

bool ObjectContext::loadHistoryItems(const std::vector<qint64>& rowIds, std::vector<Item*>& read)
{
    if (!m_historyHeld || rowIds.empty())
        return true;
    QByteArray ids;
    for (const qint64 id : rowIds)
        ids += (ids.isEmpty() ? "" : ",") + QByteArray::number(id);
    const std::size_t before = read.size();
    const bool ok = readInto(read, nullptr, " AND id IN (" + ids + ")");
    if (read.size() > before)
        ++m_historyVersion;
    return ok;
}

bool ObjectContext::scanHistory(const std::function<void(const Item&)>& visit)
{
    if (!m_historyHeld)
        return true;
    Item scratch;
    // Texts read once and dropped are not worth sharing.
    StringPool pool(StringPool::Share::None);
    const QHash<qint64, Project*> projects = projectsByRowId();
    return readHistory(nullptr, {}, [&](const Stmt& stmt) {
        scratch.m_rowId = stmt.columnInt64(0);
        const int link = readColumns(stmt, scratch, pool);
        scratch.m_toProject = stmt.isNull(link) ? nullptr : projects.value(stmt.columnInt64(link));
        visit(scratch);
    });
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
    return !m_inserted.empty() || !m_updated.empty() || !m_deleted.empty();
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
                stmt.emplace(m_db, insertSql<T>(tableOf(record->entity())).constData());
            bindAll(*stmt, typed);
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
                stmt.emplace(m_db, updateSql<T>(tableOf(record->entity())).constData());
            stmt->bind(bindAll(*stmt, typed), std::optional<qint64>(record->m_rowId));
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
            QByteArray("DELETE FROM ") + tableOf(record->entity()) + " WHERE id = ?";
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
    if (!writeInserts() || !writeUpdates() || !writeDeletes() ||
        (m_observer && !m_observer->saving({m_inserted, m_updated, m_deleted}))) {
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
    m_loaded = false;
    m_historyHeld = false;
    m_historyReadFor.clear();
    ++m_historyVersion;
}

} // namespace lullet
