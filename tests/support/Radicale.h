#pragma once

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <csignal>
#include <sys/prctl.h>

namespace lullet::test {

// A Radicale server of the test's own on 127.0.0.1 and a free port, with its storage and
// settings in a folder of the test's: without logins, with logins from an htpasswd file, or over
// HTTPS with a certificate of a test authority made here. It answers before start() returns and
// ends with the object.
class Radicale {
public:
    enum class Auth { None, Htpasswd };
    struct Options {
        Auth auth = Auth::None;
        bool https = false;
    };
    static constexpr const char* user = "kim";
    static constexpr const char* password = "Kestrel9";

    Radicale(const QString& folder, Options options)
        : m_folder(folder)
        , m_options(options)
    {
        QDir().mkpath(folder);
    }
    ~Radicale() { stop(); }

    // Starts on a free port, or on the port it had when it is started again.
    bool start()
    {
        if (!m_prepared && !prepare())
            return false;
        for (int attempt = 0; attempt < 5; ++attempt) {
            if (m_port == 0 || attempt > 0)
                m_port = freePort();
            if (launch())
                return true;
        }
        return false;
    }

    void stop()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.terminate();
        if (!m_process.waitForFinished(5000)) {
            m_process.kill();
            m_process.waitForFinished(5000);
        }
    }

    // The server's address, and a calendar of the test user's.
    QUrl root() const
    {
        return QUrl(QStringLiteral("%1://127.0.0.1:%2/")
                        .arg(m_options.https ? QStringLiteral("https") : QStringLiteral("http"))
                        .arg(m_port));
    }
    QUrl collection() const { return root().resolved(QUrl(QStringLiteral("kim/tasks/"))); }
    QString authorityFile() const { return QDir(m_folder).filePath(QStringLiteral("ca.pem")); }

    // Trusts the test authority from now on, as a system that installed it would.
    void trustAuthority() const
    {
        QSslConfiguration conf = QSslConfiguration::defaultConfiguration();
        conf.addCaCertificates(QSslCertificate::fromPath(authorityFile()));
        QSslConfiguration::setDefaultConfiguration(conf);
    }

    // A request as another client would send it; answers the status, and the body in `answer`.
    int request(const QByteArray& method, const QUrl& url, const QByteArray& body = {},
                const QByteArray& contentType = "text/calendar", QByteArray* answer = nullptr,
                const QByteArray& depth = {}) const
    {
        QNetworkAccessManager network;
        QNetworkRequest wire(url);
        wire.setHeader(QNetworkRequest::ContentTypeHeader, contentType);
        if (!depth.isEmpty())
            wire.setRawHeader("Depth", depth);
        if (m_options.auth == Auth::Htpasswd)
            wire.setRawHeader("Authorization",
                              "Basic " + (QByteArray(user) + ':' + password).toBase64());
        QNetworkReply* reply = network.sendCustomRequest(wire, method, body);
        // The test's own requests set the server up; the program's side is what is tested.
        reply->ignoreSslErrors();
        QEventLoop loop;
        QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        QTimer::singleShot(10000, &loop, &QEventLoop::quit);
        loop.exec();
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (answer)
            *answer = reply->readAll();
        delete reply;
        return status;
    }

    // Every resource's text in the collection.
    QByteArray contents(const QUrl& collection) const
    {
        QByteArray body;
        request("REPORT", collection,
                "<c:calendar-query xmlns:d=\"DAV:\" xmlns:c=\"urn:ietf:params:xml:ns:caldav\">"
                "<d:prop><c:calendar-data/></d:prop><c:filter><c:comp-filter name=\"VCALENDAR\"/>"
                "</c:filter></c:calendar-query>",
                "application/xml", &body, "1");
        return body;
    }

    // Makes a calendar of to-dos, the test user's own unless told where.
    bool makeCollection(QUrl url = {}) const
    {
        if (url.isEmpty())
            url = collection();
        // Its parent, the user's home, exists once the user has logged in; without logins it is
        // made here.
        request("MKCOL", url.resolved(QUrl(QStringLiteral(".."))), {}, "application/xml");
        return request("MKCALENDAR", url,
                       "<?xml version=\"1.0\"?><C:mkcalendar xmlns:D=\"DAV:\" "
                       "xmlns:C=\"urn:ietf:params:xml:ns:caldav\"><D:set><D:prop>"
                       "<C:supported-calendar-component-set><C:comp name=\"VTODO\"/>"
                       "</C:supported-calendar-component-set></D:prop></D:set></C:mkcalendar>",
                       "application/xml") == 201;
    }

private:
    static quint16 freePort()
    {
        QTcpServer probe;
        probe.listen(QHostAddress::LocalHost, 0);
        return probe.serverPort();
    }

    QString path(const char* name) const { return QDir(m_folder).filePath(QLatin1String(name)); }

    static bool run(const QString& program, const QStringList& arguments)
    {
        QProcess process;
        process.start(program, arguments);
        return process.waitForFinished(30000) && process.exitCode() == 0;
    }

    bool prepare()
    {
        QFile rights(path("rights"));
        if (!rights.open(QIODevice::WriteOnly))
            return false;
        rights.write("[all]\nuser: .*\ncollection: .*\npermissions: RrWw\n");
        rights.close();
        if (m_options.auth == Auth::Htpasswd &&
            !run(QStringLiteral(HTPASSWD_BINARY),
                 {QStringLiteral("-B"), QStringLiteral("-b"), QStringLiteral("-c"), path("users"),
                  QLatin1String(user), QLatin1String(password)}))
            return false;
        m_prepared = !m_options.https || makeCertificates();
        return m_prepared;
    }

    bool makeCertificates() const
    {
        const QString openssl = QStringLiteral(OPENSSL_BINARY);
        QFile extensions(path("server.ext"));
        if (!extensions.open(QIODevice::WriteOnly))
            return false;
        extensions.write("subjectAltName=IP:127.0.0.1,DNS:localhost\nbasicConstraints=CA:FALSE\n");
        extensions.close();
        const QStringList ec = {
            QStringLiteral("-newkey"), QStringLiteral("ec"), QStringLiteral("-pkeyopt"),
            QStringLiteral("ec_paramgen_curve:prime256v1"), QStringLiteral("-nodes")};
        return run(openssl,
                   QStringList{QStringLiteral("req"), QStringLiteral("-x509")} + ec +
                       QStringList{QStringLiteral("-keyout"), path("ca.key"),
                                   QStringLiteral("-out"), authorityFile(), QStringLiteral("-days"),
                                   QStringLiteral("2"), QStringLiteral("-subj"),
                                   QStringLiteral("/CN=Lullet Test Authority")}) &&
               run(openssl,
                   QStringList{QStringLiteral("req")} + ec +
                       QStringList{QStringLiteral("-keyout"), path("server.key"),
                                   QStringLiteral("-out"), path("server.csr"),
                                   QStringLiteral("-subj"), QStringLiteral("/CN=127.0.0.1")}) &&
               run(openssl,
                   {QStringLiteral("x509"), QStringLiteral("-req"), QStringLiteral("-in"),
                    path("server.csr"), QStringLiteral("-CA"), authorityFile(),
                    QStringLiteral("-CAkey"), path("ca.key"), QStringLiteral("-CAcreateserial"),
                    QStringLiteral("-out"), path("server.pem"), QStringLiteral("-days"),
                    QStringLiteral("2"), QStringLiteral("-extfile"), path("server.ext")});
    }

    void writeConfig() const
    {
        QFile config(path("config"));
        config.open(QIODevice::WriteOnly);
        QByteArray text = "[server]\nhosts = 127.0.0.1:" + QByteArray::number(m_port) + "\n";
        if (m_options.https)
            text += "ssl = True\ncertificate = " + path("server.pem").toUtf8() +
                    "\nkey = " + path("server.key").toUtf8() + "\n";
        text += m_options.auth == Auth::Htpasswd
                    ? "[auth]\ntype = htpasswd\nhtpasswd_filename = " + path("users").toUtf8() +
                          "\nhtpasswd_encryption = bcrypt\ndelay = 0.01\n"
                    : QByteArray("[auth]\ntype = none\n");
        text += "[rights]\ntype = from_file\nfile = " + path("rights").toUtf8() + "\n";
        text += "[storage]\nfilesystem_folder = " + path("collections").toUtf8() + "\n";
        text += "[logging]\nlevel = warning\n";
        config.write(text);
    }

    // Started, and answering requests; false when it ended instead (its port was taken).
    bool launch()
    {
        writeConfig();
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        // A test that dies takes its server with it.
        m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
        m_process.start(QStringLiteral(RADICALE_BINARY),
                        {QStringLiteral("--config"), path("config")});
        if (!m_process.waitForStarted(10000))
            return false;
        for (int waited = 0; waited < 15000; waited += 50) {
            if (m_process.state() == QProcess::NotRunning)
                return false;
            QTcpSocket probe;
            probe.connectToHost(QHostAddress::LocalHost, m_port);
            if (probe.waitForConnected(200))
                return true;
            QTest::qWait(50);
        }
        stop();
        return false;
    }

    QString m_folder;
    Options m_options;
    QProcess m_process;
    quint16 m_port = 0;
    bool m_prepared = false;
};

} // namespace lullet::test
