#include "core/store/Store.h"

#include "core/dates/Clock.h"
#include "core/settings/PrivateFiles.h"
#include "core/store/StoreFiles.h"
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

// A process stopped in the middle of a change left what only a connection that may write can
// undo: a journal to roll back, or a log to recover.
bool needsRecovery(int code)
{
    return code == SQLITE_READONLY_ROLLBACK || code == SQLITE_READONLY_RECOVERY;
}

// SQLite's own words for a failure, or nothing when there was none.
QString sqliteWords(const Db& db)
{
    return db.errorCode() == SQLITE_OK ? QString() : QStringLiteral(" (%1)").arg(db.errorMessage());
}

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

QString Store::preparedPath() const
{
    return storePath() + QStringLiteral(".restoring");
}

QString Store::keptPath() const
{
    return storePath() + QStringLiteral(".before-restore");
}

bool Store::isWorkingFile(const QString& path) const
{
    const QString chosen = QFileInfo(path).canonicalFilePath();
    if (chosen.isEmpty())
        return false;
    for (const QString& main : {storePath(), preparedPath(), keptPath()}) {
        QStringList files{main};
        for (const char* suffix : StoreFiles::sideSuffixes)
            files << main + QLatin1String(suffix);
        for (const QString& file : std::as_const(files)) {
            if (QFileInfo(file).canonicalFilePath() == chosen)
                return true;
        }
    }
    return false;
}

Store::Result Store::open()
{
    const QFileInfo info(m_folder);
    if (info.exists() && !info.isDir()) {
        return {Outcome::FolderIsFile,
                QCoreApplication::translate(
                    "Store", "Expected a folder to store application data, found a file %1.")
                    .arg(m_folder),
                {}};
    }
    if (!PrivateFiles::makeFolder(m_folder)) {
        return {Outcome::FolderNotCreated,
                QCoreApplication::translate(
                    "Store", "There was an error creating or loading the application's saved "
                             "data. The folder %1 could not be created.")
                    .arg(m_folder),
                {}};
    }
    // A restore's copy left behind by a stop is of no use: a restore makes its own.
    StoreFiles::remove(preparedPath());
    QString notice;
    if (std::optional<Result> failed = putBackAfterCutRestore(notice))
        return *failed;
    Result opened = openFile();
    if (opened.outcome == Outcome::Opened)
        opened.message = notice;
    return opened;
}

// A restore stopped between setting the store aside and putting the new one in its place leaves
// no store and the one it set aside: that one comes back, and the user is told, rather than a
// launch starting empty.
std::optional<Store::Result> Store::putBackAfterCutRestore(QString& notice)
{
    if (QFile::exists(storePath()) || !QFile::exists(keptPath()))
        return std::nullopt;
    if (!StoreFiles::rename(keptPath(), storePath())) {
        return Result{Outcome::OpenFailed,
                      QCoreApplication::translate(
                          "Store", "Lullet was stopped during a restore, and your store could not "
                                   "be put back. Rename %1 to %2, then start Lullet again.")
                          .arg(keptPath(), storePath()),
                      {}};
    }
    StoreFiles::sync(m_folder);
    notice = QCoreApplication::translate(
        "Store", "Lullet was stopped during a restore. Your data is as it was before it.");
    return std::nullopt;
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
std::optional<Store::Result> Store::refusal(Inspection found)
{
    switch (found) {
    case Inspection::Usable:
        return std::nullopt;
    case Inspection::NotADatabase:
        return moveAside(QCoreApplication::translate("Store", "the file is not a database"));
    case Inspection::Foreign:
        return moveAside(QCoreApplication::translate("Store", "the file is not a Lullet store"));
    case Inspection::Newer:
        return moveAside(QCoreApplication::translate(
            "Store", "the store was written by a newer version of Lullet"));
    case Inspection::Damaged:
        return moveAside(QCoreApplication::translate("Store", "the store is damaged"));
    case Inspection::Busy:
        return fail(Outcome::InUse, QCoreApplication::translate(
                                        "Store", "The store %1 is in use by another program. "
                                                 "Close it and start Lullet again."));
    case Inspection::Unreadable:
        return fail(Outcome::Unreadable,
                    QCoreApplication::translate("Store", "The store %1 cannot be read."));
    case Inspection::ReadOnly:
        return fail(Outcome::ReadOnly,
                    QCoreApplication::translate(
                        "Store", "The store %1 is read-only. Lullet saves every change as it "
                                 "happens: make the file writable and start Lullet again."));
    case Inspection::NoRoom:
        return diskFull();
    }
    return std::nullopt;
}

// Opens the file as found usable and brings its layout up to date.
std::optional<Store::Result> Store::openDatabase()
{
    m_db = Db(storePath());
    if (!m_db.isOpen())
        return fail(Outcome::Unreadable,
                    QCoreApplication::translate("Store", "The store %1 cannot be opened."));
    keepPrivate();
    if (!m_db.queryText("PRAGMA journal_mode = WAL"))
        return fail(isBusy(m_db.errorCode()) ? Outcome::InUse : Outcome::Unreadable,
                    QCoreApplication::translate("Store", "The store %1 cannot be read."));
    if (!StoreSchema::migrate(m_db)) {
        if (isDamage(m_db.errorCode()))
            return moveAside(m_db.errorMessage());
        return fail(Outcome::OpenFailed,
                    QCoreApplication::translate("Store", "The store %1 cannot be brought up to "
                                                         "date."));
    }
    if (!StoreSchema::hasTables(m_db))
        return fail(Outcome::MissingTables,
                    QCoreApplication::translate(
                        "Store", "The store %1 lacks Lullet's tables. Move that file aside "
                                 "(rename it), and Lullet will start afresh with an empty "
                                 "store."));
    // Changes are safe once written to the log; the log is made durable at checkpoints.
    m_db.exec("PRAGMA synchronous = NORMAL");
    m_db.exec("PRAGMA foreign_keys = ON");
    // The records are read once into memory and written in small batches: a large page cache
    // would only hold the store a second time, all day.
    m_db.exec("PRAGMA cache_size = -512");
    return std::nullopt;
}

Store::Result Store::openFile()
{
    if (std::optional<Result> refused = refusal(inspect()))
        return *refused;
    if (std::optional<Result> failed = openDatabase())
        return *failed;
    if (!m_context) {
        m_context = std::make_unique<ObjectContext>(m_db);
        m_history = std::make_unique<HistoryOnDisk>(*m_context, m_db);
    }
    // The day's work needs the open items and the recent past; older history is read when a
    // list asks for it.
    const Date historyBefore =
        m_clock.now().dateAtStartOfDay().dateByAddingDays(-residentHistoryDays);
    if (!m_context->load(historyBefore)) {
        if (isDamage(m_context->errorCode()))
            return moveAside(m_context->errorMessage());
        return fail(Outcome::Unreadable,
                    QCoreApplication::translate("Store", "The store %1 cannot be loaded."));
    }
    m_open = true;
    // The log and its shared memory exist by now.
    keepPrivate();
    return {Outcome::Opened, {}, {}};
}

void Store::keepPrivate() const
{
    PrivateFiles::keepFile(storePath());
    for (const char* suffix : StoreFiles::sideSuffixes)
        PrivateFiles::keepFile(storePath() + QLatin1String(suffix));
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
    StoreSchema::Check found = StoreSchema::check(db);
    if (found == StoreSchema::Check::Unknown && needsRecovery(db.errorCode())) {
        recover();
        db = Db(storePath(), true);
        db.setBusyTimeout(50);
        found = StoreSchema::check(db);
    }
    switch (found) {
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

// What SQLite does on any open for writing, and only that: it puts back the file as it was
// before the change cut short, whatever program made it.
void Store::recover() const
{
    Db db(storePath());
    db.setBusyTimeout(50);
    db.queryInt("SELECT count(*) FROM sqlite_schema");
}

Store::Result Store::moveAside(const QString& why)
{
    close();
    const QString stamp = m_clock.now().toString(
        DateFormat::custom(QStringLiteral("yyyyMMdd-HHmmss"), QStringLiteral("en_US")));
    const QString aside = storePath() + QStringLiteral(".unreadable-") + stamp;
    // The side files go with it, keeping their suffixes, so the moved store opens with its log.
    if (!StoreFiles::rename(storePath(), aside)) {
        return {Outcome::OpenFailed,
                QCoreApplication::translate(
                    "Store", "The store %1 could not be used (%2), and could not be moved "
                             "aside either.")
                    .arg(storePath(), why),
                {}};
    }
    return {Outcome::MovedAside,
            QCoreApplication::translate(
                "Store", "The store could not be used (%1). It was moved to %2; Lullet will "
                         "start with an empty store next time.")
                .arg(why, aside),
            aside};
}

Store::Result Store::replaceWith(const QString& prepared)
{
    // What comes in is on the disk before anything is renamed: a crash finds it whole or absent.
    if (!StoreFiles::sync(prepared)) {
        return {Outcome::OpenFailed,
                QCoreApplication::translate(
                    "Store", "The restored copy could not be written to the disk, so nothing was "
                             "restored."),
                {}};
    }
    // Closing the last connection folds the log into the file: what was saved is in it.
    close();
    const QString live = storePath();
    const QString kept = keptPath();
    // The store in use takes the place of what an earlier restore set aside in one step, so one
    // of the two is always there; that one's side files must not meet it.
    StoreFiles::removeSideFiles(kept);
    if (!StoreFiles::rename(live, kept)) {
        Result reopened = openFile();
        if (reopened.outcome == Outcome::Opened)
            reopened.outcome = Outcome::OpenFailed;
        reopened.message = QCoreApplication::translate(
            "Store", "Your store could not be set aside for the restore, so nothing was "
                     "restored.");
        return reopened;
    }
    const bool placed = StoreFiles::rename(prepared, live);
    StoreFiles::sync(m_folder);
    Result opened = placed ? openFile()
                           : Result{Outcome::OpenFailed,
                                    QCoreApplication::translate(
                                        "Store", "The restored copy could not be put in place."),
                                    {}};
    if (opened.outcome != Outcome::Opened)
        return putBack(opened);
    StoreFiles::remove(kept);
    return opened;
}

// The store that was in use goes back exactly as it was, and opens again.
Store::Result Store::putBack(const Result& failed)
{
    close();
    StoreFiles::remove(storePath());
    StoreFiles::rename(keptPath(), storePath());
    StoreFiles::sync(m_folder);
    Result back = openFile();
    if (back.outcome == Outcome::Opened)
        back.outcome = Outcome::OpenFailed;
    back.message = QCoreApplication::translate(
                       "Store", "The restore failed (%1); your store was put back as it was.")
                       .arg(failed.message);
    return back;
}

} // namespace lullet
