#include "core/store/Db.h"

#include "core/store/Stmt.h"

#include <QCoreApplication>

#include <sqlite3.h>

#include <cerrno>

namespace lullet {

void Db::Closer::operator()(sqlite3* db) const
{
    sqlite3_close_v2(db);
}

Db::Db(const QString& path, bool readOnly)
{
    sqlite3* db = nullptr;
    const int flags =
        (readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE) |
        SQLITE_OPEN_NOMUTEX;
    m_openError = sqlite3_open_v2(path.toUtf8().constData(), &db, flags, nullptr);
    if (m_openError != SQLITE_OK) {
        sqlite3_close_v2(db);
        return;
    }
    sqlite3_extended_result_codes(db, 1);
    // A second connection (a backup, a check) may hold the file for a moment.
    sqlite3_busy_timeout(db, 5000);
    m_db.reset(db);
}

int Db::errorCode() const
{
    return m_db ? sqlite3_errcode(m_db.get()) : m_openError;
}

QString Db::errorMessage() const
{
    if (!m_db)
        return QString::fromUtf8(sqlite3_errstr(m_openError));
    return QString::fromUtf8(sqlite3_errmsg(m_db.get()));
}

bool Db::isOutOfSpace() const
{
    const int primary = errorCode() & 0xff;
    if (primary == SQLITE_FULL)
        return true;
    // Growing the log's shared memory, or creating a file, fails as an error of input or output.
    const int cause = m_db ? sqlite3_system_errno(m_db.get()) : 0;
    return (primary == SQLITE_IOERR || primary == SQLITE_CANTOPEN) &&
           (cause == ENOSPC || cause == EDQUOT);
}

QString Db::inWords(int code, const QString& message)
{
    switch (code & 0xff) {
    case SQLITE_FULL:
        return QCoreApplication::translate("Db", "the disk is full");
    case SQLITE_READONLY:
        return QCoreApplication::translate("Db", "the store cannot be written");
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return QCoreApplication::translate("Db", "another program is using the store");
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return QCoreApplication::translate("Db", "the store is damaged");
    case SQLITE_IOERR:
        return QCoreApplication::translate("Db", "the disk could not be read or written");
    default:
        return message;
    }
}

bool Db::inTransaction() const
{
    return m_db && !sqlite3_get_autocommit(m_db.get());
}

void Db::setBusyTimeout(int ms)
{
    if (m_db)
        sqlite3_busy_timeout(m_db.get(), ms);
}

bool Db::exec(const char* sql)
{
    return m_db && sqlite3_exec(m_db.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

std::optional<qint64> Db::queryInt(const char* sql)
{
    Stmt stmt(*this, sql);
    if (!stmt.isValid() || !stmt.step())
        return std::nullopt;
    return stmt.columnInt64(0);
}

std::optional<QString> Db::queryText(const char* sql)
{
    Stmt stmt(*this, sql);
    if (!stmt.isValid() || !stmt.step())
        return std::nullopt;
    return stmt.columnText(0);
}

} // namespace lullet
