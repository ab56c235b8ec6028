#include "core/backup/StoreCopy.h"

#include "core/settings/PrivateFiles.h"
#include "core/store/Db.h"

#include <QDir>
#include <QFile>

#include <sqlite3.h>

namespace lullet {

namespace {

StoreCopy::Result failed(const QString& what)
{
    return {false, what};
}

// The online backup: every page of the source as one consistent snapshot.
bool copyPages(Db& from, Db& to, QString& error)
{
    sqlite3_backup* backup = sqlite3_backup_init(to.handle(), "main", from.handle(), "main");
    if (!backup) {
        error = to.errorMessage();
        return false;
    }
    // Busy or locked pages are tried again; the live store's writer holds them only briefly.
    int rc = SQLITE_OK;
    do {
        rc = sqlite3_backup_step(backup, -1);
        if (rc == SQLITE_BUSY || rc == SQLITE_LOCKED)
            sqlite3_sleep(20);
    } while (rc == SQLITE_OK || rc == SQLITE_BUSY || rc == SQLITE_LOCKED);
    sqlite3_backup_finish(backup);
    if (rc != SQLITE_DONE) {
        error = QString::fromUtf8(sqlite3_errstr(rc));
        return false;
    }
    return true;
}

} // namespace

StoreCopy::Result StoreCopy::copy(const QString& source, const QString& destination,
                                  const QString& workFolder, const Check& check)
{
    if (!QFile::exists(source))
        return failed(tr("The store %1 does not exist.").arg(source));
    if (QFile::exists(destination))
        return failed(tr("%1 already exists; it was left as it was.").arg(destination));
    PrivateFiles::makeFolder(workFolder);
    const QString temp = QDir(workFolder).filePath(QStringLiteral("tempBkp.sqlite"));
    QFile::remove(temp);
    {
        Db from(source, true);
        from.setBusyTimeout(2000);
        Db to(temp);
        if (!from.isOpen())
            return failed(tr("%1 could not be read: %2").arg(source, from.errorMessage()));
        if (!to.isOpen())
            return failed(tr("%1 could not be written: %2").arg(temp, to.errorMessage()));
        // One reading for the check and the copy, with its log if the source has one.
        from.exec("BEGIN");
        if (check) {
            if (const std::optional<QString> why = check(from)) {
                QFile::remove(temp);
                return failed(*why);
            }
        }
        QString error;
        if (!copyPages(from, to, error)) {
            QFile::remove(temp);
            return failed(tr("The store could not be copied: %1").arg(error));
        }
        // The copy carries the live store's WAL mode: it is made a single, whole file.
        if (to.queryText("PRAGMA journal_mode = DELETE") != QStringLiteral("delete")) {
            QFile::remove(temp);
            return failed(
                tr("The copy could not be made a single file: %1").arg(to.errorMessage()));
        }
    }
    if (!QFile::copy(temp, destination)) {
        QFile::remove(temp);
        return failed(tr("The copy could not be written to %1.").arg(destination));
    }
    QFile::remove(temp);
    PrivateFiles::keepFile(destination);
    return {true, {}};
}

} // namespace lullet
