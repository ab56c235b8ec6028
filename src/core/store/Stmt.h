#pragma once

#include "core/dates/Date.h"

#include <QString>

#include <memory>
#include <optional>

struct sqlite3_stmt;

namespace lullet {

class Db;

// One prepared statement, finalized when the object ends. Columns and parameters count from 0;
// an empty optional binds or reads NULL.
class Stmt {
public:
    // About ±10,000 years around 1970: a stored date beyond is damage, not a date.
    static constexpr double maxPlausibleSeconds = 3.2e11;

    Stmt(Db& db, const char* sql);

    bool isValid() const { return m_stmt != nullptr; }
    // For columns read in place, without a copy.
    sqlite3_stmt* handle() const { return m_stmt.get(); }
    // Advances to the next row: true while there is one. A failure ends the rows too; check
    // failed() after the loop.
    bool step();
    bool failed() const { return m_failed; }
    // Runs a statement that returns no rows; true on success.
    bool run();
    void reset();

    void bind(int index, const std::optional<QString>& value);
    void bind(int index, std::optional<qint64> value);
    void bind(int index, std::optional<int> value);
    void bind(int index, std::optional<bool> value);
    void bind(int index, std::optional<Date> value);

    bool isNull(int column) const;
    qint64 columnInt64(int column) const;
    std::optional<QString> columnText(int column) const;
    std::optional<int> columnInt(int column) const;
    std::optional<bool> columnBool(int column) const;
    // Dates that are not finite or lie beyond any plausible calendar read as no date.
    std::optional<Date> columnDate(int column) const;

private:
    struct Finalizer {
        void operator()(sqlite3_stmt* stmt) const;
    };
    std::unique_ptr<sqlite3_stmt, Finalizer> m_stmt;
    bool m_failed = false;
};

} // namespace lullet
