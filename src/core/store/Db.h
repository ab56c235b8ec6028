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
