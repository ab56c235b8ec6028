#include "core/sync/CalDavClient.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace lullet {

namespace {

const QByteArray xmlType = "application/xml; charset=utf-8";

// The server's own status and what was wrong with an answer, as the user reads them.
QString statusWords(int status)
{
    return QCoreApplication::translate("CalDavClient", "HTTP status %1").arg(status);
}

QString notMultistatus()
{
    return QCoreApplication::translate("CalDavClient", "no WebDAV answer");
}

bool isRedirect(int status)
{
    return status == 301 || status == 302 || status == 307 || status == 308;
}

// A collection's members are named relative to it: its path ends in "/".
QUrl asCollection(QUrl url)
{
    if (!url.path().endsWith(QLatin1Char('/')))
        url.setPath(url.path() + QLatin1Char('/'));
    return url;
}

const DavXml::Resource* resourceAt(const DavXml::Multistatus& answer, const QUrl& url)
{
    const QString path = asCollection(url).path(QUrl::FullyDecoded);
    for (const DavXml::Resource& r : answer.resources) {
        if (asCollection(QUrl(r.href)).path(QUrl::FullyDecoded) == path)
            return &r;
    }
    return answer.resources.size() == 1 ? &answer.resources.front() : nullptr;
}

} // namespace

CalDavClient::CalDavClient(HttpPort& port)
    : m_port(port)
{
}

QUrl CalDavClient::urlOf(const QUrl& collection, const QString& href)
{
    QUrl url = collection;
    url.setPath(href, QUrl::DecodedMode);
    return url;
}

CalDavClient::Outcome CalDavClient::outcomeOf(const HttpResponse& response)
{
    using Failure = HttpResponse::Failure;
    switch (response.failure) {
    case Failure::None:
        break;
    case Failure::Unreachable:
    case Failure::Broken:
        return {Problem::Unreachable, response.detail};
    case Failure::Certificate:
        return {Problem::Certificate, response.detail};
    case Failure::Aborted:
        return {Problem::Aborted, response.detail};
    }
    const int status = response.status;
    const QString words = statusWords(status);
    if (status / 100 == 2)
        return {};
    if (status == 401)
        return {Problem::LoginRefused, words};
    if (status == 404)
        return {Problem::NotFound, words};
    if (status == 412)
        return {Problem::Conflict, words};
    if ((status == 403 || status == 409) && response.body.contains("valid-sync-token"))
        return {Problem::TokenExpired, words};
    // Not implemented: a refusal of the request, not a failing server.
    if (status / 100 == 5 && status != 501)
        return {Problem::ServerError, words};
    return {Problem::Refused, words};
}

void CalDavClient::send(HttpRequest request, std::function<void(const HttpResponse&)> done)
{
    request.headers.emplaceBack("User-Agent", "Lullet");
    m_port.send(request, std::move(done));
}

void CalDavClient::ask(const QByteArray& method, const QUrl& url, int depth, const QByteArray& body,
                       Parsed done)
{
    HttpRequest request{method, url, {{"Content-Type", xmlType}}, body};
    if (depth >= 0)
        request.headers.emplaceBack("Depth", QByteArray::number(depth));
    send(request, [url, done = std::move(done)](const HttpResponse& response) {
        Outcome outcome = outcomeOf(response);
        std::optional<DavXml::Multistatus> parsed;
        if (outcome.ok() && !(parsed = DavXml::parse(response.body, url)))
            outcome = {Problem::Garbage, notMultistatus()};
        done(outcome, parsed.value_or(DavXml::Multistatus{}));
    });
}

void CalDavClient::propfind(
    const QUrl& url, int depth, const QByteArray& query, int redirects,
    const std::function<void(Outcome, const DavXml::Multistatus&, QUrl)>& done)
{
    HttpRequest request{
        "PROPFIND", url, {{"Content-Type", xmlType}, {"Depth", QByteArray::number(depth)}}, query};
    send(request, [this, url, depth, query, redirects, done](const HttpResponse& response) {
        const QByteArray location = response.header("location");
        if (response.failure == HttpResponse::Failure::None && isRedirect(response.status) &&
            !location.isEmpty() && redirects < 3) {
            propfind(url.resolved(QUrl::fromEncoded(location)), depth, query, redirects + 1, done);
            return;
        }
        Outcome outcome = outcomeOf(response);
        std::optional<DavXml::Multistatus> parsed;
        if (outcome.ok() && !(parsed = DavXml::parse(response.body, url)))
            outcome = {Problem::Garbage, notMultistatus()};
        done(outcome, parsed.value_or(DavXml::Multistatus{}), url);
    });
}

void CalDavClient::discover(const QUrl& start, const std::function<void(Outcome, Collection)>& done)
{
    propfind(start, 0, DavXml::collectionQuery(), 0,
             [this, start, done](const Outcome& outcome, const DavXml::Multistatus& answer,
                                 const QUrl& at) {
                 const DavXml::Resource* found = outcome.ok() ? resourceAt(answer, at) : nullptr;
                 if (found && found->isCalendar) {
                     if (found->holdsTodos)
                         done({}, {asCollection(at), !found->syncToken.isEmpty()});
                     else
                         done({Problem::NoTaskList, {}}, {});
                 } else if (outcome.ok()) {
                     findPrincipal(at, done);
                 } else if (outcome.problem == Problem::NotFound &&
                            start.path() != QLatin1String("/.well-known/caldav")) {
                     // A server's bare address may name its CalDAV service only there.
                     QUrl known = start;
                     known.setPath(QStringLiteral("/.well-known/caldav"));
                     discover(known, done);
                 } else {
                     done(outcome, {});
                 }
             });
}

void CalDavClient::findPrincipal(const QUrl& url,
                                 const std::function<void(Outcome, Collection)>& done)
{
    propfind(
        url, 0, DavXml::principalQuery(), 0,
        [this, done](const Outcome& outcome, const DavXml::Multistatus& answer, const QUrl& at) {
            const DavXml::Resource* found = outcome.ok() ? resourceAt(answer, at) : nullptr;
            if (found && !found->calendarHome.isEmpty())
                pickCalendar(CalDavClient::urlOf(at, found->calendarHome), done);
            else if (found && !found->principal.isEmpty())
                findHome(CalDavClient::urlOf(at, found->principal), done);
            else
                done(outcome.ok() ? Outcome{Problem::NoTaskList, {}} : outcome, {});
        });
}

void CalDavClient::findHome(const QUrl& principal,
                            const std::function<void(Outcome, Collection)>& done)
{
    propfind(
        principal, 0, DavXml::principalQuery(), 0,
        [this, done](const Outcome& outcome, const DavXml::Multistatus& answer, const QUrl& at) {
            const DavXml::Resource* found = outcome.ok() ? resourceAt(answer, at) : nullptr;
            if (found && !found->calendarHome.isEmpty())
                pickCalendar(CalDavClient::urlOf(at, found->calendarHome), done);
            else
                done(outcome.ok() ? Outcome{Problem::NoTaskList, {}} : outcome, {});
        });
}

void CalDavClient::pickCalendar(const QUrl& home,
                                const std::function<void(Outcome, Collection)>& done)
{
    propfind(home, 1, DavXml::collectionQuery(), 0,
             [done](const Outcome& outcome, const DavXml::Multistatus& answer, const QUrl& at) {
                 if (!outcome.ok()) {
                     done(outcome, {});
                     return;
                 }
                 std::vector<DavXml::Resource> calendars;
                 for (const DavXml::Resource& r : answer.resources) {
                     if (r.isCalendar && r.holdsTodos)
                         calendars.push_back(r);
                 }
                 if (calendars.empty()) {
                     done({Problem::NoTaskList, {}}, {});
                     return;
                 }
                 // The same choice every time: the first by its path.
                 const auto first =
                     std::min_element(calendars.begin(), calendars.end(),
                                      [](const auto& a, const auto& b) { return a.href < b.href; });
                 done({}, {asCollection(CalDavClient::urlOf(at, first->href)),
                           !first->syncToken.isEmpty()});
             });
}

void CalDavClient::changesSince(const QUrl& collection, const QString& token,
                                const std::function<void(Outcome, Changes)>& done)
{
    ask("REPORT", collection, 0, DavXml::syncQuery(token),
        [collection, done](Outcome outcome, const DavXml::Multistatus& answer) {
            Changes changes;
            changes.token = answer.syncToken;
            const QString own = collection.path(QUrl::FullyDecoded);
            for (const DavXml::Resource& r : answer.resources) {
                if (r.status == 507)
                    changes.truncated = true;
                else if (r.href == own || r.href.endsWith(QLatin1Char('/')))
                    continue;
                else if (r.status == 404)
                    changes.removed.append(r.href);
                else if (!r.etag.isEmpty())
                    changes.changed.push_back({r.href, r.etag});
            }
            if (outcome.ok() && changes.token.isEmpty())
                outcome = {Problem::Garbage,
                           QCoreApplication::translate("CalDavClient", "no sync token")};
            done(outcome, changes);
        });
}

void CalDavClient::ctag(const QUrl& collection, const std::function<void(Outcome, QString)>& done)
{
    ask("PROPFIND", collection, 0, DavXml::listingQuery(),
        [collection, done](const Outcome& outcome, const DavXml::Multistatus& answer) {
            const DavXml::Resource* found = outcome.ok() ? resourceAt(answer, collection) : nullptr;
            done(outcome, found ? found->ctag : QString());
        });
}

void CalDavClient::members(const QUrl& collection,
                           const std::function<void(Outcome, std::vector<Member>)>& done)
{
    ask("PROPFIND", collection, 1, DavXml::listingQuery(),
        [done](Outcome outcome, const DavXml::Multistatus& answer) {
            std::vector<Member> members;
            for (const DavXml::Resource& r : answer.resources) {
                if (!r.isCollection && !r.etag.isEmpty())
                    members.push_back({r.href, r.etag});
            }
            done(std::move(outcome), members);
        });
}

void CalDavClient::fetch(const QUrl& collection, const QStringList& hrefs,
                         const std::function<void(Outcome, std::vector<DavXml::Resource>)>& done)
{
    ask("REPORT", collection, -1, DavXml::multigetQuery(hrefs),
        [done](Outcome outcome, const DavXml::Multistatus& answer) {
            std::vector<DavXml::Resource> found;
            for (const DavXml::Resource& r : answer.resources) {
                if (r.status == 0 && !r.calendarData.isEmpty())
                    found.push_back(r);
            }
            done(std::move(outcome), found);
        });
}

void CalDavClient::put(const QUrl& url, const QByteArray& body, const QString& etag,
                       const std::function<void(Outcome, QString)>& done)
{
    HttpRequest request{"PUT", url, {{"Content-Type", "text/calendar; charset=utf-8"}}, body};
    if (etag.isEmpty())
        request.headers.emplaceBack("If-None-Match", "*");
    else
        request.headers.emplaceBack("If-Match", etag.toUtf8());
    send(request, [done](const HttpResponse& response) {
        done(outcomeOf(response), QString::fromUtf8(response.header("etag")));
    });
}

void CalDavClient::remove(const QUrl& url, const QString& etag,
                          const std::function<void(Outcome)>& done)
{
    HttpRequest request{"DELETE", url, {}, {}};
    if (!etag.isEmpty())
        request.headers.emplaceBack("If-Match", etag.toUtf8());
    send(request, [done](const HttpResponse& response) {
        Outcome outcome = outcomeOf(response);
        if (outcome.problem == Problem::NotFound)
            outcome = {};
        done(outcome);
    });
}

} // namespace lullet
