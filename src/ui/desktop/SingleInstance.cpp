#include "ui/desktop/SingleInstance.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QPointer>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QStringList>
#include <QThread>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace lullet {

namespace {

// How long a second launch waits for a first one that is still starting to listen.
constexpr int startingMs = 5000;

bool addressFor(const QString& path, sockaddr_un& address)
{
    const QByteArray encoded = QFile::encodeName(path);
    address = {};
    address.sun_family = AF_UNIX;
    if (std::size_t(encoded.size()) >= sizeof(address.sun_path))
        return false;
    std::memcpy(address.sun_path, encoded.constData(), std::size_t(encoded.size()));
    return true;
}

} // namespace

SingleInstance::Client::~Client()
{
    notifier.reset();
    if (fd >= 0)
        ::close(fd);
}

QString SingleInstance::defaultFolder()
{
    QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!runtime.isEmpty())
        return runtime;
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation))
        .filePath(QStringLiteral("lullet"));
}

SingleInstance::SingleInstance(QString folder, std::chrono::milliseconds patience, QObject* parent)
    : QObject(parent)
    , m_folder(std::move(folder))
    , m_patience(patience)
{
    m_sweep.setInterval(m_patience / 2);
    connect(&m_sweep, &QTimer::timeout, this, &SingleInstance::dropSilentClients);
}

SingleInstance::~SingleInstance()
{
    m_clients.clear();
    m_listening.reset();
    if (m_serverFd >= 0)
        ::close(m_serverFd);
    if (m_lockFd >= 0)
        ::close(m_lockFd);
}

QString SingleInstance::socketPath() const
{
    return QDir(m_folder).filePath(QStringLiteral("lullet.socket"));
}

// The folder is ours alone: made 0700 if missing, and refused if another user owns it or may
// write to it, since whoever can write there could answer in our place.
bool SingleInstance::usableFolder()
{
    const QByteArray path = QFile::encodeName(m_folder);
    if (!QDir().mkpath(QFileInfo(m_folder).path()) ||
        (::mkdir(path.constData(), 0700) != 0 && errno != EEXIST)) {
        m_error = tr("Cannot make the folder %1.").arg(m_folder);
        return false;
    }
    struct stat info = {};
    if (::lstat(path.constData(), &info) != 0 || !S_ISDIR(info.st_mode) ||
        info.st_uid != ::getuid() || (info.st_mode & 0022) != 0) {
        m_error = tr("The folder %1 is not private to this user; Lullet will not use "
                     "it to talk to itself.")
                      .arg(m_folder);
        return false;
    }
    return true;
}

SingleInstance::Role SingleInstance::claim(std::chrono::milliseconds patience)
{
    if (!usableFolder())
        return Role::Failed;
    const QByteArray lockPath =
        QFile::encodeName(QDir(m_folder).filePath(QStringLiteral("lullet.lock")));
    m_lockFd = ::open(lockPath.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (m_lockFd < 0) {
        m_error = tr("Cannot open the lock file in %1.").arg(m_folder);
        return Role::Failed;
    }
    const QDeadlineTimer deadline(patience);
    while (::flock(m_lockFd, LOCK_EX | LOCK_NB) != 0) {
        if (deadline.hasExpired()) {
            ::close(m_lockFd);
            m_lockFd = -1;
            return Role::Secondary;
        }
        QThread::msleep(50);
    }
    if (!listen()) {
        m_error = tr("Cannot listen on %1.").arg(socketPath());
        return Role::Failed;
    }
    return Role::Primary;
}

bool SingleInstance::forward(const QString& request) const
{
    sockaddr_un address;
    if (!addressFor(socketPath(), address))
        return false;
    const QByteArray line = request.toUtf8() + '\n';
    QElapsedTimer waited;
    waited.start();
    do {
        const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        if (fd < 0)
            return false;
        const bool sent =
            ::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0 &&
            ::send(fd, line.constData(), std::size_t(line.size()), MSG_NOSIGNAL) == line.size();
        ::close(fd);
        if (sent)
            return true;
        QThread::msleep(50);
    } while (waited.elapsed() < startingMs);
    return false;
}

// The lock is ours, so whatever socket lies here was left by an instance that died.
bool SingleInstance::listen()
{
    sockaddr_un address;
    if (!addressFor(socketPath(), address))
        return false;
    ::unlink(address.sun_path);
    m_serverFd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (m_serverFd < 0 ||
        ::bind(m_serverFd, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0 ||
        ::chmod(address.sun_path, 0600) != 0 || ::listen(m_serverFd, 8) != 0)
        return false;
    m_listening = std::make_unique<QSocketNotifier>(m_serverFd, QSocketNotifier::Read);
    connect(m_listening.get(), &QSocketNotifier::activated, this, &SingleInstance::accept);
    return true;
}

void SingleInstance::accept()
{
    for (;;) {
        const int fd = ::accept4(m_serverFd, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (fd < 0) {
            // Out of descriptors, the waiting connection would wake the loop again at once, for
            // ever: listening rests a moment instead.
            if (errno == EMFILE || errno == ENFILE) {
                m_listening->setEnabled(false);
                QTimer::singleShot(m_patience / 4, this, [this] { m_listening->setEnabled(true); });
            }
            return;
        }
        if (m_clients.size() >= maxClients)
            dropOldestClient();
        auto client = std::make_unique<Client>();
        client->fd = fd;
        client->deadline = QDeadlineTimer(m_patience);
        client->notifier = std::make_unique<QSocketNotifier>(fd, QSocketNotifier::Read);
        connect(client->notifier.get(), &QSocketNotifier::activated, this,
                [this, fd] { read(fd); });
        m_clients[fd] = std::move(client);
        if (!m_sweep.isActive())
            m_sweep.start();
    }
}

void SingleInstance::dropOldestClient()
{
    const auto oldest =
        std::min_element(m_clients.begin(), m_clients.end(), [](const auto& a, const auto& b) {
            return a.second->deadline < b.second->deadline;
        });
    m_clients.erase(oldest);
}

void SingleInstance::dropSilentClients()
{
    std::erase_if(m_clients, [](const auto& entry) { return entry.second->deadline.hasExpired(); });
    if (m_clients.empty())
        m_sweep.stop();
}

void SingleInstance::read(int fd)
{
    const auto found = m_clients.find(fd);
    if (found == m_clients.end())
        return;
    Client& client = *found->second;
    char buffer[maxRequestBytes + 1];
    const ssize_t got = ::recv(fd, buffer, sizeof(buffer), 0);
    if (got < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (got > 0)
        client.pending.append(buffer, got);
    QStringList requests;
    for (qsizetype end = client.pending.indexOf('\n'); end >= 0;
         end = client.pending.indexOf('\n')) {
        const QString request = QString::fromUtf8(client.pending.left(end)).trimmed();
        client.pending.remove(0, end + 1);
        if (!request.isEmpty())
            requests << request;
    }
    // The client is done, or sends what no request is: either way it goes.
    if (got <= 0 || client.pending.size() > maxRequestBytes)
        m_clients.erase(found);
    // Told only now, with nothing of the client held: a receiver may open a dialog whose event
    // loop reads from this client again, or lets it go.
    const QPointer<SingleInstance> self(this);
    for (const QString& request : std::as_const(requests)) {
        if (!self)
            return;
        Q_EMIT requestReceived(request);
    }
}

} // namespace lullet
