#pragma once

#include <QString>

#include <memory>
#include <optional>

struct sqlite3;

namespace lullet {

// One SQLite connection, closed when the object ends.
class Db {
public:
    Db() = default;
    // Opens or creates the file; check isOpen() and errorCode() afterwards.
    explicit Db(const QString& path, bool readOnly = false);

    bool isOpen() const { return m_db != nullptr; }
    sqlite3* handle() const { return m_db.get(); }
    // SQLite's result code of the last failed call, or of opening.
    int errorCode() const;
    QString errorMessage() const;
    // The last failure came from a disk without room, or a user over their quota.
    bool isOutOfSpace() const;
    // A failure in the user's words ("the disk is full"); SQLite's own where it has no better.
    static QString inWords(int code, const QString& message);
    // Inside a transaction that is neither committed nor rolled back: SQLite itself rolls back
    // after some failures (a full disk), and there is then nothing left to roll back.
    bool inTransaction() const;

    // How long a statement waits for another connection's lock before it fails as busy.
    void setBusyTimeout(int ms);
    // Runs statements that return no rows; false on failure.
    bool exec(const char* sql);
    // The first column of the first row of a query, or an empty value.
    std::optional<qint64> queryInt(const char* sql);
    std::optional<QString> queryText(const char* sql);

private:
    struct Closer {
        void operator()(sqlite3* db) const;
    };
    std::unique_ptr<sqlite3, Closer> m_db;
    int m_openError = 0;
};

} // namespace lullet
