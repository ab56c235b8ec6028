#include "core/activity/RunningItem.h"
#include "core/model/RepeatCodes.h"
#include "core/sync/Sync.h"
#include "net/NetworkHttpPort.h"
#include "support/Launched.h"
#include "support/Radicale.h"
#include "support/TestMain.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <memory>

using namespace lullet;
using namespace lullet::test;

namespace {

// Stands between the program and the server: counts the requests, and can stop the server or
// spoil an answer on the way.
struct Wire {
    int requests = 0;
    std::function<void(const HttpRequest&)> beforeSend;
    std::function<void(const HttpRequest&, HttpResponse&)> spoil;
};

class Relay final : public HttpPort {
public:
    Relay(std::unique_ptr<HttpPort> inner, std::shared_ptr<Wire> wire)
        : m_inner(std::move(inner))
        , m_wire(std::move(wire))
    {
    }
    void send(const HttpRequest& request, Done done) override
    {
        ++m_wire->requests;
        if (m_wire->beforeSend)
            m_wire->beforeSend(request);
        m_inner->send(request, [wire = m_wire, request, done](const HttpResponse& response) {
            HttpResponse answer = response;
            if (wire->spoil)
                wire->spoil(request, answer);
            done(answer);
        });
    }
    void abortAll() override { m_inner->abortAll(); }

private:
    std::unique_ptr<HttpPort> m_inner;
    std::shared_ptr<Wire> m_wire;
};

const Date start = at(2027, 3, 1, 9, 0);

// The rows of the history on disk of that title.
std::vector<qint64> onDiskTitled(Launched& app, const QString& title)
{
    std::vector<qint64> rows;
    app.library().scanHistoryTitles([&](qint64 rowId, QByteArrayView text, const Project*) {
        if (QString::fromUtf8(text) == title)
            rows.push_back(rowId);
    });
    return rows;
}

// The item of that title, read in from the history on disk if need be, to be acted on.
const Item* titled(Launched& app, const QString& title)
{
    for (const Item* item : app.library().items()) {
        if (item->title() == title)
            return item;
    }
    const std::vector<qint64> rows = onDiskTitled(app, title);
    return rows.empty() ? nullptr : app.library().bringIn(rows.front());
}

int countTitled(Launched& app, const QString& title)
{
    int count = int(onDiskTitled(app, title).size());
    for (const Item* item : app.library().items())
        count += item->title() == title ? 1 : 0;
    return count;
}

QByteArray describe(const SyncResult& result)
{
    return QStringLiteral("problem %1 (%2), save failed %3, keyring %4")
        .arg(int(result.problem))
        .arg(result.detail)
        .arg(result.saveFailed)
        .arg(result.keyringUnavailable)
        .toUtf8();
}

} // namespace

// A sync of the machine that went through.
#define SYNCED(app)                                                                                \
    do {                                                                                           \
        const SyncResult result = sync(app);                                                       \
        QVERIFY2(result.ok(), describe(result).constData());                                       \
    } while (false)

class TestSync : public QObject {
    Q_OBJECT
    QTemporaryDir m_dir;
    std::unique_ptr<Radicale> m_server;
    std::shared_ptr<Wire> m_wire = std::make_shared<Wire>();
    int m_machines = 0;
    QUrl m_collection;

    Sync::PortFactory ports()
    {
        return [wire = m_wire](const QString& user, const QString& password) {
            return std::make_unique<Relay>(std::make_unique<NetworkHttpPort>(user, password), wire);
        };
    }

    // A launch of the program with a store of its own, its clock at `now`, syncing with `url`.
    std::unique_ptr<Launched> machine(const QUrl& url, Date now = start, const QString& user = {},
                                      const QString& password = {})
    {
        auto app = std::make_unique<Launched>(
            m_dir.filePath(QStringLiteral("machine%1").arg(++m_machines)), now, ports());
        if (!app->open())
            return nullptr;
        bool connected = false;
        app->services().sync.connectTo(url, user, password, this,
                                       [&](const QString&) { connected = true; });
        if (!QTest::qWaitFor([&] { return connected; }, 5000))
            return nullptr;
        return app;
    }

    // The machine's program started again, later: what it made is read back from its store.
    std::unique_ptr<Launched> relaunch(std::unique_ptr<Launched>& app, Date now)
    {
        const QString folder = QFileInfo(app->settings.filePath()).path();
        app.reset();
        auto again = std::make_unique<Launched>(folder, now, ports());
        return again->open() ? std::move(again) : nullptr;
    }

    // One sync, with the passes that follow at once; answers how the last went.
    static SyncResult sync(Launched& app)
    {
        Sync& sync = app.services().sync;
        sync.syncNow();
        do {
            if (!QTest::qWaitFor([&] { return !sync.isSyncing(); }, 20000))
                return {CalDavClient::Problem::Aborted, QStringLiteral("the sync did not end")};
            QTest::qWait(1);
        } while (sync.isSyncing());
        return sync.lastResult().value_or(SyncResult{});
    }

    // Two machines that share these tasks, made on the first.
    std::pair<std::unique_ptr<Launched>, std::unique_ptr<Launched>>
    sharing(const QStringList& titles)
    {
        auto a = machine(m_collection);
        auto b = machine(m_collection);
        if (!a || !b)
            return {};
        for (const QString& title : titles)
            a->addItem(title, at(2027, 3, 4, 9, 0));
        a->library().save();
        if (!sync(*a).ok() || !sync(*b).ok())
            return {};
        return {std::move(a), std::move(b)};
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        m_server = std::make_unique<Radicale>(m_dir.filePath(QStringLiteral("server")),
                                              Radicale::Options{});
        QVERIFY(m_server->start());
    }

    // Each case has a collection of its own.
    void init()
    {
        static int cases = 0;
        *m_wire = Wire{};
        m_collection = m_server->root().resolved(QUrl(QStringLiteral("kim/tasks%1/").arg(++cases)));
        QVERIFY(m_server->makeCollection(m_collection));
    }

    // Two stores that both had data meet on the server as one: the same project and the same
    // task are one record, and everything of each reaches the other.
    void twoStoresConverge()
    {
        auto a = machine(m_collection);
        auto b = machine(m_collection);
        QVERIFY(a && b);
        for (Launched* app : {a.get(), b.get()}) {
            Project* work = app->library().newProject();
            work->setName(QStringLiteral("Work"));
            app->library().addProject(work);
            Item* report = app->addItem(QStringLiteral("Report"), at(2027, 3, 2, 10, 0));
            report->setToProject(work);
            app->library().save();
        }
        Item* onlyA = a->addItem(QStringLiteral("Call the bank"), at(2027, 3, 3, 11, 0));
        onlyA->setNotes(QStringLiteral("Ask about the \"fees\"; all of them, twice."));
        onlyA->setDurationMin(25);
        onlyA->setRepeatOption(RepeatEnd::toDoMarker);
        b->addItem(QStringLiteral("Groceries"), std::nullopt);
        a->library().save();
        b->library().save();

        SYNCED(*a);
        SYNCED(*b);
        SYNCED(*a);
        for (Launched* app : {a.get(), b.get()}) {
            QCOMPARE(app->library().projects().size(), std::size_t(1));
            QCOMPARE(countTitled(*app, QStringLiteral("Report")), 1);
            QCOMPARE(titled(*app, QStringLiteral("Report"))->toProject(),
                     app->library().projects().front());
            QCOMPARE(countTitled(*app, QStringLiteral("Groceries")), 1);
        }
        const Item* copy = titled(*b, QStringLiteral("Call the bank"));
        QVERIFY(copy);
        QCOMPARE(copy->notes(), onlyA->notes());
        QCOMPARE(copy->dtReminder(), onlyA->dtReminder());
        QCOMPARE(copy->durationMin(), std::optional(25));
        QVERIFY(copy->isToDo());
        QCOMPARE(a->library().items().size(), b->library().items().size());
    }

    // The same field changed on both sides takes the later edit; different fields both stay;
    // finished stays finished and the time run keeps its larger value.
    void concurrentEditsMergePerField()
    {
        auto [a, b] = sharing({QStringLiteral("Draft")});
        QVERIFY(a && b);
        auto* onA = const_cast<Item*>(titled(*a, QStringLiteral("Draft")));
        auto* onB = const_cast<Item*>(titled(*b, QStringLiteral("Draft")));
        QVERIFY(onA && onB);

        a->clock.advance(60);
        onA->setNotes(QStringLiteral("From A"));
        onA->setTitle(QStringLiteral("Draft by A"));
        onA->setHasFinished(true);
        onA->setElapsedTime(300);
        a->library().save();
        b->clock.advance(120);
        onB->setTitle(QStringLiteral("Draft by B"));
        onB->setDurationHr(2);
        onB->setElapsedTime(120);
        b->library().save();

        SYNCED(*a);
        SYNCED(*b);
        SYNCED(*a);
        for (const Item* item : {static_cast<const Item*>(onA), static_cast<const Item*>(onB)}) {
            QCOMPARE(item->title(), std::optional(QStringLiteral("Draft by B")));
            QCOMPARE(item->notes(), std::optional(QStringLiteral("From A")));
            QCOMPARE(item->durationHr(), std::optional(2));
            QVERIFY(item->isFinished());
            QCOMPARE(item->elapsedTime(), std::optional(300));
        }
    }

    // Deletions go both ways; a record deleted on one side and edited on the other is kept; a
    // running item deleted elsewhere stops.
    void deletionsTravelBothWays()
    {
        auto [a, b] = sharing({QStringLiteral("Gone from A"), QStringLiteral("Gone from B"),
                               QStringLiteral("Deleted and edited"), QStringLiteral("Running")});
        QVERIFY(a && b);
        QCOMPARE(countTitled(*b, QStringLiteral("Running")), 1);

        const auto item = [](Launched& app, const char* title) {
            return const_cast<Item*>(titled(app, QString::fromLatin1(title)));
        };
        b->running().start(*item(*b, "Running"));
        a->library().deleteItem(item(*a, "Gone from A"));
        a->library().deleteItem(item(*a, "Running"));
        a->library().deleteItem(item(*a, "Deleted and edited"));
        b->library().deleteItem(item(*b, "Gone from B"));
        item(*b, "Deleted and edited")->setNotes(QStringLiteral("Still wanted"));
        a->library().save();
        b->library().save();

        SYNCED(*a);
        SYNCED(*b);
        SYNCED(*a);
        for (Launched* app : {a.get(), b.get()}) {
            QCOMPARE(countTitled(*app, QStringLiteral("Gone from A")), 0);
            QCOMPARE(countTitled(*app, QStringLiteral("Gone from B")), 0);
            QCOMPARE(countTitled(*app, QStringLiteral("Running")), 0);
            QCOMPARE(countTitled(*app, QStringLiteral("Deleted and edited")), 1);
            QCOMPARE(item(*app, "Deleted and edited")->notes(),
                     std::optional(QStringLiteral("Still wanted")));
        }
        QVERIFY(!b->running().item());
    }

    // A to-do written by another client arrives as a task, in the project it names as parent;
    // what it says of itself (finished, due) is read.
    void aTodoOfAnotherClientArrives()
    {
        auto a = machine(m_collection);
        QVERIFY(a);
        Project* home = a->library().newProject();
        home->setName(QStringLiteral("Home"));
        a->library().addProject(home);
        a->library().save();
        SYNCED(*a);
        // The project's UID, as another client finds it on the server.
        const QByteArray server = m_server->contents(m_collection);
        QVERIFY(server.contains("SUMMARY:Home"));
        const qsizetype uidAt = server.indexOf("\nUID:") + 5;
        const QByteArray parent = server.mid(uidAt, server.indexOf('\n', uidAt) - uidAt).trimmed();
        const QByteArray todo = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Other//EN\r\n"
                                "BEGIN:VTODO\r\nUID:phone-1\r\nDTSTAMP:20270301T080000Z\r\n"
                                "SUMMARY:Buy milk\r\nDESCRIPTION:Oat\\, not cow\r\n"
                                "DUE:20270306T170000Z\r\nPRIORITY:1\r\n"
                                "RELATED-TO;RELTYPE=PARENT:" +
                                parent + "\r\nEND:VTODO\r\nEND:VCALENDAR\r\n";
        QCOMPARE(m_server->request(
                     "PUT", m_collection.resolved(QUrl(QStringLiteral("phone-1.ics"))), todo),
                 201);
        const QByteArray done = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Other//EN\r\n"
                                "BEGIN:VTODO\r\nUID:phone-2\r\nDTSTAMP:20270301T080000Z\r\n"
                                "SUMMARY:Water plants\r\nSTATUS:COMPLETED\r\n"
                                "END:VTODO\r\nEND:VCALENDAR\r\n";
        QCOMPARE(m_server->request(
                     "PUT", m_collection.resolved(QUrl(QStringLiteral("phone-2.ics"))), done),
                 201);

        SYNCED(*a);
        const Item* milk = titled(*a, QStringLiteral("Buy milk"));
        QVERIFY(milk);
        QCOMPARE(milk->notes(), std::optional(QStringLiteral("Oat, not cow")));
        QCOMPARE(milk->dtReminder(), std::optional(Date::dateFromComponents(2027, 3, 6, 17, 0)));
        QCOMPARE(milk->toProject(), home);
        QCOMPARE(milk->uniqueId(), std::optional(placeholderId()));
        QVERIFY(!milk->isFinished());
        const Item* plants = titled(*a, QStringLiteral("Water plants"));
        QVERIFY(plants && plants->isFinished());
    }

    // Items finished long ago stay on disk: the first sync sends them by passing over them, and
    // a change from the server reaches such an item without reading the rest into memory.
    void historyStaysOnDisk()
    {
        auto a = machine(m_collection, at(2027, 1, 10, 9, 0));
        QVERIFY(a);
        for (const QString& title : {QStringLiteral("Old report"), QStringLiteral("Older")}) {
            Item* item = a->addItem(title, at(2027, 1, 10, 8, 0));
            item->setHasFinished(true);
        }
        a->library().save();
        a = relaunch(a, start);
        QVERIFY(a && a->library().holdsHistory());
        SYNCED(*a);
        QVERIFY(a->library().holdsHistory());
        auto b = machine(m_collection);
        QVERIFY(b);
        SYNCED(*b);
        b = relaunch(b, start);
        QVERIFY(b && b->library().holdsHistory());

        auto* old = const_cast<Item*>(titled(*a, QStringLiteral("Old report")));
        old->setNotes(QStringLiteral("Filed"));
        a->library().save();
        SYNCED(*a);
        SYNCED(*b);
        QVERIFY(b->library().holdsHistory());
        const auto inMemory = [&](const QString& title) {
            const auto& items = b->library().items();
            return std::any_of(items.begin(), items.end(),
                               [&](const Item* item) { return item->title() == title; });
        };
        QVERIFY(inMemory(QStringLiteral("Old report")));
        QVERIFY(!inMemory(QStringLiteral("Older")));
        QCOMPARE(titled(*b, QStringLiteral("Old report"))->notes(),
                 std::optional(QStringLiteral("Filed")));
    }

    // A project deleted with its history on disk takes that history off the server too.
    void aProjectDeletedWithItsHistoryOnDisk()
    {
        auto a = machine(m_collection, at(2027, 1, 10, 9, 0));
        QVERIFY(a);
        Project* project = a->addProject(QStringLiteral("Archive"));
        Item* item = a->addItem(QStringLiteral("Filed away"), at(2027, 1, 10, 8, 0));
        item->setToProject(project);
        item->setHasFinished(true);
        a->library().save();
        a = relaunch(a, start);
        QVERIFY(a && a->library().holdsHistory());
        SYNCED(*a);
        auto b = machine(m_collection);
        QVERIFY(b);
        SYNCED(*b);
        QCOMPARE(countTitled(*b, QStringLiteral("Filed away")), 1);

        for (Project* shown : a->library().projects()) {
            if (shown->name() == QStringLiteral("Archive"))
                a->services().projectActions.deleteProject(*shown);
        }
        QVERIFY(a->library().save());
        QCOMPARE(countTitled(*a, QStringLiteral("Filed away")), 0);
        SYNCED(*a);
        SYNCED(*b);
        QCOMPARE(countTitled(*b, QStringLiteral("Filed away")), 0);
    }

    void aServerStoppedMidSyncLosesNothing()
    {
        auto a = machine(m_collection);
        QVERIFY(a);
        for (int i = 0; i < 30; ++i)
            a->addItem(QStringLiteral("Task %1").arg(i), at(2027, 3, 7, 9, i));
        a->library().save();
        int puts = 0;
        m_wire->beforeSend = [&](const HttpRequest& request) {
            if (request.method == "PUT" && ++puts == 10)
                m_server->stop();
        };
        const SyncResult cut = sync(*a);
        QCOMPARE(cut.problem, CalDavClient::Problem::Unreachable);
        m_wire->beforeSend = {};
        QVERIFY(m_server->start());
        SYNCED(*a);
        auto b = machine(m_collection);
        QVERIFY(b);
        SYNCED(*b);
        for (int i = 0; i < 30; ++i)
            QCOMPARE(countTitled(*b, QStringLiteral("Task %1").arg(i)), 1);
    }

    // An answer that isn't what it should be changes nothing here; a resource that holds no
    // to-do is left alone while the others arrive.
    void garbageAnswersAreRefused()
    {
        auto a = machine(m_collection);
        auto b = machine(m_collection);
        QVERIFY(a && b);
        a->addItem(QStringLiteral("Kept"), at(2027, 3, 8, 9, 0));
        a->library().save();
        SYNCED(*a);
        QCOMPARE(m_server->request("PUT", m_collection.resolved(QUrl(QStringLiteral("junk.ics"))),
                                   "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:x\r\nBEGIN:VEVENT\r\n"
                                   "UID:event-1\r\nDTSTAMP:20270301T080000Z\r\n"
                                   "DTSTART:20270301T080000Z\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n"),
                 201);

        m_wire->spoil = [](const HttpRequest& request, HttpResponse& response) {
            if (request.method == "REPORT")
                response.body = "<html><body>Welcome to our portal</body></html>";
        };
        const SyncResult refused = sync(*b);
        QCOMPARE(refused.problem, CalDavClient::Problem::Garbage);
        QCOMPARE(countTitled(*b, QStringLiteral("Kept")), 0);

        m_wire->spoil = {};
        const SyncResult fine = sync(*b);
        QVERIFY(fine.ok());
        QCOMPARE(fine.unreadable, 1);
        QCOMPARE(countTitled(*b, QStringLiteral("Kept")), 1);
    }

    // What the user changes while a sync is under way goes too.
    void aChangeDuringASyncIsSent()
    {
        auto a = machine(m_collection);
        QVERIFY(a);
        a->addItem(QStringLiteral("Before"), at(2027, 3, 9, 8, 0));
        a->library().save();
        // Made while the server is asked what changed.
        m_wire->beforeSend = [&](const HttpRequest& request) {
            if (request.method != "REPORT")
                return;
            m_wire->beforeSend = {};
            QTimer::singleShot(0, [&] {
                a->addItem(QStringLiteral("Meanwhile"), at(2027, 3, 9, 9, 0));
                a->library().save();
            });
        };
        SYNCED(*a);
        auto b = machine(m_collection);
        QVERIFY(b);
        SYNCED(*b);
        QCOMPARE(countTitled(*b, QStringLiteral("Before")), 1);
        QCOMPARE(countTitled(*b, QStringLiteral("Meanwhile")), 1);
    }

    // A server without sync reports is followed by its ctag and its members' versions.
    void aServerWithoutSyncReports()
    {
        m_wire->spoil = [](const HttpRequest& request, HttpResponse& response) {
            static const QRegularExpression token(
                QStringLiteral("<[^>]*sync-token>[^<]*</[^>]*sync-token>"));
            if (request.method == "PROPFIND")
                response.body = QString::fromUtf8(response.body).remove(token).toUtf8();
            if (request.method == "REPORT" && request.body.contains("sync-collection"))
                response = {HttpResponse::Failure::None, {}, 501, {}, {}};
        };
        auto [a, b] = sharing({QStringLiteral("Kept"), QStringLiteral("Dropped")});
        QVERIFY(a && b);
        QCOMPARE(countTitled(*b, QStringLiteral("Dropped")), 1);
        a->library().deleteItem(const_cast<Item*>(titled(*a, QStringLiteral("Dropped"))));
        const_cast<Item*>(titled(*a, QStringLiteral("Kept")))->setNotes(QStringLiteral("Noted"));
        a->library().save();
        SYNCED(*a);
        SYNCED(*b);
        QCOMPARE(countTitled(*b, QStringLiteral("Dropped")), 0);
        QCOMPARE(titled(*b, QStringLiteral("Kept"))->notes(),
                 std::optional(QStringLiteral("Noted")));
        SYNCED(*b);
        m_wire->requests = 0;
        SYNCED(*b);
        QCOMPARE(m_wire->requests, 1);
    }

    void anUnchangedStoreCostsOneRequest()
    {
        auto a = machine(m_collection);
        QVERIFY(a);
        a->addItem(QStringLiteral("Once"), at(2027, 3, 9, 9, 0));
        a->library().save();
        SYNCED(*a);
        m_wire->requests = 0;
        SYNCED(*a);
        QCOMPARE(m_wire->requests, 1);
    }

    // A server with logins is found from its address alone; a wrong password is refused and
    // said so.
    void aServerWithLogins()
    {
        Radicale server(m_dir.filePath(QStringLiteral("logins")),
                        {Radicale::Auth::Htpasswd, false});
        QVERIFY(server.start());
        QVERIFY(server.makeCollection());
        auto wrong = machine(server.root(), start, QString::fromLatin1(Radicale::user),
                             QStringLiteral("wrong"));
        QVERIFY(wrong);
        QCOMPARE(sync(*wrong).problem, CalDavClient::Problem::LoginRefused);
        QCOMPARE(wrong->secrets.others[Sync::account(server.root(), QStringLiteral("kim"))],
                 std::optional(QStringLiteral("wrong")));

        auto right = machine(server.root(), start, QString::fromLatin1(Radicale::user),
                             QString::fromLatin1(Radicale::password));
        QVERIFY(right);
        right->addItem(QStringLiteral("Behind a login"), at(2027, 3, 10, 9, 0));
        right->library().save();
        SYNCED(*right);
        QVERIFY(server.contents(server.collection()).contains("SUMMARY:Behind a login"));
    }

    // Over HTTPS a certificate that does not verify is refused; once its authority is trusted
    // the same server is used.
    void httpsChecksTheCertificate()
    {
        Radicale server(m_dir.filePath(QStringLiteral("https")), {Radicale::Auth::None, true});
        QVERIFY(server.start());
        QVERIFY(server.makeCollection());
        auto app = machine(server.collection());
        QVERIFY(app);
        app->addItem(QStringLiteral("Private"), at(2027, 3, 11, 9, 0));
        app->library().save();
        QCOMPARE(sync(*app).problem, CalDavClient::Problem::Certificate);
        server.trustAuthority();
        SYNCED(*app);
        QCOMPARE(app->services().sync.lastResult()->sent, 1);
    }
};

LULLET_TEST_MAIN(TestSync)
#include "tst_sync.moc"
