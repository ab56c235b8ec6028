#include "core/store/Db.h"
#include "core/store/Store.h"
#include "support/FakeClock.h"
#include "support/FolderTest.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>

#include <csignal>

namespace {

// Starts the writer and kills it at a random moment after its first line.
QByteArray killedAtRandom(const QStringList& arguments, QRandomGenerator& random)
{
    QProcess writer;
    writer.start(QStringLiteral(CRASH_WRITER), arguments);
    if (!writer.waitForStarted())
        return {};
    if (!QTest::qWaitFor([&writer] { return writer.canReadLine(); }, 10000))
        return {};
    QTest::qWait(int(random.bounded(5, 60)));
    ::kill(pid_t(writer.processId()), SIGKILL);
    writer.waitForFinished(5000);
    return writer.readAllStandardOutput();
}

// A store file in rollback-journal mode, as a restore brings it in, with one item.
QString storeWith(const QString& folder, const QString& title)
{
    const lullet::test::FakeClock clock;
    {
        lullet::Store store(folder, clock);
        store.open();
        store.context().insertItem()->setTitle(title);
        store.context().save();
    }
    const QString path = QDir(folder).filePath(QStringLiteral("Lullet.sqlite"));
    lullet::Db(path).exec("PRAGMA journal_mode = DELETE");
    return path;
}

} // namespace

// Processes that save or restore in a loop, killed at random moments: every change committed is
// still there, and the store is whole, every time.
class TestCrashSafety : public lullet::test::FolderTest {
    Q_OBJECT
private Q_SLOTS:
    void killedWhileSavingLosesNothing()
    {
        const QString folder = path(QStringLiteral("data"));
        QRandomGenerator random(20261122);
        int lastCommitted = 0;
        for (int round = 0; round < 50; ++round) {
            // Past the first commit of this round, then a random moment.
            const QList<QByteArray> lines = killedAtRandom({folder}, random).split('\n');
            for (const QByteArray& line : lines) {
                if (!line.isEmpty())
                    lastCommitted = std::max(lastCommitted, line.toInt());
            }
            lullet::Db db(QDir(folder).filePath(QStringLiteral("Lullet.sqlite")));
            QCOMPARE(db.queryText("PRAGMA integrity_check").value_or(QString()),
                     QStringLiteral("ok"));
            // Every number up to the last one printed is there.
            QCOMPARE(db.queryInt(QByteArray("SELECT count(*) FROM ReminderInfo WHERE "
                                            "CAST(title AS INTEGER) <= " +
                                            QByteArray::number(lastCommitted))
                                     .constData())
                         .value_or(-1),
                     qint64(lastCommitted));
        }
        QVERIFY(lastCommitted > 50);
    }

    // Restores cut short at any moment: the next launch finds one store or the other, whole,
    // never an empty one.
    void killedWhileRestoringLosesNothing()
    {
        const QString folder = path(QStringLiteral("data"));
        const QString first = storeWith(path(QStringLiteral("a")), QStringLiteral("A"));
        const QString second = storeWith(path(QStringLiteral("b")), QStringLiteral("B"));
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(QFile::copy(first, QDir(folder).filePath(QStringLiteral("Lullet.sqlite"))));
        QRandomGenerator random(20261124);
        const lullet::test::FakeClock clock;
        int restores = 0;
        for (int round = 0; round < 40; ++round) {
            restores +=
                int(killedAtRandom({folder, QStringLiteral("restore"), first, second}, random)
                        .count('\n'));
            lullet::Store store(folder, clock);
            QCOMPARE(store.open().outcome, lullet::Store::Outcome::Opened);
            QCOMPARE(store.context().items().size(), std::size_t(1));
            const QString title = store.context().items().front()->title().value_or(QString());
            QVERIFY2(title == QStringLiteral("A") || title == QStringLiteral("B"),
                     qPrintable(title));
            QCOMPARE(store.db().queryText("PRAGMA integrity_check"), QStringLiteral("ok"));
            QVERIFY(!QFile::exists(store.preparedPath()));
        }
        // Each round waited for a restore done before its kill.
        QVERIFY(restores >= 40);
    }
};

LULLET_TEST_MAIN(TestCrashSafety)
#include "tst_crashsafety.moc"
