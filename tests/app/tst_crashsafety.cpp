#include "core/store/Db.h"
#include "support/FolderTest.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>

#include <csignal>

// A process that saves in a loop, killed at random moments: every change it committed is still
// there, and the file is whole, every time.
class TestCrashSafety : public lullet::test::FolderTest {
    Q_OBJECT
private Q_SLOTS:
    void killedWhileSavingLosesNothing()
    {
        const QString folder = path(QStringLiteral("data"));
        QRandomGenerator random(20261122);
        int lastCommitted = 0;
        for (int round = 0; round < 50; ++round) {
            QProcess writer;
            writer.start(QStringLiteral(CRASH_WRITER), {folder});
            QVERIFY(writer.waitForStarted());
            // Past the first commit of this round, then a random moment.
            QTRY_VERIFY_WITH_TIMEOUT(writer.canReadLine(), 10000);
            QTest::qWait(int(random.bounded(5, 60)));
            ::kill(pid_t(writer.processId()), SIGKILL);
            QVERIFY(writer.waitForFinished(5000));
            const QList<QByteArray> lines = writer.readAllStandardOutput().split('\n');
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
};

LULLET_TEST_MAIN(TestCrashSafety)
#include "tst_crashsafety.moc"
