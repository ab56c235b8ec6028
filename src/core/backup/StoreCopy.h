#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>
#include <optional>

namespace lullet {

class Db;

// A whole, self-contained copy of a store file, made through SQLite from a connection of its
// own, so that what is committed but still in the write-ahead log is in it too. The copy ends in
// journal mode DELETE: one file, no side files. Safe on any thread; it touches no record.
class StoreCopy {
    Q_DECLARE_TR_FUNCTIONS(StoreCopy)

public:
    struct Result {
        bool ok = false;
        // Why the copy failed, in words for the user.
        QString message;
    };

    // Why the source must not be copied, asked of it inside the reading that copies it: what it
    // looks at is what is copied.
    using Check = std::function<std::optional<QString>(Db& source)>;

    // Copies `source` to `destination` by way of "tempBkp.sqlite" in `workFolder`. An existing
    // destination is never overwritten.
    static Result copy(const QString& source, const QString& destination, const QString& workFolder,
                       const Check& check = {});
};

} // namespace lullet
