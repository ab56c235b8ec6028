#include "core/sync/DavXml.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace lullet {

namespace {

const QString dav = QStringLiteral("DAV:");
const QString caldav = QStringLiteral("urn:ietf:params:xml:ns:caldav");
const QString calendarServer = QStringLiteral("http://calendarserver.org/ns/");

// A document with the three namespaces declared on its root.
class Writer {
public:
    Writer(const QString& ns, const QString& root)
        : m_xml(&m_bytes)
    {
        m_xml.writeStartDocument();
        m_xml.writeNamespace(dav, QStringLiteral("d"));
        m_xml.writeNamespace(caldav, QStringLiteral("c"));
        m_xml.writeNamespace(calendarServer, QStringLiteral("cs"));
        m_xml.writeStartElement(ns, root);
    }
    QXmlStreamWriter& xml() { return m_xml; }
    void props(const std::vector<std::pair<QString, QString>>& names)
    {
        m_xml.writeStartElement(dav, QStringLiteral("prop"));
        for (const auto& [ns, name] : names)
            m_xml.writeEmptyElement(ns, name);
        m_xml.writeEndElement();
    }
    QByteArray done()
    {
        m_xml.writeEndDocument();
        return m_bytes;
    }

private:
    QByteArray m_bytes;
    QXmlStreamWriter m_xml;
};

QString decodedPath(const QString& href, const QUrl& base)
{
    return base.resolved(QUrl(href)).path(QUrl::FullyDecoded);
}

// The href inside an element such as current-user-principal.
QString innerHref(QXmlStreamReader& xml, const QUrl& base)
{
    QString found;
    while (xml.readNextStartElement()) {
        if (xml.namespaceUri() == dav && xml.name() == QLatin1String("href"))
            found = decodedPath(xml.readElementText().trimmed(), base);
        else
            xml.skipCurrentElement();
    }
    return found;
}

void readResourceType(QXmlStreamReader& xml, DavXml::Resource& r)
{
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("collection"))
            r.isCollection = true;
        else if (xml.name() == QLatin1String("calendar") && xml.namespaceUri() == caldav)
            r.isCalendar = true;
        xml.skipCurrentElement();
    }
}

void readComponents(QXmlStreamReader& xml, DavXml::Resource& r)
{
    r.holdsTodos = false;
    while (xml.readNextStartElement()) {
        if (xml.attributes().value(QLatin1String("name")) == QLatin1String("VTODO"))
            r.holdsTodos = true;
        xml.skipCurrentElement();
    }
}

void readProp(QXmlStreamReader& xml, DavXml::Resource& r, const QUrl& base)
{
    while (xml.readNextStartElement()) {
        const QStringView name = xml.name();
        if (name == QLatin1String("getetag"))
            r.etag = xml.readElementText().trimmed();
        else if (name == QLatin1String("calendar-data"))
            r.calendarData = xml.readElementText().toUtf8();
        else if (name == QLatin1String("resourcetype"))
            readResourceType(xml, r);
        else if (name == QLatin1String("supported-calendar-component-set"))
            readComponents(xml, r);
        else if (name == QLatin1String("current-user-principal"))
            r.principal = innerHref(xml, base);
        else if (name == QLatin1String("calendar-home-set"))
            r.calendarHome = innerHref(xml, base);
        else if (name == QLatin1String("sync-token"))
            r.syncToken = xml.readElementText().trimmed();
        else if (name == QLatin1String("getctag"))
            r.ctag = xml.readElementText().trimmed();
        else
            xml.skipCurrentElement();
    }
}

int statusCode(const QString& line)
{
    // "HTTP/1.1 404 Not Found"
    return line.trimmed().section(QLatin1Char(' '), 1, 1).toInt();
}

// Properties count only where the server found them.
void readPropstat(QXmlStreamReader& xml, DavXml::Resource& r, const QUrl& base)
{
    DavXml::Resource found;
    int status = 200;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("prop"))
            readProp(xml, found, base);
        else if (xml.name() == QLatin1String("status"))
            status = statusCode(xml.readElementText());
        else
            xml.skipCurrentElement();
    }
    if (status / 100 != 2)
        return;
    const auto take = [](auto& to, const auto& from) {
        if (!from.isEmpty())
            to = from;
    };
    take(r.etag, found.etag);
    take(r.calendarData, found.calendarData);
    take(r.principal, found.principal);
    take(r.calendarHome, found.calendarHome);
    take(r.syncToken, found.syncToken);
    take(r.ctag, found.ctag);
    r.isCollection = r.isCollection || found.isCollection;
    r.isCalendar = r.isCalendar || found.isCalendar;
    r.holdsTodos = r.holdsTodos && found.holdsTodos;
}

DavXml::Resource readResponse(QXmlStreamReader& xml, const QUrl& base)
{
    DavXml::Resource r;
    while (xml.readNextStartElement()) {
        const QStringView name = xml.name();
        if (name == QLatin1String("href"))
            r.href = decodedPath(xml.readElementText().trimmed(), base);
        else if (name == QLatin1String("status"))
            r.status = statusCode(xml.readElementText());
        else if (name == QLatin1String("propstat"))
            readPropstat(xml, r, base);
        else
            xml.skipCurrentElement();
    }
    return r;
}

} // namespace

QByteArray DavXml::collectionQuery()
{
    Writer w(dav, QStringLiteral("propfind"));
    w.props({{dav, QStringLiteral("resourcetype")},
             {caldav, QStringLiteral("supported-calendar-component-set")},
             {dav, QStringLiteral("sync-token")},
             {calendarServer, QStringLiteral("getctag")}});
    return w.done();
}

QByteArray DavXml::principalQuery()
{
    Writer w(dav, QStringLiteral("propfind"));
    w.props({{dav, QStringLiteral("current-user-principal")},
             {caldav, QStringLiteral("calendar-home-set")}});
    return w.done();
}

QByteArray DavXml::listingQuery()
{
    Writer w(dav, QStringLiteral("propfind"));
    w.props({{dav, QStringLiteral("resourcetype")},
             {dav, QStringLiteral("getetag")},
             {calendarServer, QStringLiteral("getctag")}});
    return w.done();
}

QByteArray DavXml::syncQuery(const QString& token)
{
    Writer w(dav, QStringLiteral("sync-collection"));
    w.xml().writeTextElement(dav, QStringLiteral("sync-token"), token);
    w.xml().writeTextElement(dav, QStringLiteral("sync-level"), QStringLiteral("1"));
    w.props({{dav, QStringLiteral("getetag")}});
    return w.done();
}

QByteArray DavXml::multigetQuery(const QStringList& hrefs)
{
    Writer w(caldav, QStringLiteral("calendar-multiget"));
    w.props({{dav, QStringLiteral("getetag")}, {caldav, QStringLiteral("calendar-data")}});
    for (const QString& href : hrefs)
        w.xml().writeTextElement(dav, QStringLiteral("href"), encodedPath(href));
    return w.done();
}

QString DavXml::encodedPath(const QString& path)
{
    QUrl url;
    url.setPath(path, QUrl::DecodedMode);
    return url.path(QUrl::FullyEncoded);
}

std::optional<DavXml::Multistatus> DavXml::parse(const QByteArray& body, const QUrl& base)
{
    QXmlStreamReader xml(body);
    if (!xml.readNextStartElement() || xml.namespaceUri() != dav ||
        xml.name() != QLatin1String("multistatus"))
        return std::nullopt;
    Multistatus answer;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("response"))
            answer.resources.push_back(readResponse(xml, base));
        else if (xml.name() == QLatin1String("sync-token"))
            answer.syncToken = xml.readElementText().trimmed();
        else
            xml.skipCurrentElement();
    }
    if (xml.hasError())
        return std::nullopt;
    return answer;
}

} // namespace lullet
