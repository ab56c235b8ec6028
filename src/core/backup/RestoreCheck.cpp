#include "core/backup/RestoreCheck.h"

#include "core/store/Db.h"
#include "core/store/StoreSchema.h"

#include <QByteArray>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lullet {

std::optional<QString> RestoreCheck::refusalOfFile(const QString& path)
{
    // Opened without waiting, so that a pipe with no writer cannot hold the program, and looked
    // at through that very descriptor.
    const int fd =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0)
        return tr("The file could not be read.");
    struct stat info = {};
    const bool plain = ::fstat(fd, &info) == 0 && S_ISREG(info.st_mode);
    QByteArray header(100, '\0');
    const ssize_t got = plain ? ::read(fd, header.data(), std::size_t(header.size())) : 0;
    ::close(fd);
    if (!plain)
        return tr("Only a file can be restored, and this is a folder, "
                  "a device or another special file.");
    if (got < 100 || !header.startsWith(QByteArrayView("SQLite format 3\0", 16)))
        return tr("The file is not a database, so it is no Lullet backup.");
    return std::nullopt;
}

std::optional<QString> RestoreCheck::refusalOfContent(Db& db)
{
    const std::optional<QString> quick = db.queryText("PRAGMA quick_check");
    if (quick != QStringLiteral("ok"))
        return tr("The file is damaged: %1").arg(quick.value_or(db.errorMessage()));
    switch (StoreSchema::check(db)) {
    case StoreSchema::Check::Ours:
        break;
    case StoreSchema::Check::Fresh:
        return tr("The file is an empty database, not a Lullet store.");
    case StoreSchema::Check::Foreign:
        return tr("The file is a database of another program, not a Lullet store.");
    case StoreSchema::Check::Newer:
        return tr("The file was written by a newer version of Lullet. Update Lullet "
                  "to restore it.");
    case StoreSchema::Check::Damaged:
    case StoreSchema::Check::Unknown:
        return tr("The file is damaged: %1").arg(db.errorMessage());
    }
    if (!StoreSchema::hasTables(db))
        return tr("The file lacks the tables of a Lullet store.");
    return std::nullopt;
}

} // namespace lullet
