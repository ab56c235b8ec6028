#include "core/store/Db.h"
#include "support/FolderTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <csignal>
#include <memory>
#include <optional>
#include <vector>

// The real program, started and stopped as the desktop would.
class TestLifecycle : public lullet::test::FolderTest {
    Q_OBJECT

    // The test's folder is the program's home.
    QProcessEnvironment environment() const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("HOME"), folder());
        // A runtime folder of its own: the test's Lullet must not meet the user's.
        const QString runtime = path(QStringLiteral("runtime"));
        QDir().mkpath(runtime);
        QFile::setPermissions(runtime, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                           QFileDevice::ExeOwner);
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime);
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        for (const char* var : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            env.remove(QString::fromLatin1(var));
        return env;
    }

    QString storePath() const { return path(QStringLiteral(".local/share/Lullet/Lullet.sqlite")); }

    std::unique_ptr<QProcess> launch(const QStringList& arguments,
                                     std::optional<QProcessEnvironment> env = std::nullopt) const
    {
        auto lullet = std::make_unique<QProcess>();
        lullet->setProcessEnvironment(env.value_or(environment()));
        lullet->start(QStringLiteral(LULLET_BINARY), arguments);
        return lullet;
    }

    // Ends the program as the desktop does at logout: it must quit cleanly.
    static void terminate(QProcess& lullet)
    {
        ::kill(pid_t(lullet.processId()), SIGTERM);
        QVERIFY(lullet.waitForFinished(10000));
        QCOMPARE(lullet.exitStatus(), QProcess::NormalExit);
        QCOMPARE(lullet.exitCode(), 0);
    }

private Q_SLOTS:
    void sigtermSavesAndExitsCleanly_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("with its window") << QStringList{};
        QTest::newRow("at login, in the tray") << QStringList{QStringLiteral("--in-tray")};
    }

    void sigtermSavesAndExitsCleanly()
    {
        QFETCH(QStringList, arguments);
        const auto lullet = launch(arguments);
        QVERIFY(lullet->waitForStarted());
        // Killed while it may still be starting: the request waits for the quit path.
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(storePath()), 10000);
        terminate(*lullet);

        lullet::Db db(storePath(), true);
        QVERIFY(db.isOpen());
        QCOMPARE(db.queryText("PRAGMA quick_check").value_or(QString()), QStringLiteral("ok"));
        QCOMPARE(db.queryInt("SELECT count(*) FROM ReminderInfo").value_or(-1), 0);
    }

    void aSecondLaunchHandsOverAndEnds()
    {
        const auto first = launch({});
        QVERIFY(first->waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path(QStringLiteral("runtime/lullet.socket"))),
                                 10000);
        for (const QStringList& args :
             {QStringList{}, QStringList{QStringLiteral("--quick-add")}}) {
            const auto second = launch(args);
            QVERIFY(second->waitForFinished(10000));
            QCOMPARE(second->exitCode(), 0);
        }
        const auto wrong = launch({QStringLiteral("--verbose")});
        QVERIFY(wrong->waitForFinished(10000));
        QCOMPARE(wrong->exitCode(), 2);
        QCOMPARE(first->state(), QProcess::Running);
        terminate(*first);
    }

    // Five launches at the same moment, again and again: exactly one stays.
    void aBurstOfLaunchesLeavesOne()
    {
        for (int burst = 0; burst < 6; ++burst) {
            std::vector<std::unique_ptr<QProcess>> launches;
            for (int i = 0; i < 5; ++i)
                launches.push_back(launch({}));
            const auto ended = [&launches] {
                return std::count_if(launches.begin(), launches.end(), [](const auto& launch) {
                    return launch->state() == QProcess::NotRunning;
                });
            };
            QTRY_COMPARE_WITH_TIMEOUT(ended(), 4, 10000);
            QTest::qWait(200);
            QCOMPARE(ended(), 4);
            QProcess* survivor = nullptr;
            for (auto& launch : launches) {
                if (launch->state() != QProcess::NotRunning)
                    survivor = launch.get();
                else
                    QCOMPARE(launch->exitCode(), 0);
            }
            terminate(*survivor);
        }
    }

    void theUsersFilesArePrivate()
    {
        QProcessEnvironment env = environment();
        // Without a runtime folder, the socket goes to a private folder of its own.
        env.remove(QStringLiteral("XDG_RUNTIME_DIR"));
        const auto lullet = launch({}, env);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(storePath()), 10000);
        QTest::qWait(300);
        terminate(*lullet);
        const auto owner = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
        const QString data = QFileInfo(storePath()).path();
        QCOMPARE(QFileInfo(data).permissions() & 0x7077,
                 QFileDevice::Permissions(owner | QFileDevice::ExeOwner));
        QCOMPARE(QFileInfo(storePath()).permissions() & 0x7077, QFileDevice::Permissions(owner));
        const QString settings = path(QStringLiteral(".config/Lullet/Lullet.conf"));
        QCOMPARE(QFileInfo(settings).permissions() & 0x7077, QFileDevice::Permissions(owner));
        const QString runtime = path(QStringLiteral(".cache/lullet"));
        QCOMPARE(QFileInfo(runtime).permissions() & 0x7077,
                 QFileDevice::Permissions(owner | QFileDevice::ExeOwner));
    }

    // Help, the version and a wrong option are answered without a display; a launch without
    // one says so and ends.
    void theCommandLineNeedsNoDisplay_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("out");
        QTest::addColumn<QByteArray>("error");
        QTest::newRow("help") << "--help" << 0 << QByteArray("--quick-add  open the quick-add")
                              << QByteArray();
        QTest::newRow("version") << "--version" << 0 << QByteArray("lullet " PROJECT_VERSION "\n")
                                 << QByteArray();
        QTest::newRow("wrong") << "--bogus" << 2 << QByteArray()
                               << QByteArray("unknown option '--bogus'\nUsage: lullet");
        QTest::newRow("a plain launch")
            << "" << 1 << QByteArray() << QByteArray("Lullet: no display.");
    }

    void theCommandLineNeedsNoDisplay()
    {
        QFETCH(QString, option);
        QFETCH(int, status);
        QFETCH(QByteArray, out);
        QFETCH(QByteArray, error);
        QProcessEnvironment env = environment();
        env.remove(QStringLiteral("DISPLAY"));
        env.remove(QStringLiteral("WAYLAND_DISPLAY"));
        env.remove(QStringLiteral("QT_QPA_PLATFORM"));
        const auto lullet = launch(option.isEmpty() ? QStringList{} : QStringList{option}, env);
        QVERIFY(lullet->waitForFinished(10000));
        QCOMPARE(lullet->exitStatus(), QProcess::NormalExit);
        QCOMPARE(lullet->exitCode(), status);
        const QByteArray printed = lullet->readAllStandardOutput();
        const QByteArray complained = lullet->readAllStandardError();
        QVERIFY2(printed.contains(out), printed.constData());
        QVERIFY2(complained.contains(error), complained.constData());
        // Nothing was made in the home folder besides the test's runtime folder.
        QCOMPARE(QDir(folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList{QStringLiteral("runtime")});
    }

    void aFileInPlaceOfTheDataFolderEndsAtOnce()
    {
        QVERIFY(QDir().mkpath(path(QStringLiteral(".local/share"))));
        const QString blocker = writeFile(QStringLiteral(".local/share/Lullet"), {});
        const auto lullet = launch({});
        QVERIFY(lullet->waitForFinished(10000));
        QCOMPARE(lullet->exitCode(), 1);
        QVERIFY(QString::fromUtf8(lullet->readAllStandardError())
                    .contains(QStringLiteral("Expected a folder to store application data")));
        QVERIFY(QFileInfo(blocker).isFile());
    }
};

LULLET_TEST_MAIN(TestLifecycle)
#include "tst_lifecycle.moc"
