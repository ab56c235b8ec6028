// The initial sync of a store of 5,000 items, most of them history on disk, into an empty
// collection; then a sync with nothing changed. The collection is an in-memory CalDAV server
// answering at once, so that the figures are the program's own work: reading the records,
// writing the to-dos through libical, keeping the ledger. With --radicale the same store is also
// sent once to a real Radicale started here, whose own time per new resource grows with the
// collection (it compares each UID with every resource it holds).
#include "BenchClock.h"
#include "StoreGenerator.h"
#include "core/dates/CalendarContext.h"
#include "core/store/Store.h"
#include "core/sync/HttpPort.h"
#include "core/sync/Sync.h"
#include "net/NetworkHttpPort.h"
#include "support/Launched.h"
#include "support/Radicale.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

using namespace lullet;

namespace {

constexpr int storeItems = 5000;

// One collection of to-dos in memory, spoken to as CalDAV, every answer on the next turn of the
// event loop.
class MemoryCalDav final : public HttpPort {
public:
    void send(const HttpRequest& request, Done done) override
    {
        ++requests;
        HttpResponse response = answer(request);
        QTimer::singleShot(0, [done, response] { done(response); });
    }
    void abortAll() override {}

    int requests = 0;

private:
    static QByteArray multistatus(const QByteArray& inside)
    {
        return "<?xml version=\"1.0\"?><d:multistatus xmlns:d=\"DAV:\" "
               "xmlns:c=\"urn:ietf:params:xml:ns:caldav\">" +
               inside + "</d:multistatus>";
    }

    HttpResponse answer(const HttpRequest& request)
    {
        const QString path = request.url.path();
        if (request.method == "PUT") {
            const QByteArray etag = '"' + QByteArray::number(++m_version) + '"';
            m_resources[path] = {m_version, etag, request.body};
            return {HttpResponse::Failure::None, {}, 201, {{"etag", etag}}, {}};
        }
        if (request.method == "PROPFIND")
            return {HttpResponse::Failure::None,
                    {},
                    207,
                    {},
                    multistatus("<d:response><d:href>" + path.toUtf8() +
                                "</d:href><d:propstat><d:prop><d:resourcetype><d:collection/>"
                                "<c:calendar/></d:resourcetype><d:sync-token>t" +
                                QByteArray::number(m_version) +
                                "</d:sync-token></d:prop><d:status>HTTP/1.1 200 "
                                "OK</d:status></d:propstat></d:response>")};
        QByteArray inside;
        const bool multiget = request.body.contains("calendar-multiget");
        static const QRegularExpression hrefs(QStringLiteral("<d:href>([^<]*)</d:href>"));
        QStringList wanted;
        for (const auto& match : hrefs.globalMatch(QString::fromUtf8(request.body)))
            wanted.append(match.captured(1));
        // A sync report from a token lists what changed since.
        static const QRegularExpression token(QStringLiteral("<d:sync-token>t([0-9]+)<"));
        const int since =
            multiget ? 0 : token.match(QString::fromUtf8(request.body)).captured(1).toInt();
        for (auto it = m_resources.cbegin(); it != m_resources.cend(); ++it) {
            if (multiget ? !wanted.contains(it.key()) : it->version <= since)
                continue;
            inside += "<d:response><d:href>" + it.key().toUtf8() +
                      "</d:href><d:propstat><d:prop><d:getetag>" + it->etag + "</d:getetag>" +
                      (multiget ? "<c:calendar-data>" +
                                      QString::fromUtf8(it->text).toHtmlEscaped().toUtf8() +
                                      "</c:calendar-data>"
                                : QByteArray()) +
                      "</d:prop><d:status>HTTP/1.1 200 OK</d:status></d:propstat></d:response>";
        }
        if (!multiget)
            inside += "<d:sync-token>t" + QByteArray::number(m_version) + "</d:sync-token>";
        return {HttpResponse::Failure::None, {}, 207, {}, multistatus(inside)};
    }

    struct Resource {
        int version;
        QByteArray etag;
        QByteArray text;
    };
    QMap<QString, Resource> m_resources;
    int m_version = 0;
};

// The program's port for a run, onto the one collection that outlives the runs.
class Forward final : public HttpPort {
public:
    explicit Forward(HttpPort& server)
        : m_server(server)
    {
    }
    void send(const HttpRequest& request, Done done) override
    {
        m_server.send(request, std::move(done));
    }
    void abortAll() override { m_server.abortAll(); }

private:
    HttpPort& m_server;
};

// A fresh copy of the generated store, launched and set to sync with `url`.
std::unique_ptr<test::Launched> launchCopy(const QString& from, const QString& to, Date now,
                                           Sync::PortFactory ports, const QUrl& url)
{
    QDir().mkpath(QDir(to).filePath(QStringLiteral("data")));
    for (const QString& name : QDir(from).entryList(QDir::Files))
        QFile::copy(QDir(from).filePath(name), QDir(to).filePath(QStringLiteral("data/") + name));
    auto app = std::make_unique<test::Launched>(to, now, std::move(ports));
    app->open();
    app->settings.setValue(SettingsKeys::syncURL, url.toString());
    return app;
}

// One sync with the passes that follow it at once; answers whether it went through.
bool syncOnce(Sync& sync)
{
    sync.syncNow();
    do {
        while (sync.isSyncing())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::processEvents();
    } while (sync.isSyncing());
    return sync.lastResult() && sync.lastResult()->ok();
}

double median(std::vector<double> samples)
{
    std::nth_element(samples.begin(), samples.begin() + samples.size() / 2, samples.end());
    return samples[samples.size() / 2];
}

// The same store sent once to a real Radicale.
void againstRadicale(const QString& generated, const QString& folder, Date now)
{
    test::Radicale server(QDir(folder).filePath(QStringLiteral("radicale")), {});
    if (!server.start() || !server.makeCollection()) {
        std::printf("  Radicale could not be started\n");
        return;
    }
    auto launched = launchCopy(
        generated, QDir(folder).filePath(QStringLiteral("radicale-store")), now,
        [](const QString& user, const QString& password) {
            return std::make_unique<NetworkHttpPort>(user, password);
        },
        server.collection());
    QElapsedTimer timer;
    timer.start();
    const bool ok = syncOnce(launched->services().sync);
    bench::report(ok ? "initial sync of 5,000 items into Radicale (once)"
                     : "initial sync into Radicale FAILED",
                  double(timer.nsecsElapsed()), 10e9);
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    CalendarContext::setLocale(QStringLiteral("en_US"));
    CalendarContext::setTimeZone(QStringLiteral("Europe/Berlin"));
    const Date now = Date::dateFromComponents(2026, 11, 23, 10, 15, 0);
    QTemporaryDir dir;
    const QString generated = dir.filePath(QStringLiteral("generated"));
    {
        const test::FakeClock clock(now);
        Store store(generated, clock);
        store.open();
        bench::generateStore(store, now, storeItems, 20, 10);
    }
    const QUrl url(QStringLiteral("https://dav.example.com/kim/tasks/"));
    std::vector<double> initial;
    std::vector<double> unchanged;
    int unchangedRequests = 0;
    for (int round = 0; round < 5; ++round) {
        MemoryCalDav server;
        auto launched = launchCopy(
            generated, dir.filePath(QStringLiteral("round%1").arg(round)), now,
            [&server](const QString&, const QString&) { return std::make_unique<Forward>(server); },
            url);
        Sync& sync = launched->services().sync;
        QElapsedTimer timer;
        timer.start();
        if (!syncOnce(sync))
            std::printf("  the initial sync failed\n");
        initial.push_back(double(timer.nsecsElapsed()));
        for (int again = 0; again < 5; ++again) {
            server.requests = 0;
            timer.restart();
            syncOnce(sync);
            unchanged.push_back(double(timer.nsecsElapsed()));
            unchangedRequests = std::max(unchangedRequests, server.requests);
        }
    }
    bench::report("initial sync of 5,000 items (median)", median(initial), 10e9);
    bench::report("sync with nothing changed (median)", median(unchanged), 100e6);
    std::printf("  requests of a sync with nothing changed: %d\n", unchangedRequests);
    if (app.arguments().contains(QStringLiteral("--radicale")))
        againstRadicale(generated, dir.path(), now);
    return 0;
}
