#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

namespace lullet {

class Db;

// Looks at a file the user wants to restore before anything else is touched, in two stages. The
// file itself first, without opening it as a database: only a plain file can be read to its end
// (a pipe or a device would never end), and it must begin as an SQLite database does. Then,
// through SQLite and in the very reading that copies it, its content: it must pass SQLite's
// quick check and be a Lullet store this version can open, with its tables.
class RestoreCheck {
    Q_DECLARE_TR_FUNCTIONS(RestoreCheck)

public:
    // Why the file can't be restored, in words for the user; nothing when it may be read.
    static std::optional<QString> refusalOfFile(const QString& path);
    // Why the database open on `db` can't be restored; nothing when it can.
    static std::optional<QString> refusalOfContent(Db& db);
};

} // namespace lullet
