#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QUrl>

#include <functional>

namespace lullet {

struct HttpRequest {
    QByteArray method;
    QUrl url;
    QList<QPair<QByteArray, QByteArray>> headers;
    QByteArray body;
};

struct HttpResponse {
    // Why no answer came; an answer of any status is no failure here.
    enum class Failure {
        None,
        // The host is unknown, refused the connection or did not answer in time.
        Unreachable,
        // The server's certificate did not verify.
        Certificate,
        // The connection was closed before the answer was complete.
        Broken,
        // The request was abandoned.
        Aborted,
    };
    Failure failure = Failure::None;
    // The network's own words for a failure.
    QString detail;
    int status = 0;
    // Header names in lower case.
    QList<QPair<QByteArray, QByteArray>> headers;
    QByteArray body;

    QByteArray header(const QByteArray& lowerName) const
    {
        for (const auto& h : headers) {
            if (h.first == lowerName)
                return h.second;
        }
        return {};
    }
};

// What synchronisation needs of HTTP: requests answered later, on the main thread, never inside
// the call. The user's credentials belong to the port, which answers the server's challenges with
// them; a 401 reaches the caller only when they were refused.
class HttpPort {
public:
    using Done = std::function<void(const HttpResponse&)>;
    virtual ~HttpPort() = default;
    virtual void send(const HttpRequest& request, Done done) = 0;
    // Every request under way is answered at once as aborted.
    virtual void abortAll() = 0;
};

} // namespace lullet
