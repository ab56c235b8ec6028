#include "core/store/Store.h"

#include "core/dates/Clock.h"
#include "core/store/StoreSchema.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <sqlite3.h>

namespace lullet {

namespace {

// Damage and foreign files are moved aside; anything else (permissions, a full disk) is a
// condition the user can fix, so the files stay where they are.
bool isUnreadable(int code)
{
    const int primary = code & 0xff;
    return primary == SQLITE_NOTADB || primary == SQLITE_CORRUPT;
}

} // namespace

QString Store::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

Store::Store(QString folder, const Clock& clock)
    : m_folder(std::move(folder))
    , m_clock(clock)
{
}

Store::~Store() = default;

QString Store::storePath() const
{
    return QDir(m_folder).filePath(QString::fromLatin1(storeFileName));
}

Store::Result Store::open()
{
    const QFileInfo info(m_folder);
    if (info.exists() && !info.isDir()) {
        return {Outcome::FolderIsFile,
                QStringLiteral("Expected a folder to store application data, found a file %1.")
                    .arg(m_folder),
                {}};
    }
    if (!info.exists() && !QDir().mkpath(m_folder)) {
        return {Outcome::FolderNotCreated,
                QStringLiteral("There was an error creating or loading the application's saved "
                               "data. The folder %1 could not be created.")
                    .arg(m_folder),
                {}};
    }
    return openFile();
}

// Nothing is written to the file until it is known to be ours or new: a foreign or damaged
// file is moved aside exactly as it was found.
Store::Result Store::openFile()
{
    const auto failed = [this](const QString& what) {
        Result r{Outcome::OpenFailed,
                 QStringLiteral("There was an error creating or loading the application's saved "
                                "data. %1: %2")
                     .arg(what, m_db.errorMessage()),
                 {}};
        return r;
    };

    switch (inspect()) {
    case Inspection::Usable:
        break;
    case Inspection::NotADatabase:
        return moveAside(QStringLiteral("the file is not a database"));
    case Inspection::Foreign:
        return moveAside(QStringLiteral("the file is not a Lullet store"));
    case Inspection::Newer:
        return moveAside(QStringLiteral("the store was written by a newer version of Lullet"));
    case Inspection::Damaged:
        return moveAside(QStringLiteral("the store is damaged"));
    case Inspection::Unreachable:
        return failed(QStringLiteral("Cannot open the store"));
    }

    m_db = Db(storePath());
    if (!m_db.isOpen())
        return failed(QStringLiteral("Cannot open the store"));
    if (!m_db.queryText("PRAGMA journal_mode = WAL"))
        return failed(QStringLiteral("Cannot read the store"));
    if (!StoreSchema::migrate(m_db) || !StoreSchema::hasTables(m_db)) {
        if (isUnreadable(m_db.errorCode()))
            return moveAside(m_db.errorMessage());
        return failed(QStringLiteral("Cannot bring the store up to date"));
    }
    // Changes are safe once written to the log; the log is made durable at checkpoints.
    m_db.exec("PRAGMA synchronous = NORMAL");
    m_db.exec("PRAGMA foreign_keys = ON");

    auto context = std::make_unique<ObjectContext>(m_db);
    if (!context->load()) {
        if (isUnreadable(context->errorCode()))
            return moveAside(context->errorMessage());
        return failed(QStringLiteral("Cannot load the store"));
    }
    m_context = std::move(context);
    return {Outcome::Opened, {}, {}};
}

Store::Inspection Store::inspect() const
{
    QFile file(storePath());
    if (!file.exists() || file.size() == 0)
        return Inspection::Usable;
    if (!file.open(QIODevice::ReadOnly))
        return Inspection::Unreachable;
    const QByteArray header = file.read(100);
    if (header.size() < 100 || !header.startsWith(QByteArrayView("SQLite format 3\0", 16)))
        return Inspection::NotADatabase;
    file.close();

    // A read-only look, which cannot change the file whatever it holds.
    Db db(storePath(), true);
    if (!db.isOpen())
        return isUnreadable(db.errorCode()) ? Inspection::Damaged : Inspection::Unreachable;
    switch (StoreSchema::check(db)) {
    case StoreSchema::Check::Fresh:
    case StoreSchema::Check::Ours:
        return Inspection::Usable;
    case StoreSchema::Check::Newer:
        return Inspection::Newer;
    case StoreSchema::Check::Foreign:
        break;
    }
    return isUnreadable(db.errorCode()) ? Inspection::Damaged : Inspection::Foreign;
}

Store::Result Store::moveAside(const QString& why)
{
    m_context.reset();
    m_db = Db();
    const QString stamp = m_clock.now().toString(
        DateFormat::custom(QStringLiteral("yyyyMMdd-HHmmss"), QStringLiteral("en_US")));
    const QString aside = storePath() + QStringLiteral(".unreadable-") + stamp;
    // The side files keep their suffixes, so that the moved store opens with its log.
    bool moved = QFile::rename(storePath(), aside);
    for (const char* suffix : {"-wal", "-shm"}) {
        const QString side = storePath() + QLatin1String(suffix);
        if (QFile::exists(side))
            moved = QFile::rename(side, aside + QLatin1String(suffix)) && moved;
    }
    Result r;
    r.outcome = moved ? Outcome::MovedAside : Outcome::OpenFailed;
    r.movedTo = moved ? aside : QString();
    r.message = moved ? QStringLiteral("The store could not be used (%1). It was moved to %2; "
                                       "Lullet will start with an empty store next time.")
                            .arg(why, aside)
                      : QStringLiteral("The store could not be used (%1) and could not be moved "
                                       "aside.")
                            .arg(why);
    return r;
}

} // namespace lullet
