#include "support/FolderTest.h"
#include "ui/desktop/SingleInstance.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

using namespace lullet;

// One instance per user: the claim, the hand-over of requests, and what a stranger can't do.
class TestSingleInstance : public test::FolderTest {
    Q_OBJECT
    QString runtime() const { return path(QStringLiteral("run")); }

    // The runtime folder, the user's alone unless others are given rights to it too.
    void makeRuntime(QFileDevice::Permissions others = {}) const
    {
        QVERIFY(QDir().mkpath(runtime()));
        QFile::setPermissions(runtime(), QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                             QFileDevice::ExeOwner | others);
    }

private Q_SLOTS:
    void oneInstanceTakesTheRequestsOfTheNext()
    {
        makeRuntime();
        // A file left where the socket belongs, as after a crash, is replaced.
        writeFile(QStringLiteral("run/lullet.socket"), {});
        SingleInstance first(runtime());
        QCOMPARE(first.claim(), SingleInstance::Role::Primary);
        QSignalSpy requests(&first, &SingleInstance::requestReceived);

        SingleInstance second(runtime());
        QCOMPARE(second.claim(), SingleInstance::Role::Secondary);
        QVERIFY(second.forward(QStringLiteral("quick-add")));
        QTRY_COMPARE(requests.count(), 1);
        QCOMPARE(requests.at(0).at(0).toString(), QStringLiteral("quick-add"));
        // The live instance's socket is still there for the next launch.
        SingleInstance third(runtime());
        QCOMPARE(third.claim(), SingleInstance::Role::Secondary);
        QVERIFY(third.forward(QStringLiteral("show")));
        QTRY_COMPARE(requests.count(), 2);
    }

    // A relaunch waits for the instance before it to let go, and only so long.
    void aRelaunchWaitsForTheEndingInstance()
    {
        makeRuntime();
        const QByteArray lockPath = QFile::encodeName(runtime() + QStringLiteral("/lullet.lock"));
        const int ending = ::open(lockPath.constData(), O_RDWR | O_CREAT, 0600);
        QVERIFY(ending >= 0);
        QCOMPARE(::flock(ending, LOCK_EX | LOCK_NB), 0);
        using namespace std::chrono_literals;
        SingleInstance impatient(runtime());
        QCOMPARE(impatient.claim(100ms), SingleInstance::Role::Secondary);
        std::thread quitting([ending] {
            std::this_thread::sleep_for(300ms);
            ::close(ending);
        });
        SingleInstance relaunched(runtime());
        const SingleInstance::Role role = relaunched.claim(10s);
        quitting.join();
        QCOMPARE(role, SingleInstance::Role::Primary);
    }

    void aClientThatNeverEndsItsLineIsCutOff()
    {
        SingleInstance first(runtime());
        QCOMPARE(first.claim(), SingleInstance::Role::Primary);
        QSignalSpy requests(&first, &SingleInstance::requestReceived);
        const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        const QByteArray path = QFile::encodeName(first.socketPath());
        std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
        QCOMPARE(::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
        // Written until the other end closes: it stops reading long before 64 MiB.
        const QByteArray chunk(4096, 'x');
        qint64 written = 0;
        QTRY_VERIFY_WITH_TIMEOUT(
            [&] {
                const ssize_t n = ::send(fd, chunk.constData(), std::size_t(chunk.size()),
                                         MSG_NOSIGNAL | MSG_DONTWAIT);
                if (n > 0)
                    written += n;
                return n < 0 && errno == EPIPE;
            }(),
            5000);
        ::close(fd);
        QVERIFY(written < 4 * 1024 * 1024);
        QCOMPARE(requests.count(), 0);
    }

    void aFolderOthersMayWriteIsRefused()
    {
        makeRuntime(QFileDevice::WriteOther | QFileDevice::ReadOther | QFileDevice::ExeOther);
        SingleInstance instance(runtime());
        QCOMPARE(instance.claim(), SingleInstance::Role::Failed);
        QVERIFY(instance.errorMessage().contains(runtime()));
    }

    void aMissingFolderIsMadePrivate()
    {
        SingleInstance instance(runtime());
        QCOMPARE(instance.claim(), SingleInstance::Role::Primary);
        QCOMPARE(QFileInfo(runtime()).permissions() & 0x7077,
                 QFileDevice::Permissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                          QFileDevice::ExeOwner));
    }
};

LULLET_TEST_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
