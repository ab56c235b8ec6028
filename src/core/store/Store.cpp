#include "core/store/Store.h"

#include "core/dates/Clock.h"
#include "core/settings/PrivateFiles.h"
#include "core/store/StoreSchema.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>

#include <sqlite3.h>

namespace lullet {

namespace {

// Damage found by SQLite itself; a foreign or newer file is told apart by the schema check.
bool isDamage(int code)
{
    const int primary = code & 0xff;
    return primary == SQLITE_NOTADB || primary == SQLITE_CORRUPT;
}

// Another connection holds the file: worth waiting for.
bool isBusy(int code)
{
    const int primary = code & 0xff;
    return primary == SQLITE_BUSY || primary == SQLITE_LOCKED;
}

// SQLite's own words for a failure, or nothing when there was none.
QString sqliteWords(const Db& db)
{
    return db.errorCode() == SQLITE_OK ? QString() : QStringLiteral(" (%1)").arg(db.errorMessage());
}

const char* const sideSuffixes[] = {"-wal", "-shm"};

} // namespace

QString Store::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

Store::Store(QString folder, const Clock& clock, int patienceMs)
    : m_folder(std::move(folder))
    , m_clock(clock)
    , m_patienceMs(patienceMs)
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
    if (!PrivateFiles::makeFolder(m_folder)) {
        return {Outcome::FolderNotCreated,
                QStringLiteral("There was an error creating or loading the application's saved "
                               "data. The folder %1 could not be created.")
                    .arg(m_folder),
                {}};
    }
    return openFile();
}

Store::Result Store::fail(Outcome outcome, const QString& what)
{
    if (m_db.isOutOfSpace()) {
        close();
        return diskFull();
    }
    const QString words = sqliteWords(m_db);
    close();
    return {outcome, what.arg(storePath()) + words, {}};
}

Store::Result Store::diskFull() const
{
    return {Outcome::DiskFull,
            QCoreApplication::translate("Store",
                                        "The disk that holds your Lullet store (%1) is full. "
                                        "Free some space, then start Lullet again.")
                .arg(m_folder),
            {}};
}

void Store::close()
{
    if (m_context)
        m_context->reset();
    m_open = false;
    m_db = Db();
}

// Nothing is written to the file until it is known to be ours or new: a foreign or damaged
// file is moved aside exactly as it was found, and a file that is only busy is left alone.
Store::Result Store::openFile()
{
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
    case Inspection::Busy:
        return fail(Outcome::InUse, QStringLiteral("The store %1 is in use by another program. "
                                                   "Close it and start Lullet again."));
    case Inspection::Unreadable:
        return fail(Outcome::Unreadable, QStringLiteral("The store %1 cannot be read."));
    case Inspection::ReadOnly:
        return fail(Outcome::ReadOnly,
                    QStringLiteral("The store %1 is read-only. Lullet saves every change as it "
                                   "happens: make the file writable and start Lullet again."));
    case Inspection::NoRoom:
        return diskFull();
    }

    m_db = Db(storePath());
    if (!m_db.isOpen())
        return fail(Outcome::Unreadable, QStringLiteral("The store %1 cannot be opened."));
    for (const QString& file : {storePath(), storePath() + QLatin1String(sideSuffixes[0]),
                                storePath() + QLatin1String(sideSuffixes[1])})
        PrivateFiles::keepFile(file);
    if (!m_db.queryText("PRAGMA journal_mode = WAL"))
        return fail(isBusy(m_db.errorCode()) ? Outcome::InUse : Outcome::Unreadable,
                    QStringLiteral("The store %1 cannot be read."));
    if (!StoreSchema::migrate(m_db)) {
        if (isDamage(m_db.errorCode()))
            return moveAside(m_db.errorMessage());
        return fail(Outcome::OpenFailed, QStringLiteral("The store %1 cannot be brought up to "
                                                        "date."));
    }
    if (!StoreSchema::hasTables(m_db))
        return fail(Outcome::MissingTables,
                    QStringLiteral("The store %1 lacks Lullet's tables. Move that file aside "
                                   "(rename it), and Lullet will start afresh with an empty "
                                   "store."));
    // Changes are safe once written to the log; the log is made durable at checkpoints.
    m_db.exec("PRAGMA synchronous = NORMAL");
    m_db.exec("PRAGMA foreign_keys = ON");
    // The records are read once into memory and written in small batches: a large page cache
    // would only hold the store a second time, all day.
    m_db.exec("PRAGMA cache_size = -512");

    if (!m_context)
        m_context = std::make_unique<ObjectContext>(m_db);
    // The day's work needs the open items and the recent past; older history is read when a
    // list asks for it.
    const Date historyBefore =
        m_clock.now().dateAtStartOfDay().dateByAddingDays(-residentHistoryDays);
    if (!m_context->load(historyBefore)) {
        if (isDamage(m_context->errorCode()))
            return moveAside(m_context->errorMessage());
        return fail(Outcome::Unreadable, QStringLiteral("The store %1 cannot be loaded."));
    }
    m_open = true;
    for (const char* suffix : sideSuffixes)
        PrivateFiles::keepFile(storePath() + QLatin1String(suffix));
    return {Outcome::Opened, {}, {}};
}

// A busy file is looked at again for a while: another program may be copying or checking it.
Store::Inspection Store::inspect() const
{
    QElapsedTimer waited;
    waited.start();
    Inspection found = inspectOnce();
    while (found == Inspection::Busy && waited.elapsed() < m_patienceMs) {
        QThread::msleep(100);
        found = inspectOnce();
    }
    return found;
}

Store::Inspection Store::inspectOnce() const
{
    QFile file(storePath());
    if (!file.exists() || file.size() == 0)
        return Inspection::Usable;
    if (!file.open(QIODevice::ReadOnly))
        return Inspection::Unreadable;
    const QByteArray header = file.read(100);
    if (header.size() < 100 || !header.startsWith(QByteArrayView("SQLite format 3\0", 16)))
        return Inspection::NotADatabase;
    file.close();
    // Marked read-only by its owner (asked of the mode, so that it holds for every user).
    if (!(QFileInfo(storePath()).permissions() & QFileDevice::WriteOwner))
        return Inspection::ReadOnly;

    // A read-only look, which cannot change the file whatever it holds.
    Db db(storePath(), true);
    // Waiting is done here, between looks, so that a busy file is told as such.
    db.setBusyTimeout(50);
    if (!db.isOpen()) {
        if (db.isOutOfSpace())
            return Inspection::NoRoom;
        return isBusy(db.errorCode()) ? Inspection::Busy : Inspection::Unreadable;
    }
    switch (StoreSchema::check(db)) {
    case StoreSchema::Check::Fresh:
    case StoreSchema::Check::Ours:
        return Inspection::Usable;
    case StoreSchema::Check::Foreign:
        return Inspection::Foreign;
    case StoreSchema::Check::Newer:
        return Inspection::Newer;
    case StoreSchema::Check::Damaged:
        return Inspection::Damaged;
    case StoreSchema::Check::Unknown:
        break;
    }
    // The look could not be completed: only damage that SQLite found says anything.
    if (isDamage(db.errorCode()))
        return Inspection::Damaged;
    if (db.isOutOfSpace())
        return Inspection::NoRoom;
    return isBusy(db.errorCode()) ? Inspection::Busy : Inspection::Unreadable;
}

Store::Result Store::moveAside(const QString& why)
{
    close();
    const QString stamp = m_clock.now().toString(
        DateFormat::custom(QStringLiteral("yyyyMMdd-HHmmss"), QStringLiteral("en_US")));
    const QString aside = storePath() + QStringLiteral(".unreadable-") + stamp;
    if (!QFile::rename(storePath(), aside)) {
        return {Outcome::OpenFailed,
                QStringLiteral("The store %1 could not be used (%2), and could not be moved "
                               "aside either.")
                    .arg(storePath(), why),
                {}};
    }
    // The side files go with it, keeping their suffixes, so the moved store opens with its log.
    for (const char* suffix : sideSuffixes) {
        const QString side = storePath() + QLatin1String(suffix);
        if (QFile::exists(side))
            QFile::rename(side, aside + QLatin1String(suffix));
    }
    return {Outcome::MovedAside,
            QStringLiteral("The store could not be used (%1). It was moved to %2; Lullet will "
                           "start with an empty store next time.")
                .arg(why, aside),
            aside};
}

void Store::removeFiles(const QString& path)
{
    QFile::remove(path);
    for (const char* suffix : sideSuffixes)
        QFile::remove(path + QLatin1String(suffix));
}

// The main file and any side files it has, as one.
bool Store::renameFiles(const QString& from, const QString& to)
{
    if (QFile::exists(from) && !QFile::rename(from, to))
        return false;
    for (const char* suffix : sideSuffixes) {
        const QString side = from + QLatin1String(suffix);
        if (QFile::exists(side))
            QFile::rename(side, to + QLatin1String(suffix));
    }
    return true;
}

Store::Result Store::replaceWith(const QString& source)
{
    // Closing the last connection folds the log into the file: what was saved is in it.
    close();
    const QString live = storePath();
    const QString kept = live + QStringLiteral(".before-restore");
    removeFiles(kept);
    if (!renameFiles(live, kept)) {
        Result reopened = openFile();
        reopened.message = QStringLiteral("The store could not be set aside for the restore; "
                                          "nothing was restored.");
        return reopened;
    }
    // No side file of the old store may stand beside the new one: SQLite would replay it.
    removeFiles(live);
    Result opened{
        Outcome::OpenFailed, QStringLiteral("%1 could not be copied into place.").arg(source), {}};
    if (QFile::copy(source, live)) {
        PrivateFiles::keepFile(live);
        opened = openFile();
    }
    if (opened.outcome == Outcome::Opened) {
        removeFiles(kept);
        return opened;
    }
    // The old store goes back exactly as it was.
    close();
    removeFiles(live);
    renameFiles(kept, live);
    Result back = openFile();
    back.outcome = back.outcome == Outcome::Opened ? Outcome::OpenFailed : back.outcome;
    back.message = QStringLiteral("The restore failed (%1); your store was put back as it was.")
                       .arg(opened.message);
    return back;
}

} // namespace lullet
