#include "ui/desktop/SingleInstance.h"

#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>

#include <unistd.h>

namespace lullet {

namespace {
constexpr int answerMs = 1000;
} // namespace

SingleInstance::SingleInstance(QString socketPath, QObject* parent)
    : QObject(parent)
    , m_path(std::move(socketPath))
{
}

SingleInstance::~SingleInstance() = default;

QString SingleInstance::defaultSocketPath()
{
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (!runtime.isEmpty())
        return QDir(runtime).filePath(QStringLiteral("lullet.socket"));
    return QDir::temp().filePath(QStringLiteral("lullet-%1.socket").arg(::getuid()));
}

bool SingleInstance::forward(const QString& request) const
{
    QLocalSocket socket;
    socket.connectToServer(m_path);
    if (!socket.waitForConnected(answerMs))
        return false;
    socket.write(request.toUtf8() + '\n');
    // Written at once, or after a wait: either way it is on its way.
    const bool sent = socket.waitForBytesWritten(answerMs) || socket.bytesToWrite() == 0;
    socket.disconnectFromServer();
    return sent;
}

bool SingleInstance::listen()
{
    // Somebody answers: another instance runs. Nobody: whatever lies there was left by a crash.
    // (Listening would not tell: it replaces an existing socket file.)
    if (forward(QString()))
        return false;
    QLocalServer::removeServer(m_path);
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    if (!m_server->listen(m_path))
        return false;
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* client = m_server->nextPendingConnection()) {
            connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
            connect(client, &QLocalSocket::readyRead, this, [this, client] {
                while (client->canReadLine()) {
                    const QString request = QString::fromUtf8(client->readLine()).trimmed();
                    if (!request.isEmpty())
                        Q_EMIT requestReceived(request);
                }
            });
        }
    });
    return true;
}

} // namespace lullet
