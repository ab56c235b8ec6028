#include "support/FolderTest.h"
#include "ui/desktop/SingleInstance.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace lullet;

namespace {

// A client of the instance's socket, connected and blocking, as a launch would be.
int connectedTo(const QString& socketPath)
{
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray path = QFile::encodeName(socketPath);
    std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
    if (::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0) {
        ::close(fd);
        return -1;
    }
    return fd;
}

// The instance has closed its end.
bool letGo(int fd)
{
    char byte = 0;
    return ::recv(fd, &byte, 1, MSG_DONTWAIT) == 0;
}

} // namespace

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
        const int fd = connectedTo(first.socketPath());
        QVERIFY(fd >= 0);
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

    // A receiver may open a dialog, whose event loop runs inside the signal while the client
    // that asked goes away: each request still comes once, in order.
    void aRequestMayOpenADialog()
    {
        SingleInstance first(runtime());
        QCOMPARE(first.claim(), SingleInstance::Role::Primary);
        QStringList heard;
        connect(&first, &SingleInstance::requestReceived, this, [&heard](const QString& request) {
            heard << request;
            if (heard.size() == 1)
                QTest::qWait(200);
        });
        const int fd = connectedTo(first.socketPath());
        QVERIFY(fd >= 0);
        const QByteArray lines = "show\nquick-add\n";
        QCOMPARE(::send(fd, lines.constData(), std::size_t(lines.size()), MSG_NOSIGNAL),
                 lines.size());
        ::close(fd);
        QTRY_COMPARE(heard.size(), 2);
        QTest::qWait(50);
        QCOMPARE(heard, (QStringList{QStringLiteral("show"), QStringLiteral("quick-add")}));
    }

    // Strangers who connect and say nothing can't hold the line: beyond a few the oldest go at
    // once, the rest after a moment, and a launch still gets through.
    void silentClientsAreLetGo()
    {
        using namespace std::chrono_literals;
        SingleInstance first(runtime(), 500ms);
        QCOMPARE(first.claim(), SingleInstance::Role::Primary);
        QSignalSpy requests(&first, &SingleInstance::requestReceived);
        std::vector<int> silent;
        for (std::size_t i = 0; i < SingleInstance::maxClients + 4; ++i) {
            silent.push_back(connectedTo(first.socketPath()));
            QVERIFY(silent.back() >= 0);
            QCoreApplication::processEvents();
        }
        QTRY_VERIFY(std::all_of(silent.begin(), silent.begin() + 4, letGo));
        QVERIFY(std::none_of(silent.begin() + 4, silent.end(), letGo));
        QVERIFY(SingleInstance(runtime()).forward(QStringLiteral("show")));
        QTRY_COMPARE(requests.count(), 1);
        QTRY_VERIFY(std::all_of(silent.begin(), silent.end(), letGo));
        for (const int fd : silent)
            ::close(fd);
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
