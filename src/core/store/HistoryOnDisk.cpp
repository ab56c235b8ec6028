#include "core/store/HistoryOnDisk.h"

#include "core/model/Item.h"
#include "core/store/Db.h"
#include "core/store/ObjectContext.h"
#include "core/store/RecordSql.h"
#include "core/store/Stmt.h"
#include "core/store/StringPool.h"

#include <sqlite3.h>

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
                          const std::function<void(const Stmt&)>& row) const
{
    const Project* project = part.project;
    // A store opened without a bound keeps its history in memory; a project never saved has
    // none on disk.
    if (!m_context.m_historyBefore || (project && !project->rowId()))
        return true;
    QByteArray sql = QByteArray(select) + " FROM ReminderInfo WHERE " + condition;
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
    return query(select.constData(), {project, false}, [&](const Stmt& stmt) {
        scratch.m_rowId = stmt.columnInt64(0);
        const int link = RecordSql::readColumns(stmt, scratch, pool);
        scratch.m_toProject = stmt.isNull(link) ? nullptr : projects.value(stmt.columnInt64(link));
        visit(scratch);
    });
}

bool HistoryOnDisk::scanTitles(const std::function<void(qint64 rowId, QByteArrayView title,
                                                        const Project* project)>& visit) const
{
    const QHash<qint64, Project*> projects = m_context.projectsByRowId();
    return query("SELECT id, title, toProject", {}, [&](const Stmt& stmt) {
        sqlite3_stmt* raw = stmt.handle();
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(raw, 1));
        const QByteArrayView title(text, text ? sqlite3_column_bytes(raw, 1) : 0);
        visit(stmt.columnInt64(0), title,
              stmt.isNull(2) ? nullptr : projects.value(stmt.columnInt64(2)));
    });
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
