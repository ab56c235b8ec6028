#include "core/backup/BackupList.h"
#include "core/store/Db.h"
#include "core/store/StoreSchema.h"
#include "support/LaunchedTest.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <sys/stat.h>

using namespace lullet;
using namespace lullet::test;

namespace {

QByteArray digest(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256);
}

QStringList titlesIn(const QString& storeFile)
{
    Db db(storeFile, true);
    QStringList titles;
    for (qint64 i = 0; i < db.queryInt("SELECT count(*) FROM ReminderInfo").value_or(0); ++i) {
        const QByteArray sql =
            "SELECT title FROM ReminderInfo ORDER BY title LIMIT 1 OFFSET " + QByteArray::number(i);
        titles << db.queryText(sql.constData()).value_or(QString());
    }
    return titles;
}

} // namespace

// Copies of the store and restores from them, over a real store in a temporary folder.
class TestBackups : public LaunchedTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 10, 15, 30); }

    Backups& backups() { return services().backups; }

    void add(const QString& title)
    {
        app().addItem(title, at(2026, 11, 23, 12, 0));
        QVERIFY(library().save());
    }

    QStringList titles()
    {
        QStringList list = titlesOf(library().items());
        list.sort();
        return list;
    }

    BackupInfo listed(const QString& path, std::optional<Date> created)
    {
        writeFile(path, "x");
        return {path, created, QStringLiteral("1 byte"), QStringLiteral("Backup"), {}};
    }

    // Makes a manual copy and waits for it.
    void backUpTo(const QString& path)
    {
        QSignalSpy done(&backups(), &Backups::backedUp);
        backups().backUpTo(path);
        QVERIFY(done.wait(5000));
    }

private Q_SLOTS:
    // Committed rows still in the live store's log are in the copy, which is one whole file.
    void copiesAreWholeAndTheLaunchsIsListed()
    {
        add(QStringLiteral("Walk"));
        add(QStringLiteral("Read"));
        QVERIFY(QFile::exists(storePath() + QStringLiteral("-wal")));
        const QString copy = path(QStringLiteral("copy.sqlite"));
        backUpTo(copy);
        QCOMPARE(titlesIn(copy), (QStringList{QStringLiteral("Read"), QStringLiteral("Walk")}));
        Db db(copy, true);
        QCOMPARE(db.queryText("PRAGMA journal_mode"), QStringLiteral("delete"));
        QCOMPARE(db.queryInt("PRAGMA application_id"), qint64(StoreSchema::applicationId));
        QVERIFY(!QFile::exists(copy + QStringLiteral("-wal")));
        QVERIFY(!QFile::exists(copy + QStringLiteral("-shm")));
        QVERIFY(!QFile::exists(path(QStringLiteral("data/temp/copy.sqlite"))));
        // A copy saved by hand is not listed.
        QVERIFY(backups().list().entries().empty());

        // An existing destination is never overwritten, and the user is told.
        QSignalSpy failed(&backups(), &Backups::backupFailed);
        backups().backUpTo(copy);
        QVERIFY(failed.wait(5000));
        QVERIFY(failed.first().first().toString().contains(QStringLiteral("already exists")));

        // The launch's copy is listed, named by a moment a file name can hold.
        QSignalSpy created(&backups(), &Backups::backupCreated);
        backups().createLaunchBackup();
        QVERIFY(created.wait(5000));
        const std::vector<BackupInfo> list = backups().list().entries();
        QCOMPARE(list.size(), std::size_t(1));
        QCOMPARE(list[0].type, QStringLiteral("Backup"));
        QCOMPARE(*list[0].createdDate, at(2026, 11, 23, 10, 15, 30));
        QVERIFY(list[0].path.startsWith(backups().backupsFolder()));
        QCOMPARE(titlesIn(list[0].path),
                 (QStringList{QStringLiteral("Read"), QStringLiteral("Walk")}));
        QVERIFY(list[0].sizeDisplay.endsWith(QStringLiteral(" KB")));
        const QString name = QFileInfo(list[0].path).fileName();
        for (const QChar bad : {QChar(u':'), QChar(u'/'), QChar(0x202F), QChar(0x00A0)})
            QVERIFY2(!name.contains(bad), qPrintable(name));
        QVERIFY(name.startsWith(QStringLiteral("Backup-Nov 23  2026")));
        QVERIFY(backups().proposedFileName().startsWith(QStringLiteral("Lullet Backup-")));
        QCOMPARE(BackupList::sizeToDisplay(path(QStringLiteral("none"))),
                 QStringLiteral("Zero Byte"));
    }

    void retentionAtLaunch_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<QStringList>("kept");
        QTest::newRow("0 keeps all")
            << 0
            << QStringList{QStringLiteral("today"), QStringLiteral("six"), QStringLiteral("seven"),
                           QStringLiteral("gone"), QStringLiteral("undated")};
        QTest::newRow("1 keeps six days")
            << 1
            << QStringList{QStringLiteral("today"), QStringLiteral("six"),
                           QStringLiteral("undated")};
        QTest::newRow("2 keeps nothing") << 2 << QStringList{};
    }

    void retentionAtLaunch()
    {
        QFETCH(int, option);
        QFETCH(QStringList, kept);
        app().settings.setValue(SettingsKeys::backupOption, option);
        const QString folder = backups().backupsFolder();
        QDir().mkpath(folder);
        const auto listedAs = [&](const QString& name) {
            return QDir(folder).filePath(name + QStringLiteral(".sqlite"));
        };
        std::vector<BackupInfo> list = {
            listed(listedAs(QStringLiteral("today")), at(2026, 11, 23, 8, 0)),
            listed(listedAs(QStringLiteral("six")), at(2026, 11, 17, 0, 0)),
            listed(listedAs(QStringLiteral("seven")), at(2026, 11, 16, 0, 0)),
            {listedAs(QStringLiteral("gone")), at(2026, 10, 1), {}, QStringLiteral("Backup"), {}},
            listed(listedAs(QStringLiteral("undated")), std::nullopt),
        };
        // Someone else's file, named in the list: never deleted.
        const QString outside = path(QStringLiteral("mine.sqlite"));
        list.push_back(listed(outside, at(2026, 1, 1)));
        kept << (option == 0 ? QStringList{QStringLiteral("mine")} : QStringList{});
        app().settings.setValue(SettingsKeys::backupFiles2, BackupInfo::archive(list));

        backups().pruneAtLaunch();
        QStringList names;
        for (const BackupInfo& info : backups().list().entries())
            names << QFileInfo(info.path).completeBaseName();
        QCOMPARE(names, kept);
        QCOMPARE(QFile::exists(listedAs(QStringLiteral("seven"))), option == 0);
        QCOMPARE(QFile::exists(listedAs(QStringLiteral("today"))), option != 2);
        QVERIFY(QFile::exists(outside));
        if (kept.isEmpty())
            QVERIFY(!app().settings.contains(SettingsKeys::backupFiles2));
    }

    // Back up, change more, restore: the store is the backup again, the safety copy holds what
    // there was, and every list was read anew.
    void aRestoreRoundTrip()
    {
        app().addProject(QStringLiteral("Home"));
        add(QStringLiteral("Walk"));
        const QString copy = path(QStringLiteral("copy.sqlite"));
        backUpTo(copy);
        add(QStringLiteral("Read"));
        Item* running = library().items().front();
        app().running().start(*running);
        QSignalSpy restored(&backups(), &Backups::restored);
        QSignalSpy reloaded(&library(), &Library::itemsChanged);
        backups().restoreFrom(copy, QStringLiteral("Home"));
        QVERIFY(restored.wait(5000));
        QCOMPARE(restored.first().first().toString(), QStringLiteral("Home"));
        QCOMPARE(titles(), QStringList{QStringLiteral("Walk")});
        QVERIFY(library().projectNamed(QStringLiteral("Home")));
        QVERIFY(!app().running().item());
        QVERIFY(!running->hasContext());
        QVERIFY(!reloaded.isEmpty());
        QVERIFY(!QFile::exists(storePath() + QStringLiteral(".before-restore")));

        const std::vector<BackupInfo> list = backups().list().entries();
        QCOMPARE(list.size(), std::size_t(1));
        QCOMPARE(list[0].type, QStringLiteral("Restored Backup"));
        QCOMPARE(titlesIn(list[0].path),
                 (QStringList{QStringLiteral("Read"), QStringLiteral("Walk")}));
        // The chosen file was copied, not moved; the restored store saves as before.
        QVERIFY(QFile::exists(copy));
        add(QStringLiteral("Stretch"));
        QCOMPARE(titlesIn(storePath()),
                 (QStringList{QStringLiteral("Stretch"), QStringLiteral("Walk")}));
    }

    void aRefusedFileChangesNothing_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("because");
        QTest::newRow("text") << QStringLiteral("text") << QStringLiteral("not a database");
        QTest::newRow("empty") << QStringLiteral("empty") << QStringLiteral("not a database");
        QTest::newRow("truncated") << QStringLiteral("truncated") << QStringLiteral("damaged");
        QTest::newRow("foreign") << QStringLiteral("foreign") << QStringLiteral("another program");
        QTest::newRow("newer") << QStringLiteral("newer") << QStringLiteral("newer version");
        QTest::newRow("no tables")
            << QStringLiteral("tables") << QStringLiteral("lacks the tables");
        QTest::newRow("a folder") << QStringLiteral("folder") << QStringLiteral("Only a file");
        QTest::newRow("a pipe no one writes to")
            << QStringLiteral("pipe") << QStringLiteral("Only a file");
        QTest::newRow("a device") << QStringLiteral("device") << QStringLiteral("Only a file");
        QTest::newRow("the store in use")
            << QStringLiteral("store") << QStringLiteral("is the store Lullet is using");
        QTest::newRow("the store a restore set aside")
            << QStringLiteral("kept") << QStringLiteral("one Lullet works with");
        QTest::newRow("a copy being made")
            << QStringLiteral("work") << QStringLiteral("one Lullet works with");
    }

    void aRefusedFileChangesNothing()
    {
        QFETCH(QString, kind);
        QFETCH(QString, because);
        add(QStringLiteral("Walk"));
        QString chosen = path(QStringLiteral("chosen.sqlite"));
        if (kind == QStringLiteral("text") || kind == QStringLiteral("empty")) {
            writeFile(chosen, kind == QStringLiteral("text")
                                  ? "Dear diary, today I backed up nothing at all.\n"
                                  : QByteArray());
        } else if (kind == QStringLiteral("truncated")) {
            backUpTo(chosen);
            QFile f(chosen);
            QVERIFY(f.open(QIODevice::ReadWrite));
            QVERIFY(f.resize(f.size() / 2));
        } else if (kind == QStringLiteral("folder")) {
            QVERIFY(QDir().mkpath(chosen));
        } else if (kind == QStringLiteral("pipe")) {
            QCOMPARE(::mkfifo(QFile::encodeName(chosen).constData(), 0600), 0);
        } else if (kind == QStringLiteral("device")) {
            chosen = QStringLiteral("/dev/zero");
        } else if (kind == QStringLiteral("store")) {
            chosen = storePath();
        } else if (kind == QStringLiteral("kept") || kind == QStringLiteral("work")) {
            // A whole, good store, under the name of one of Lullet's own files.
            chosen = kind == QStringLiteral("kept")
                         ? storePath() + QStringLiteral(".before-restore")
                         : path(QStringLiteral("data/temp/copy.sqlite"));
            QVERIFY(QDir().mkpath(QFileInfo(chosen).path()));
            backUpTo(chosen);
        } else {
            Db other(chosen);
            if (kind == QStringLiteral("foreign")) {
                other.exec("CREATE TABLE notes (body TEXT)");
            } else {
                const QByteArray stamp =
                    "PRAGMA application_id = " + QByteArray::number(StoreSchema::applicationId);
                other.exec(stamp.constData());
                other.exec(kind == QStringLiteral("newer") ? "PRAGMA user_version = 999"
                                                           : "PRAGMA user_version = 1");
                other.exec("CREATE TABLE notes (body TEXT)");
            }
        }
        const QByteArray before = digest(storePath());
        QSignalSpy refused(&backups(), &Backups::restoreRefused);
        QSignalSpy created(&backups(), &Backups::backupCreated);
        backups().restoreFrom(chosen, QString());
        QTRY_COMPARE(refused.size(), 1);
        QVERIFY2(refused.first().first().toString().contains(because),
                 qPrintable(refused.first().first().toString()));
        QTest::qWait(50);
        QVERIFY(created.isEmpty());
        QVERIFY(!backups().isRestoring());
        QVERIFY(backups().list().entries().empty());
        QCOMPARE(digest(storePath()), before);
        QCOMPARE(titles(), QStringList{QStringLiteral("Walk")});
    }

    // A store in write-ahead mode comes with its log: what the check read there is restored,
    // through SQLite, as one whole file.
    void aFileWithItsLogIsRestoredWhole()
    {
        const QString chosen = path(QStringLiteral("chosen.sqlite"));
        {
            Launched other(path(QStringLiteral("other")), at(2026, 11, 23, 10, 15));
            QVERIFY(other.open());
            // Still open: what it saved lives in its log, not yet in the file.
            other.addItem(QStringLiteral("Walk"), at(2026, 11, 23, 12, 0));
            other.addItem(QStringLiteral("Read"), at(2026, 11, 23, 12, 0));
            QVERIFY(other.library().save());
            const QString source = path(QStringLiteral("other/data/Lullet.sqlite"));
            QVERIFY(QFile::copy(source, chosen));
            QVERIFY(QFile::copy(source + QStringLiteral("-wal"), chosen + QStringLiteral("-wal")));
        }
        QSignalSpy restored(&backups(), &Backups::restored);
        backups().restoreFrom(chosen, QString());
        QVERIFY(restored.wait(5000));
        QCOMPARE(titles(), (QStringList{QStringLiteral("Read"), QStringLiteral("Walk")}));
    }

    // A file far larger than its database (sparse, or grown by another program) comes in as the
    // database it holds, not as its apparent size.
    void aSparseFileIsCopiedAsItsData()
    {
        add(QStringLiteral("Walk"));
        const QString chosen = path(QStringLiteral("chosen.sqlite"));
        backUpTo(chosen);
        QFile grown(chosen);
        QVERIFY(grown.resize(qint64(256) << 20));
        QSignalSpy restored(&backups(), &Backups::restored);
        backups().restoreFrom(chosen, QString());
        QVERIFY(restored.wait(10000));
        QCOMPARE(titles(), QStringList{QStringLiteral("Walk")});
        QVERIFY(QFileInfo(storePath()).size() < (qint64(1) << 20));
    }

    // The store in use can't be set aside: nothing is restored, no success is told, and the
    // program goes on with its store.
    void aStoreThatCannotBeSetAsideIsNotReplaced()
    {
        add(QStringLiteral("Walk"));
        const QString copy = path(QStringLiteral("copy.sqlite"));
        backUpTo(copy);
        add(QStringLiteral("Read"));
        QVERIFY(QDir().mkpath(storePath() + QStringLiteral(".before-restore/in the way")));
        QSignalSpy restored(&backups(), &Backups::restored);
        QSignalSpy failed(&backups(), &Backups::restoreFailed);
        backups().restoreFrom(copy, QString());
        QVERIFY(failed.wait(5000));
        QVERIFY(failed.first().first().toString().contains(QStringLiteral("nothing was restored")));
        QVERIFY(restored.isEmpty());
        QCOMPARE(titles(), (QStringList{QStringLiteral("Read"), QStringLiteral("Walk")}));
        add(QStringLiteral("Stretch"));
        QCOMPARE(titlesIn(storePath()),
                 (QStringList{QStringLiteral("Read"), QStringLiteral("Stretch"),
                              QStringLiteral("Walk")}));
    }

    // An old copy whose file can't be deleted at launch stays listed, and that is said.
    void anUndeletableOldCopyStaysListed()
    {
        app().settings.setValue(SettingsKeys::backupOption, 2);
        const QString stuck =
            QDir(backups().backupsFolder()).filePath(QStringLiteral("stuck.sqlite"));
        QVERIFY(QDir().mkpath(stuck + QStringLiteral("/in the way")));
        app().settings.setValue(
            SettingsKeys::backupFiles2,
            BackupInfo::archive({{stuck, at(2026, 10, 1), {}, QStringLiteral("Backup"), {}}}));
        QSignalSpy failed(&backups(), &Backups::pruneFailed);
        backups().pruneAtLaunch();
        QCOMPARE(backups().list().entries().size(), std::size_t(1));
        QTRY_COMPARE(failed.size(), 1);
        QVERIFY(failed.first().first().toString().contains(stuck));
    }
};

LULLET_TEST_MAIN(TestBackups)
#include "tst_backups.moc"
