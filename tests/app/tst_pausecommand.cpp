#include "support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <csignal>

// `lullet --pause [MINUTES]` and `lullet --resume`, as a meeting tool runs them: handed to the
// running Lullet, whose pause they set.
class TestPauseCommand : public QObject {
    Q_OBJECT
    QTemporaryDir m_home;

    QProcessEnvironment environment() const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("HOME"), m_home.path());
        const QString runtime = QDir(m_home.path()).filePath(QStringLiteral("runtime"));
        QDir().mkpath(runtime);
        QFile::setPermissions(runtime, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                           QFileDevice::ExeOwner);
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime);
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        for (const char* var : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            env.remove(QString::fromLatin1(var));
        return env;
    }

    int run(const QStringList& arguments) const
    {
        QProcess second;
        second.setProcessEnvironment(environment());
        second.start(QStringLiteral(LULLET_BINARY), arguments);
        return second.waitForFinished(10000) ? second.exitCode() : -1;
    }

    QVariant pausedUntil() const
    {
        const QSettings settings(
            QDir(m_home.path()).filePath(QStringLiteral(".config/Lullet/Lullet.conf")),
            QSettings::IniFormat);
        return settings.value(QStringLiteral("remindersPausedUntil"));
    }

private Q_SLOTS:
    void theRunningLulletPausesAndResumes()
    {
        QProcess lullet;
        lullet.setProcessEnvironment(environment());
        lullet.start(QStringLiteral(LULLET_BINARY), {QStringLiteral("--in-tray")});
        QVERIFY(lullet.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(
            QFile::exists(QDir(m_home.path()).filePath(QStringLiteral("runtime/lullet.socket"))),
            10000);

        QCOMPARE(run({QStringLiteral("--pause"), QStringLiteral("30")}), 0);
        QTRY_VERIFY_WITH_TIMEOUT(pausedUntil().toDouble() > 0, 5000);
        const double end = pausedUntil().toDouble();
        const double now = double(QDateTime::currentSecsSinceEpoch());
        QVERIFY(end > now + 29 * 60 && end < now + 31 * 60);
        QCOMPARE(run({QStringLiteral("--resume")}), 0);
        QTRY_VERIFY_WITH_TIMEOUT(!pausedUntil().isValid(), 5000);
        QCOMPARE(run({QStringLiteral("--pause")}), 0);
        QTRY_COMPARE_WITH_TIMEOUT(pausedUntil().toInt(), -1, 5000);
        // Not a number of minutes: a wrong option, and nothing handed over.
        QCOMPARE(run({QStringLiteral("--pause"), QStringLiteral("soon")}), 2);

        ::kill(pid_t(lullet.processId()), SIGTERM);
        QVERIFY(lullet.waitForFinished(10000));
        QCOMPARE(lullet.exitCode(), 0);
    }
};

LULLET_TEST_MAIN(TestPauseCommand)

#include "tst_pausecommand.moc"
