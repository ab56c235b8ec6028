#include "core/store/Stmt.h"

#include "core/store/Db.h"

#include <sqlite3.h>

#include <cmath>
#include <limits>

namespace lullet {

void Stmt::Finalizer::operator()(sqlite3_stmt* stmt) const
{
    sqlite3_finalize(stmt);
}

Stmt::Stmt(Db& db, const char* sql)
{
    sqlite3_stmt* stmt = nullptr;
    if (db.isOpen() && sqlite3_prepare_v2(db.handle(), sql, -1, &stmt, nullptr) == SQLITE_OK)
        m_stmt.reset(stmt);
    else
        m_failed = true;
}

bool Stmt::step()
{
    if (!m_stmt)
        return false;
    const int rc = sqlite3_step(m_stmt.get());
    if (rc == SQLITE_ROW)
        return true;
    if (rc != SQLITE_DONE)
        m_failed = true;
    return false;
}

bool Stmt::run()
{
    step();
    const bool ok = !m_failed;
    reset();
    return ok;
}

void Stmt::reset()
{
    if (m_stmt) {
        sqlite3_reset(m_stmt.get());
        sqlite3_clear_bindings(m_stmt.get());
    }
}

// SQLite counts parameters from 1; callers count from 0 like columns.
void Stmt::bind(int index, const std::optional<QString>& value)
{
    if (!value) {
        sqlite3_bind_null(m_stmt.get(), index + 1);
        return;
    }
    sqlite3_bind_text16(m_stmt.get(), index + 1, value->utf16(), int(value->size() * 2),
                        SQLITE_TRANSIENT);
}

void Stmt::bind(int index, std::optional<qint64> value)
{
    if (value)
        sqlite3_bind_int64(m_stmt.get(), index + 1, *value);
    else
        sqlite3_bind_null(m_stmt.get(), index + 1);
}

void Stmt::bind(int index, std::optional<int> value)
{
    bind(index, value ? std::optional<qint64>(*value) : std::nullopt);
}

void Stmt::bind(int index, std::optional<bool> value)
{
    bind(index, value ? std::optional<qint64>(*value ? 1 : 0) : std::nullopt);
}

void Stmt::bind(int index, std::optional<Date> value)
{
    if (value)
        sqlite3_bind_double(m_stmt.get(), index + 1, value->timeIntervalSince1970());
    else
        sqlite3_bind_null(m_stmt.get(), index + 1);
}

bool Stmt::isNull(int column) const
{
    return sqlite3_column_type(m_stmt.get(), column) == SQLITE_NULL;
}

qint64 Stmt::columnInt64(int column) const
{
    return sqlite3_column_int64(m_stmt.get(), column);
}

std::optional<QString> Stmt::columnText(int column) const
{
    if (isNull(column))
        return std::nullopt;
    const auto* text = static_cast<const char16_t*>(sqlite3_column_text16(m_stmt.get(), column));
    const int bytes = sqlite3_column_bytes16(m_stmt.get(), column);
    return text ? QString::fromUtf16(text, bytes / 2) : QString();
}

std::optional<int> Stmt::columnInt(int column) const
{
    if (isNull(column))
        return std::nullopt;
    const qint64 v = columnInt64(column);
    if (v < std::numeric_limits<int>::min() || v > std::numeric_limits<int>::max())
        return std::nullopt;
    return int(v);
}

std::optional<bool> Stmt::columnBool(int column) const
{
    if (isNull(column))
        return std::nullopt;
    return columnInt64(column) != 0;
}

std::optional<Date> Stmt::columnDate(int column) const
{
    if (isNull(column))
        return std::nullopt;
    const double seconds = sqlite3_column_double(m_stmt.get(), column);
    if (!std::isfinite(seconds) || std::fabs(seconds) > maxPlausibleSeconds)
        return std::nullopt;
    return Date(seconds);
}

} // namespace lullet
