#include "core/store/Db.h"
#include "support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

// The real program, started and stopped as the desktop would.
class TestLifecycle : public QObject {
    Q_OBJECT

    static QProcessEnvironment environmentFor(const QString& home)
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("HOME"), home);
        // A runtime folder of its own: the test's Lullet must not meet the user's.
        const QString runtime = QDir(home).filePath(QStringLiteral("runtime"));
        QDir().mkpath(runtime);
        QFile::setPermissions(runtime, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                           QFileDevice::ExeOwner);
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime);
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        for (const char* var : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            env.remove(QString::fromLatin1(var));
        return env;
    }

    static QString storePath(const QString& home)
    {
        return QDir(home).filePath(QStringLiteral(".local/share/Lullet/Lullet.sqlite"));
    }

private Q_SLOTS:
    void sigtermSavesAndExitsCleanly()
    {
        QTemporaryDir home;
        QProcess lullet;
        lullet.setProcessEnvironment(environmentFor(home.path()));
        lullet.start(QStringLiteral(LULLET_BINARY), {});
        QVERIFY(lullet.waitForStarted());
        // Killed while it may still be starting: the request waits for the quit path.
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(storePath(home.path())), 10000);
        ::kill(pid_t(lullet.processId()), SIGTERM);
        QVERIFY(lullet.waitForFinished(10000));
        QCOMPARE(lullet.exitStatus(), QProcess::NormalExit);
        QCOMPARE(lullet.exitCode(), 0);

        lullet::Db db(storePath(home.path()), true);
        QVERIFY(db.isOpen());
        QCOMPARE(db.queryText("PRAGMA quick_check").value_or(QString()), QStringLiteral("ok"));
        QCOMPARE(db.queryInt("SELECT count(*) FROM ReminderInfo").value_or(-1), 0);
    }

    void aSecondLaunchHandsOverAndEnds()
    {
        QTemporaryDir home;
        QProcess first;
        first.setProcessEnvironment(environmentFor(home.path()));
        first.start(QStringLiteral(LULLET_BINARY), {});
        QVERIFY(first.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(
            QFile::exists(QDir(home.path()).filePath(QStringLiteral("runtime/lullet.socket"))),
            10000);
        for (const QStringList& args :
             {QStringList{}, QStringList{QStringLiteral("--quick-add")}}) {
            QProcess second;
            second.setProcessEnvironment(environmentFor(home.path()));
            second.start(QStringLiteral(LULLET_BINARY), args);
            QVERIFY(second.waitForFinished(10000));
            QCOMPARE(second.exitCode(), 0);
        }
        QProcess wrong;
        wrong.setProcessEnvironment(environmentFor(home.path()));
        wrong.start(QStringLiteral(LULLET_BINARY), {QStringLiteral("--verbose")});
        QVERIFY(wrong.waitForFinished(10000));
        QCOMPARE(wrong.exitCode(), 2);
        QCOMPARE(first.state(), QProcess::Running);
        ::kill(pid_t(first.processId()), SIGTERM);
        QVERIFY(first.waitForFinished(10000));
        QCOMPARE(first.exitCode(), 0);
    }

    void aFileInPlaceOfTheDataFolderEndsAtOnce()
    {
        QTemporaryDir home;
        const QString folder = QDir(home.path()).filePath(QStringLiteral(".local/share/Lullet"));
        QVERIFY(QDir().mkpath(QFileInfo(folder).path()));
        QFile blocker(folder);
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();

        QProcess lullet;
        lullet.setProcessEnvironment(environmentFor(home.path()));
        lullet.start(QStringLiteral(LULLET_BINARY), {});
        QVERIFY(lullet.waitForFinished(10000));
        QCOMPARE(lullet.exitCode(), 1);
        QVERIFY(QString::fromUtf8(lullet.readAllStandardError())
                    .contains(QStringLiteral("Expected a folder to store application data")));
        QVERIFY(QFileInfo(folder).isFile());
    }
};

LULLET_TEST_MAIN(TestLifecycle)
#include "tst_lifecycle.moc"
