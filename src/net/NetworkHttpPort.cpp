#include "net/NetworkHttpPort.h"

#include <QAuthenticator>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslError>

namespace lullet {

namespace {

// A server that stops answering is given up on after this long without a byte.
constexpr int transferTimeoutMs = 30000;

const char* const challengedProperty = "lulletChallenged";
const char* const sslProblemProperty = "lulletSslProblem";

HttpResponse::Failure failureOf(QNetworkReply::NetworkError error, bool aborting)
{
    switch (error) {
    case QNetworkReply::SslHandshakeFailedError:
        return HttpResponse::Failure::Certificate;
    case QNetworkReply::RemoteHostClosedError:
        return HttpResponse::Failure::Broken;
    case QNetworkReply::OperationCanceledError:
        return aborting ? HttpResponse::Failure::Aborted : HttpResponse::Failure::Unreachable;
    default:
        return HttpResponse::Failure::Unreachable;
    }
}

} // namespace

NetworkHttpPort::NetworkHttpPort(QString user, QString password, QObject* parent)
    : QObject(parent)
    , m_user(std::move(user))
    , m_password(std::move(password))
{
    connect(&m_network, &QNetworkAccessManager::authenticationRequired, this,
            &NetworkHttpPort::answerChallenge);
}

NetworkHttpPort::~NetworkHttpPort()
{
    abortAll();
}

void NetworkHttpPort::answerChallenge(QNetworkReply* reply, QAuthenticator* authenticator)
{
    // Asked again means refused: the request then ends with the server's 401.
    if (m_user.isEmpty() || reply->property(challengedProperty).toBool())
        return;
    reply->setProperty(challengedProperty, true);
    authenticator->setUser(m_user);
    authenticator->setPassword(m_password);
}

void NetworkHttpPort::send(const HttpRequest& request, Done done)
{
    QNetworkRequest wire(request.url);
    for (const auto& [name, value] : request.headers)
        wire.setRawHeader(name, value);
    // Redirects are the protocol's to follow, where it may.
    wire.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                      QNetworkRequest::ManualRedirectPolicy);
    wire.setTransferTimeout(transferTimeoutMs);
    QNetworkReply* reply = m_network.sendCustomRequest(wire, request.method, request.body);
    m_replies.append(reply);
    connect(reply, &QNetworkReply::sslErrors, reply, [reply](const QList<QSslError>& errors) {
        if (!errors.isEmpty())
            reply->setProperty(sslProblemProperty, errors.constFirst().errorString());
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply, done = std::move(done)] {
        m_replies.removeAll(reply);
        reply->deleteLater();
        done(responseOf(*reply));
    });
}

HttpResponse NetworkHttpPort::responseOf(QNetworkReply& reply) const
{
    HttpResponse response;
    response.status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (response.status == 0 && reply.error() != QNetworkReply::NoError) {
        response.failure = failureOf(reply.error(), m_aborting);
        const QString ssl = reply.property(sslProblemProperty).toString();
        response.detail = ssl.isEmpty() ? reply.errorString() : ssl;
        return response;
    }
    for (const auto& [name, value] : reply.rawHeaderPairs())
        response.headers.append({name.toLower(), value});
    response.body = reply.readAll();
    return response;
}

void NetworkHttpPort::abortAll()
{
    m_aborting = true;
    for (const QPointer<QNetworkReply>& reply : QList<QPointer<QNetworkReply>>(m_replies)) {
        if (reply)
            reply->abort();
    }
    m_aborting = false;
}

} // namespace lullet
