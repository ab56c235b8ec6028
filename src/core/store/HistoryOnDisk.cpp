#include "core/store/HistoryOnDisk.h"

#include "core/model/Item.h"
#include "core/store/Db.h"
#include "core/store/ObjectContext.h"
#include "core/store/RecordSql.h"
#include "core/store/Stmt.h"
#include "core/store/StringPool.h"
#include "core/store/Transaction.h"

#include <sqlite3.h>

#include <algorithm>

namespace lullet {

namespace {

// Records of a store looked at once and dropped share no texts: their pool would only grow.
constexpr StringPool::Share readOnce = StringPool::Share::None;

} // namespace

void HistoryOnDisk::bindBounds(Stmt& stmt, Date before)
{
    stmt.bind(0, std::optional<Date>(Date(-Stmt::maxPlausibleSeconds)));
    stmt.bind(1, std::optional<Date>(before));
}

HistoryOnDisk::HistoryOnDisk(ObjectContext& context, Db& db)
    : m_context(context)
    , m_db(db)
{
}

bool HistoryOnDisk::query(const char* select, Part part,
                          const std::function<void(const Stmt&)>& row, bool byTable) const
{
    const Project* project = part.project;
    // A store opened without a bound keeps its history in memory; a project never saved has
    // none on disk.
    if (!m_context.m_historyBefore || (project && !project->rowId()))
        return true;
    QByteArray sql = QByteArray(select) + " FROM ReminderInfo" +
                     (byTable ? " NOT INDEXED WHERE " : " WHERE ") + condition;
    if (project)
        sql += " AND toProject = ?3";
    else if (part.withoutProject)
        sql += " AND toProject IS NULL";
    Stmt stmt(m_db, sql.constData());
    if (!stmt.isValid())
        return m_context.fail();
    bindBounds(stmt, *m_context.m_historyBefore);
    if (project)
        stmt.bind(2, std::optional<qint64>(project->rowId()));
    // Rows in memory, deleted ones not yet saved among them, are the memory's to show.
    const QSet<qint64> known = m_context.itemRowIds();
    while (stmt.step()) {
        if (!known.contains(stmt.columnInt64(0)))
            row(stmt);
    }
    return !stmt.failed() || m_context.fail();
}

namespace {

// An integer column as the program reads it: a value out of range, or none, is 0.
QByteArray integer(const char* column)
{
    return QByteArray("(CASE WHEN CAST(") + column + " AS INTEGER) BETWEEN -2147483648 AND " +
           "2147483647 THEN CAST(" + column + " AS INTEGER) ELSE 0 END)";
}

} // namespace

bool HistoryOnDisk::noteItemsInMemory() const
{
    if (!m_db.exec("CREATE TEMP TABLE IF NOT EXISTS itemsInMemory (id INTEGER PRIMARY KEY); "
                   "DELETE FROM temp.itemsInMemory"))
        return m_context.fail();
    Transaction txn(m_db);
    Stmt insert(m_db, "INSERT OR IGNORE INTO temp.itemsInMemory (id) VALUES (?)");
    for (const qint64 id : m_context.itemRowIds()) {
        insert.bind(0, std::optional<qint64>(id));
        if (!insert.run())
            return m_context.fail();
        insert.reset();
    }
    return txn.commit() || m_context.fail();
}

bool HistoryOnDisk::sums(std::vector<Sums>& out) const
{
    if (!m_context.m_historyBefore)
        return true;
    if (!noteItemsInMemory())
        return false;
    // A finished item's share of a list's totals, as TaskStats::Tally counts it.
    const QByteArray limit = "CASE WHEN " + integer("timeLimit") + " > 0 THEN " +
                             integer("timeLimit") + " ELSE max(0, " + integer("durationHr") +
                             ") * 3600 + max(0, " + integer("durationMin") + ") * 60 END";
    const QByteArray sql =
        "SELECT toProject, count(*), sum(CASE WHEN toDo THEN 0 ELSE used END), "
        "sum(CASE WHEN toDo THEN 0 WHEN min(lim, used) > 0 THEN min(lim, used) ELSE used END) "
        "FROM (SELECT toProject, " +
        integer("repeatOption") + " = -5 AS toDo, " + integer("elapsedTime") + " AS used, " +
        limit + " AS lim FROM ReminderInfo WHERE " + condition +
        " AND id NOT IN (SELECT id FROM temp.itemsInMemory)) GROUP BY toProject";
    Stmt stmt(m_db, sql.constData());
    if (!stmt.isValid())
        return m_context.fail();
    bindBounds(stmt, *m_context.m_historyBefore);
    while (stmt.step())
        out.push_back({stmt.isNull(0) ? 0 : stmt.columnInt64(0), int(stmt.columnInt64(1)),
                       stmt.columnInt64(2), stmt.columnInt64(3)});
    return !stmt.failed() || m_context.fail();
}

bool HistoryOnDisk::countByMonth(const std::vector<Date>& starts, std::vector<int>& months) const
{
    months.assign(starts.size() > 1 ? starts.size() - 1 : 0, 0);
    if (!m_context.m_historyBefore || months.empty())
        return true;
    if (!noteItemsInMemory())
        return false;
    const QByteArray sql =
        QByteArray("SELECT dtReminderPostponed, dtReminder FROM ReminderInfo WHERE ") + condition +
        " AND id NOT IN (SELECT id FROM temp.itemsInMemory) AND "
        "(dtReminderPostponed BETWEEN ?3 AND ?4 OR dtReminder BETWEEN ?3 AND ?4)";
    Stmt stmt(m_db, sql.constData());
    if (!stmt.isValid())
        return m_context.fail();
    bindBounds(stmt, *m_context.m_historyBefore);
    stmt.bind(2, std::optional<Date>(starts.front()));
    stmt.bind(3, std::optional<Date>(starts.back()));
    const auto monthOf = [&starts](std::optional<Date> date) -> std::optional<std::size_t> {
        if (!date || *date < starts.front() || !(*date < starts.back()))
            return std::nullopt;
        return std::size_t(std::upper_bound(starts.begin(), starts.end(), *date) - starts.begin()) -
               1;
    };
    while (stmt.step()) {
        const std::optional<std::size_t> postponed = monthOf(stmt.columnDate(0));
        const std::optional<std::size_t> own = monthOf(stmt.columnDate(1));
        if (postponed)
            ++months[*postponed];
        if (own && own != postponed)
            ++months[*own];
    }
    return !stmt.failed() || m_context.fail();
}

bool HistoryOnDisk::lines(std::vector<Line>& out, Part part) const
{
    return query("SELECT id, coalesce(dtReminderPostponed, dtReminder), elapsedTime", part,
                 [&out](const Stmt& stmt) {
                     const std::optional<Date> date = stmt.columnDate(1);
                     // A date beyond any calendar can't be placed among the days.
                     if (date)
                         out.push_back({stmt.columnInt64(0), *date,
                                        qint32(std::max(0, stmt.columnInt(2).value_or(0)))});
                 });
}

bool HistoryOnDisk::scan(const std::function<void(const Item&)>& visit,
                         const Project* project) const
{
    Item scratch;
    StringPool pool(readOnce);
    const QHash<qint64, Project*> projects = m_context.projectsByRowId();
    const QByteArray select = "SELECT id, " + RecordSql::columnList<Item>();
    return query(
        select.constData(), {project, false},
        [&](const Stmt& stmt) {
            scratch.m_rowId = stmt.columnInt64(0);
            const int link = RecordSql::readColumns(stmt, scratch, pool);
            scratch.m_toProject =
                stmt.isNull(link) ? nullptr : projects.value(stmt.columnInt64(link));
            visit(scratch);
        },
        project == nullptr);
}

bool HistoryOnDisk::scanTitles(const std::function<void(qint64 rowId, QByteArrayView title,
                                                        const Project* project)>& visit) const
{
    const QHash<qint64, Project*> projects = m_context.projectsByRowId();
    return query(
        "SELECT id, title, toProject", {},
        [&](const Stmt& stmt) {
            sqlite3_stmt* raw = stmt.handle();
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(raw, 1));
            const QByteArrayView title(text, text ? sqlite3_column_bytes(raw, 1) : 0);
            visit(stmt.columnInt64(0), title,
                  stmt.isNull(2) ? nullptr : projects.value(stmt.columnInt64(2)));
        },
        true);
}

bool HistoryOnDisk::read(const std::vector<qint64>& rowIds,
                         const std::function<void(const Item&)>& visit) const
{
    if (rowIds.empty())
        return true;
    Item scratch;
    StringPool pool(readOnce);
    const QHash<qint64, Project*> projects = m_context.projectsByRowId();
    const QByteArray sql =
        "SELECT id, " + RecordSql::columnList<Item>() + " FROM ReminderInfo WHERE id = ?";
    Stmt stmt(m_db, sql.constData());
    if (!stmt.isValid())
        return m_context.fail();
    for (const qint64 rowId : rowIds) {
        stmt.reset();
        stmt.bind(0, std::optional<qint64>(rowId));
        if (!stmt.step())
            continue;
        scratch.m_rowId = rowId;
        const int link = RecordSql::readColumns(stmt, scratch, pool);
        scratch.m_toProject = stmt.isNull(link) ? nullptr : projects.value(stmt.columnInt64(link));
        visit(scratch);
    }
    return !stmt.failed() || m_context.fail();
}

Item* HistoryOnDisk::bringIn(qint64 rowId)
{
    // Read once at most: a record deleted and not yet saved stays deleted.
    for (const auto& record : m_context.m_owned) {
        if (record->m_context == &m_context && record->rowId() == rowId &&
            record->entity() == Record::Entity::Item)
            return record->isDeleted() ? nullptr : static_cast<Item*>(record.get());
    }
    const QByteArray sql =
        "SELECT id, " + RecordSql::columnList<Item>() + " FROM ReminderInfo WHERE id = ?";
    Stmt stmt(m_db, sql.constData());
    stmt.bind(0, std::optional<qint64>(rowId));
    if (!stmt.isValid() || !stmt.step()) {
        if (stmt.failed() || !stmt.isValid())
            m_context.fail();
        return nullptr;
    }
    StringPool pool;
    Item* item = m_context.adopt(m_context.m_reminders);
    item->m_rowId = rowId;
    ObjectContext::linkToProject(*item, stmt, RecordSql::readColumns(stmt, *item, pool),
                                 m_context.projectsByRowId());
    return item;
}

} // namespace lullet
