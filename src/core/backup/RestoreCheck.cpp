#include "core/backup/RestoreCheck.h"

#include "core/store/Db.h"
#include "core/store/StoreSchema.h"

#include <QFile>

namespace lullet {

std::optional<QString> RestoreCheck::refusal(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("The file could not be read.");
    const QByteArray header = file.read(100);
    file.close();
    if (header.size() < 100 || !header.startsWith(QByteArrayView("SQLite format 3\0", 16)))
        return QStringLiteral("The file is not a database, so it is no Lullet backup.");

    Db db(path, true);
    if (!db.isOpen())
        return QStringLiteral("The file could not be opened as a database: %1")
            .arg(db.errorMessage());
    const std::optional<QString> quick = db.queryText("PRAGMA quick_check");
    if (quick != QStringLiteral("ok"))
        return QStringLiteral("The file is damaged: %1").arg(quick.value_or(db.errorMessage()));
    switch (StoreSchema::check(db)) {
    case StoreSchema::Check::Ours:
        break;
    case StoreSchema::Check::Fresh:
        return QStringLiteral("The file is an empty database, not a Lullet store.");
    case StoreSchema::Check::Foreign:
        return QStringLiteral("The file is a database of another program, not a Lullet store.");
    case StoreSchema::Check::Newer:
        return QStringLiteral("The file was written by a newer version of Lullet. Update Lullet "
                              "to restore it.");
    case StoreSchema::Check::Damaged:
    case StoreSchema::Check::Unknown:
        return QStringLiteral("The file is damaged: %1").arg(db.errorMessage());
    }
    if (!StoreSchema::hasTables(db))
        return QStringLiteral("The file lacks the tables of a Lullet store.");
    return std::nullopt;
}

} // namespace lullet
