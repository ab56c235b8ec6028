#include "core/store/Db.h"
#include "core/store/ObjectContext.h"
#include "core/store/Store.h"
#include "core/store/StoreSchema.h"
#include "support/FakeClock.h"
#include "support/FolderTest.h"
#include "support/FullDisk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace lullet;
using namespace lullet::test;

namespace {

QStringList asideFiles(const QString& folder)
{
    QStringList stores;
    for (const QString& name :
         QDir(folder).entryList({QStringLiteral("Lullet.sqlite.unreadable-*")}, QDir::Files)) {
        if (!name.endsWith(QStringLiteral("-wal")) && !name.endsWith(QStringLiteral("-shm")))
            stores << name;
    }
    return stores;
}

// The store as a process stopped in the middle of a change leaves it: pages of a transaction that
// never committed written to the file, and the journal that undoes them beside it.
void leaveHotJournal(const QString& path)
{
    {
        Db db(path);
        QVERIFY(db.queryText("PRAGMA journal_mode = DELETE") == QStringLiteral("delete"));
    }
    const QString work = path + QStringLiteral(".work");
    QVERIFY(QFile::copy(path, work));
    Db db(work);
    // A small cache spills the transaction's pages into the file before it ends.
    QVERIFY(db.exec("PRAGMA cache_size = 10; BEGIN IMMEDIATE"));
    for (int i = 0; i < 200; ++i)
        QVERIFY(db.exec("INSERT INTO ReminderInfo (title) VALUES (printf('%.4000c', 'x'))"));
    QVERIFY(QFile::exists(work + QStringLiteral("-journal")));
    QVERIFY(QFile::remove(path));
    QVERIFY(QFile::copy(work, path));
    QVERIFY(QFile::copy(work + QStringLiteral("-journal"), path + QStringLiteral("-journal")));
}

} // namespace

class TestStore : public FolderTest {
    Q_OBJECT
    FakeClock m_clock{Date(1'795'340'000)};

    QString storeFolder() const { return path(QStringLiteral("data/Lullet")); }
    QString storeFile() const { return path(QStringLiteral("data/Lullet/Lullet.sqlite")); }

private Q_SLOTS:
    // The folder and the files are the user's alone.
    void firstRunCreatesTheFolderAndAWalStore()
    {
        Store store(storeFolder(), m_clock);
        const auto result = store.open();
        QCOMPARE(result.outcome, Store::Outcome::Opened);
        QVERIFY(QFileInfo(storeFolder()).isDir());
        QCOMPARE(store.db().queryText("PRAGMA journal_mode").value_or(QString()),
                 QStringLiteral("wal"));
        QCOMPARE(store.db().queryInt("PRAGMA application_id").value_or(0),
                 StoreSchema::applicationId);
        QCOMPARE(store.db().queryInt("PRAGMA user_version").value_or(0),
                 StoreSchema::latestVersion());
        store.context().insertProject()->setName(QStringLiteral("Home"));
        QVERIFY(store.context().save());
        const auto owner = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
        QCOMPARE(QFileInfo(storeFolder()).permissions() & 0x7077,
                 QFileDevice::Permissions(owner | QFileDevice::ExeOwner));
        for (const QString& suffix : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")})
            QCOMPARE(QFileInfo(storeFile() + suffix).permissions() & 0x7077,
                     QFileDevice::Permissions(owner));
    }

    void everyAttributeSurvivesAReload()
    {
        {
            Store store(storeFolder(), m_clock);
            QCOMPARE(store.open().outcome, Store::Outcome::Opened);
            ObjectContext& ctx = store.context();
            Project* home = ctx.insertProject();
            home->setName(QStringLiteral("Hôme"));
            home->setCreatedDate(Date(1'700'000'000.5));
            Rule* rule = ctx.insertRule();
            rule->setUniqueId(QStringLiteral("Water time_1700000000.25"));
            rule->setTitle(QStringLiteral("Water time"));
            rule->setRepeatInterval(1);
            rule->setRepeatIntervalType(1);
            rule->setRepeatOption(1);
            rule->setDtRepeatUpto(Date(1'800'000'000));
            rule->setIsCustom(false);
            rule->setIsToDoOrJob(true);
            rule->setIsActive(true);
            Item* item = ctx.insertItem();
            QCOMPARE(item->hasFinished(), std::optional<bool>(false));
            item->setUniqueId(QStringLiteral("<to make>"));
            item->setTitle(QStringLiteral("Write report — ünïcode"));
            item->setNotes(QString());
            item->setDurationHr(1);
            item->setDurationMin(30);
            item->setShouldRemind(true);
            item->setRemindBefore(3);
            item->setDtReminder(Date(1'795'340'100));
            item->setDtReminderPostponed(Date(1'795'340'700));
            item->setRepeatOption(-5);
            item->setHasStarted(false);
            item->setTimeLimit(5400);
            item->setElapsedTime(12);
            item->setTimeLimitExtendedBy(600);
            item->setRunningTimeCovered(7);
            item->setToProject(home);
            Item* bare = ctx.insertItem();
            bare->setHasFinished(std::nullopt);
            QVERIFY(ctx.hasChanges());
            QVERIFY(ctx.save());
            QVERIFY(!ctx.hasChanges());
            QVERIFY(item->rowId() > 0);
        }
        Store store(storeFolder(), m_clock);
        QCOMPARE(store.open().outcome, Store::Outcome::Opened);
        ObjectContext& ctx = store.context();
        QCOMPARE(ctx.projects().size(), std::size_t(1));
        QCOMPARE(ctx.rules().size(), std::size_t(1));
        QCOMPARE(ctx.items().size(), std::size_t(2));
        Project* home = ctx.projects().front();
        QCOMPARE(*home->name(), QStringLiteral("Hôme"));
        QCOMPARE(*home->createdDate(), Date(1'700'000'000.5));
        QVERIFY(!home->uniqueId());
        const Rule* rule = ctx.rules().front();
        QCOMPARE(*rule->uniqueId(), QStringLiteral("Water time_1700000000.25"));
        QCOMPARE(*rule->isCustom(), false);
        QCOMPARE(*rule->isActive(), true);
        QVERIFY(!rule->notes());
        Item* item = ctx.items()[0]->title() ? ctx.items()[0] : ctx.items()[1];
        QCOMPARE(*item->title(), QStringLiteral("Write report — ünïcode"));
        QCOMPARE(item->notes(), std::optional<QString>(QString()));
        QCOMPARE(item->uniqueId(), std::optional<QString>(QStringLiteral("<to make>")));
        QCOMPARE(item->durationHr(), std::optional<int>(1));
        QCOMPARE(*item->durationMin(), 30);
        QCOMPARE(item->shouldRemind(), std::optional<bool>(true));
        QCOMPARE(item->remindBefore(), std::optional<int>(3));
        QCOMPARE(item->dtReminder(), std::optional<Date>(Date(1'795'340'100)));
        QCOMPARE(*item->repeatOption(), -5);
        QCOMPARE(*item->effectiveDate(), Date(1'795'340'700));
        // Flags keep "false" apart from "not set".
        QCOMPARE(item->hasStarted(), std::optional<bool>(false));
        QCOMPARE(item->hasFinished(), std::optional<bool>(false));
        QCOMPARE(item->timeLimit(), std::optional<int>(5400));
        QCOMPARE(item->elapsedTime(), std::optional<int>(12));
        QCOMPARE(item->timeLimitExtendedBy(), std::optional<int>(600));
        QCOMPARE(*item->runningTimeCovered(), 7);
        QVERIFY(!item->repeatInterval());
        QVERIFY(!item->repeatIntervalType());
        QVERIFY(!item->dtRepeatUpto());
        QCOMPARE(item->toProject(), home);
        QCOMPARE(home->toReminders().size(), std::size_t(1));
        QCOMPARE(home->toReminders().front(), item);
        const Item* bare = item == ctx.items()[0] ? ctx.items()[1] : ctx.items()[0];
        QVERIFY(!bare->hasFinished());
        QVERIFY(!bare->toProject());
        QVERIFY(!bare->title() && !bare->notes() && !bare->shouldRemind() && !bare->hasStarted());
        QVERIFY(!bare->dtReminder() && !bare->effectiveDate() && !bare->runningTimeCovered());
    }

    void onlyRealChangesCount()
    {
        Store store(storeFolder(), m_clock);
        QCOMPARE(store.open().outcome, Store::Outcome::Opened);
        ObjectContext& ctx = store.context();
        Item* item = ctx.insertItem();
        item->setTitle(QStringLiteral("Tea"));
        QVERIFY(ctx.save());
        item->setTitle(QStringLiteral("Tea"));
        QVERIFY(!ctx.hasChanges());
        item->setTitle(QStringLiteral("Coffee"));
        QVERIFY(ctx.hasChanges());
        QVERIFY(ctx.save());
        // A record deleted before its first save never reaches the file.
        Item* scratch = ctx.insertItem();
        ctx.deleteObject(scratch);
        QVERIFY(!ctx.hasChanges());
        QVERIFY(!scratch->hasContext());
        QCOMPARE(store.db().queryInt("SELECT count(*) FROM ReminderInfo").value_or(-1), 1);

        // A reset detaches the records, which keep their values, and reads the store anew.
        ctx.reset();
        QVERIFY(!item->hasContext());
        QCOMPARE(*item->title(), QStringLiteral("Coffee"));
        QCOMPARE(ctx.items().size(), std::size_t(1));
        QVERIFY(ctx.items().front() != item);
        QCOMPARE(*ctx.items().front()->title(), QStringLiteral("Coffee"));
    }

    void deletingKeepsMemoryAndRelationshipsInStep()
    {
        Store store(storeFolder(), m_clock);
        QCOMPARE(store.open().outcome, Store::Outcome::Opened);
        ObjectContext& ctx = store.context();
        Project* work = ctx.insertProject();
        Item* a = ctx.insertItem();
        Item* b = ctx.insertItem();
        a->setToProject(work);
        b->setToProject(work);
        QVERIFY(ctx.save());
        ctx.deleteObject(a);
        QVERIFY(a->isDeleted());
        QVERIFY(!a->hasContext());
        QCOMPARE(work->toReminders(), std::vector<Item*>{b});
        ctx.deleteObject(work);
        QVERIFY(!b->toProject());
        QCOMPARE(ctx.items(), std::vector<Item*>{b});
        QVERIFY(ctx.save());
        QCOMPARE(store.db().queryInt("SELECT count(*) FROM Project").value_or(-1), 0);
        QCOMPARE(store.db()
                     .queryInt("SELECT count(*) FROM ReminderInfo WHERE toProject IS NULL")
                     .value_or(-1),
                 1);
        // Writing to a deleted record changes nothing.
        a->setTitle(QStringLiteral("ghost"));
        QVERIFY(!ctx.hasChanges());
    }

    void aFailedSaveKeepsEveryChangeForTheNextTry()
    {
        Store store(storeFolder(), m_clock);
        QCOMPARE(store.open().outcome, Store::Outcome::Opened);
        ObjectContext& ctx = store.context();
        QVERIFY(store.db().exec("CREATE TRIGGER refuse BEFORE INSERT ON ReminderInfo "
                                "BEGIN SELECT RAISE(ABORT, 'disk is full'); END"));
        Project* p = ctx.insertProject();
        Item* item = ctx.insertItem();
        item->setToProject(p);
        QVERIFY(!ctx.save());
        QVERIFY(ctx.errorMessage().contains(QStringLiteral("disk is full")));
        QVERIFY(ctx.hasChanges());
        QCOMPARE(p->rowId(), 0);
        QCOMPARE(store.db().queryInt("SELECT count(*) FROM Project").value_or(-1), 0);
        QVERIFY(store.db().exec("DROP TRIGGER refuse"));
        QVERIFY(ctx.save());
        QCOMPARE(store.db().queryInt("SELECT toProject FROM ReminderInfo").value_or(-1),
                 p->rowId());
    }

    void aFileWhereTheFolderShouldBeEndsTheBuild()
    {
        QVERIFY(QDir().mkpath(path(QStringLiteral("data"))));
        writeFile(storeFolder(), "not a folder");
        Store store(storeFolder(), m_clock);
        const auto result = store.open();
        QCOMPARE(result.outcome, Store::Outcome::FolderIsFile);
        QCOMPARE(result.message,
                 QStringLiteral("Expected a folder to store application data, found a file %1.")
                     .arg(storeFolder()));
        QCOMPARE(readFile(storeFolder()), QByteArray("not a folder"));
        QVERIFY(!store.isOpen());
    }

    void unusableFilesAreMovedAsideNeverDeleted_data()
    {
        QTest::addColumn<QByteArray>("setupSql");
        QTest::addColumn<QByteArray>("garbage");
        QTest::newRow("not a database") << QByteArray() << QByteArray(8192, 'x');
        QTest::newRow("another program's database")
            << QByteArray("CREATE TABLE notes (id INTEGER PRIMARY KEY, body TEXT);"
                          "INSERT INTO notes (body) VALUES ('keep me');")
            << QByteArray();
        QTest::newRow("written by a newer Lullet")
            << QByteArray("PRAGMA application_id = 1282763884; PRAGMA user_version = 99;"
                          "CREATE TABLE Future (id INTEGER);")
            << QByteArray();
        QTest::newRow("a version below zero")
            << QByteArray("PRAGMA application_id = 1282763884; PRAGMA user_version = -3;"
                          "CREATE TABLE Past (id INTEGER);")
            << QByteArray();
    }

    void unusableFilesAreMovedAsideNeverDeleted()
    {
        QFETCH(QByteArray, setupSql);
        QFETCH(QByteArray, garbage);
        QVERIFY(QDir().mkpath(storeFolder()));
        const QString path = storeFile();
        if (!garbage.isEmpty()) {
            writeFile(path, garbage);
            writeFile(path + QStringLiteral("-wal"), "log");
        } else {
            Db db(path);
            QVERIFY(db.exec(setupSql.constData()));
        }
        const QByteArray before = readFile(path);

        {
            Store store(storeFolder(), m_clock);
            const auto result = store.open();
            QCOMPARE(result.outcome, Store::Outcome::MovedAside);
            QVERIFY(!QFile::exists(path));
            QCOMPARE(asideFiles(storeFolder()).size(), 1);
            QCOMPARE(readFile(result.movedTo), before);
            QVERIFY(result.message.contains(result.movedTo));
            if (!garbage.isEmpty())
                QCOMPARE(readFile(result.movedTo + QStringLiteral("-wal")), QByteArray("log"));
        }
        // The next launch starts empty, and the moved file is still there.
        Store next(storeFolder(), m_clock);
        QCOMPARE(next.open().outcome, Store::Outcome::Opened);
        QVERIFY(next.context().items().empty());
        QCOMPARE(asideFiles(storeFolder()).size(), 1);
    }

    // Only a file that positively is not ours is moved; one that is busy, read-only or lacks
    // its tables is left exactly as it is, and the message says why in words.
    void aStoreThatIsOnlyInTheWayIsNeverMoved()
    {
        {
            Store store(storeFolder(), m_clock);
            QCOMPARE(store.open().outcome, Store::Outcome::Opened);
            store.context().insertItem()->setTitle(QStringLiteral("Keep me"));
            QVERIFY(store.context().save());
        }
        const QString path = storeFile();
        {
            // Another program holds the file to itself.
            Db holder(path);
            QVERIFY(holder.exec("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE;"));
            Store store(storeFolder(), m_clock, 300);
            const auto result = store.open();
            QCOMPARE(result.outcome, Store::Outcome::InUse);
            QVERIFY2(result.message.contains(QStringLiteral("in use")), qPrintable(result.message));
            QVERIFY(!result.message.contains(QStringLiteral("not an error")));
            QVERIFY(asideFiles(storeFolder()).isEmpty());
        }
        QFile::setPermissions(path, QFileDevice::ReadOwner);
        {
            Store store(storeFolder(), m_clock);
            const auto result = store.open();
            QCOMPARE(result.outcome, Store::Outcome::ReadOnly);
            QVERIFY(result.message.contains(path));
        }
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        {
            Db db(path);
            QVERIFY(db.exec("DROP TABLE Project"));
        }
        {
            Store store(storeFolder(), m_clock);
            const auto result = store.open();
            QCOMPARE(result.outcome, Store::Outcome::MissingTables);
            QVERIFY(result.message.contains(path));
            QVERIFY(!result.message.contains(QStringLiteral("not an error")));
        }
        QVERIFY(asideFiles(storeFolder()).isEmpty());
        Db db(path, true);
        QCOMPARE(db.queryInt("SELECT count(*) FROM ReminderInfo").value_or(-1), 1);
    }

    void impossibleValuesOnDiskReadAsMissing()
    {
        {
            Store store(storeFolder(), m_clock);
            QCOMPARE(store.open().outcome, Store::Outcome::Opened);
        }
        {
            // Another writer, without our foreign-key checks.
            Db db(storeFile());
            QVERIFY(db.exec(
                "INSERT INTO ReminderInfo (title, dtReminder, dtReminderPostponed, durationHr, "
                "hasFinished, toProject) VALUES (NULL, 1e300, 'yesterday', 99999999999, 'x', 42)"));
        }
        Store store(storeFolder(), m_clock);
        QCOMPARE(store.open().outcome, Store::Outcome::Opened);
        QCOMPARE(store.context().items().size(), std::size_t(1));
        const Item* item = store.context().items().front();
        QVERIFY(!item->title());
        QVERIFY(!item->dtReminder());
        QVERIFY(!item->durationHr());
        QVERIFY(!item->toProject());
    }

    // A disk without room is said as such, at a save and at a launch, and nothing is moved or
    // lost: the change waits for room, and the store opens once there is some.
    void aFullDiskIsSaidAsSuch()
    {
        FullDisk disk;
        {
            Store store(storeFolder(), m_clock);
            QCOMPARE(store.open().outcome, Store::Outcome::Opened);
            store.context().insertItem()->setTitle(QStringLiteral("Kept"));
            QVERIFY(store.context().save());
            disk.fill();
            store.context().insertItem()->setTitle(QStringLiteral("Waiting"));
            QVERIFY(!store.context().save());
            QCOMPARE(Db::inWords(store.context().errorCode(), store.context().errorMessage()),
                     QStringLiteral("the disk is full"));
            QVERIFY(store.context().hasChanges());
            disk.empty();
            QVERIFY(store.context().save());
        }
        disk.fill();
        for (const QString& where : {storeFolder(), path(QStringLiteral("first"))}) {
            Store store(where, m_clock);
            const Store::Result result = store.open();
            QCOMPARE(result.outcome, Store::Outcome::DiskFull);
            QVERIFY2(result.message.contains(QStringLiteral("is full")),
                     qPrintable(result.message));
        }
        QVERIFY(asideFiles(storeFolder()).isEmpty());
        disk.empty();
        Store store(storeFolder(), m_clock);
        QCOMPARE(store.open().outcome, Store::Outcome::Opened);
        QCOMPARE(store.context().items().size(), std::size_t(2));
    }

    // A transaction cut short left a journal that only a connection that may write can roll
    // back; the launch lets SQLite do so rather than call the store unreadable.
    void aJournalLeftByAStopIsRolledBack()
    {
        {
            Store store(storeFolder(), m_clock);
            QCOMPARE(store.open().outcome, Store::Outcome::Opened);
            store.context().insertItem()->setTitle(QStringLiteral("Kept"));
            QVERIFY(store.context().save());
        }
        leaveHotJournal(storeFile());
        Store store(storeFolder(), m_clock);
        QCOMPARE(store.open().outcome, Store::Outcome::Opened);
        QCOMPARE(store.context().items().size(), std::size_t(1));
        QCOMPARE(store.db().queryText("PRAGMA integrity_check"), QStringLiteral("ok"));
    }

    // A restore's swap: the new store comes in, or the old one stays in use whatever fails, and
    // a launch after a stop between the two finds the old one back in place, with a word.
    void aRestoreSwapsOrPutsBack()
    {
        const auto titles = [](Store& store) {
            QStringList list;
            for (const Item* item : store.context().items())
                list << item->title().value_or(QString());
            return list;
        };
        Store store(storeFolder(), m_clock);
        QCOMPARE(store.open().outcome, Store::Outcome::Opened);
        store.context().insertItem()->setTitle(QStringLiteral("Old"));
        QVERIFY(store.context().save());
        const QString incoming = path(QStringLiteral("incoming.sqlite"));
        {
            Store other(path(QStringLiteral("other")), m_clock);
            QCOMPARE(other.open().outcome, Store::Outcome::Opened);
            other.context().insertItem()->setTitle(QStringLiteral("New"));
            QVERIFY(other.context().save());
        }
        QVERIFY(QFile::copy(path(QStringLiteral("other/Lullet.sqlite")), incoming));

        // Garbage in place of a checked copy fails to open: the old store is put back.
        writeFile(store.preparedPath(), "not a store");
        Store::Result result = store.replaceWith(store.preparedPath());
        QVERIFY(result.outcome != Store::Outcome::Opened);
        QVERIFY2(result.message.contains(QStringLiteral("put back")), qPrintable(result.message));
        QCOMPARE(titles(store), QStringList{QStringLiteral("Old")});

        // The store in use can't be set aside: nothing is restored, and no success is told.
        QVERIFY(QDir().mkpath(store.keptPath() + QStringLiteral("/in the way")));
        QVERIFY(QFile::copy(incoming, store.preparedPath()));
        result = store.replaceWith(store.preparedPath());
        QVERIFY(result.outcome != Store::Outcome::Opened);
        QVERIFY2(result.message.contains(QStringLiteral("nothing was restored")),
                 qPrintable(result.message));
        QCOMPARE(titles(store), QStringList{QStringLiteral("Old")});
        QVERIFY(QDir(store.keptPath()).removeRecursively());

        result = store.replaceWith(store.preparedPath());
        QCOMPARE(result.outcome, Store::Outcome::Opened);
        QCOMPARE(titles(store), QStringList{QStringLiteral("New")});
        QVERIFY(!QFile::exists(store.keptPath()));
        QVERIFY(!QFile::exists(store.preparedPath()));
    }

    void aRestoreStoppedMidwayIsUndoneAtLaunch()
    {
        {
            Store store(storeFolder(), m_clock);
            QCOMPARE(store.open().outcome, Store::Outcome::Opened);
            store.context().insertItem()->setTitle(QStringLiteral("Before"));
            QVERIFY(store.context().save());
        }
        Store store(storeFolder(), m_clock);
        // Set aside, and the copy to come in not yet in place.
        QVERIFY(QFile::rename(store.storePath(), store.keptPath()));
        writeFile(store.preparedPath(), "half a copy");
        const Store::Result result = store.open();
        QCOMPARE(result.outcome, Store::Outcome::Opened);
        QVERIFY(result.message.contains(QStringLiteral("stopped during a restore")));
        QCOMPARE(store.context().items().size(), std::size_t(1));
        QVERIFY(!QFile::exists(store.keptPath()));
        QVERIFY(!QFile::exists(store.preparedPath()));
    }
};

LULLET_TEST_MAIN(TestStore)
#include "tst_store.moc"
