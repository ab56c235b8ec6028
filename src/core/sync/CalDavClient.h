#pragma once

#include "core/sync/DavXml.h"
#include "core/sync/HttpPort.h"

#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <vector>

namespace lullet {

// The CalDAV conversation over an HTTP port: finding the collection of to-dos, asking what
// changed in it, reading and writing its resources. Every write is conditional (If-Match, or
// If-None-Match for a new resource), so that nothing another client wrote meanwhile is
// overwritten unseen. Answers that don't say what they should are refused, never half read.
class CalDavClient {
public:
    enum class Problem {
        None,
        Unreachable,
        Certificate,
        LoginRefused,
        // The server forbids what was asked, or refused the resource sent.
        Refused,
        NotFound,
        // Neither the URL nor the user's calendars hold a collection for to-dos.
        NoTaskList,
        Garbage,
        ServerError,
        // The resource changed on the server since it was read (412).
        Conflict,
        // The collection no longer knows the sync token.
        TokenExpired,
        Aborted,
    };
    struct Outcome {
        Problem problem = Problem::None;
        QString detail;
        bool ok() const { return problem == Problem::None; }
    };
    struct Member {
        QString href;
        QString etag;
    };
    struct Changes {
        std::vector<Member> changed;
        QStringList removed;
        QString token;
        // The server sent part of the changes: ask again from the new token.
        bool truncated = false;
    };
    struct Collection {
        QUrl url;
        // The collection answers sync reports (RFC 6578); else it is followed by its ctag.
        bool syncReport = false;
    };

    explicit CalDavClient(HttpPort& port);

    // The collection at `start`, or the first one for to-dos in the calendar home of the user
    // that `start` (a server's address) names.
    void discover(const QUrl& start, const std::function<void(Outcome, Collection)>& done);
    void changesSince(const QUrl& collection, const QString& token,
                      const std::function<void(Outcome, Changes)>& done);
    void ctag(const QUrl& collection, const std::function<void(Outcome, QString)>& done);
    void members(const QUrl& collection,
                 const std::function<void(Outcome, std::vector<Member>)>& done);
    // The resources' texts, in one request.
    void fetch(const QUrl& collection, const QStringList& hrefs,
               const std::function<void(Outcome, std::vector<DavXml::Resource>)>& done);
    // Writes the resource if it is still at version `etag`, or, with no etag, only if it does
    // not exist. Answers the new version, when the server tells it.
    void put(const QUrl& url, const QByteArray& body, const QString& etag,
             const std::function<void(Outcome, QString)>& done);
    // Deletes the resource if it is still at version `etag`; one already gone is no failure.
    void remove(const QUrl& url, const QString& etag, const std::function<void(Outcome)>& done);

    static QUrl urlOf(const QUrl& collection, const QString& href);

private:
    using Parsed = std::function<void(Outcome, const DavXml::Multistatus&)>;
    void send(HttpRequest request, std::function<void(const HttpResponse&)> done);
    // A request whose answer is a multistatus document.
    void ask(const QByteArray& method, const QUrl& url, int depth, const QByteArray& body,
             Parsed done);
    void propfind(const QUrl& url, int depth, const QByteArray& query, int redirects,
                  const std::function<void(Outcome, const DavXml::Multistatus&, QUrl)>& done);
    // The calendars of the user a URL that is no calendar belongs to.
    void findPrincipal(const QUrl& url, const std::function<void(Outcome, Collection)>& done);
    void findHome(const QUrl& principal, const std::function<void(Outcome, Collection)>& done);
    void pickCalendar(const QUrl& home, const std::function<void(Outcome, Collection)>& done);
    static Outcome outcomeOf(const HttpResponse& response);

    HttpPort& m_port;
};

} // namespace lullet
