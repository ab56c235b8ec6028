#pragma once

#include "core/sync/HttpPort.h"

#include <QList>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>

class QAuthenticator;
class QNetworkReply;

namespace lullet {

// HTTP through QtNetwork, asynchronous on the main thread. Certificates are checked against the
// system's authorities and one that does not verify fails the request; the user's name and
// password answer the server's challenge (Basic or Digest) once, so that refused ones come back
// as the server's 401.
class NetworkHttpPort final : public QObject, public HttpPort {
    Q_OBJECT
public:
    NetworkHttpPort(QString user, QString password, QObject* parent = nullptr);
    ~NetworkHttpPort() override;

    void send(const HttpRequest& request, Done done) override;
    void abortAll() override;

private:
    void answerChallenge(QNetworkReply* reply, QAuthenticator* authenticator);
    HttpResponse responseOf(QNetworkReply& reply) const;

    QNetworkAccessManager m_network;
    QString m_user;
    QString m_password;
    QList<QPointer<QNetworkReply>> m_replies;
    bool m_aborting = false;
};

} // namespace lullet
