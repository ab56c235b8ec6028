#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>
#include <vector>

namespace lullet {

// The WebDAV, CalDAV and collection-sync documents synchronisation sends, and the multistatus
// answers it reads back.
class DavXml {
public:
    // One resource of a multistatus answer, with the properties the server found for it.
    struct Resource {
        // The resource's path, decoded.
        QString href;
        // The status of the whole response when it has one (404: gone), else 0.
        int status = 0;
        QString etag;
        QByteArray calendarData;
        bool isCollection = false;
        bool isCalendar = false;
        // Whether the calendar holds to-dos: true when it doesn't say.
        bool holdsTodos = true;
        QString principal;
        QString calendarHome;
        QString syncToken;
        QString ctag;
    };
    struct Multistatus {
        std::vector<Resource> resources;
        // The collection's new token, from a sync report.
        QString syncToken;
    };

    // What discovery asks of a URL: whether it is a calendar, of to-dos, with a sync token.
    static QByteArray collectionQuery();
    // What it asks next of a URL that is none: whose it is, where its calendars live.
    static QByteArray principalQuery();
    // The members of a collection and their versions.
    static QByteArray listingQuery();
    // The changes since `token` (empty: every member), with their versions.
    static QByteArray syncQuery(const QString& token);
    // The text and version of these resources.
    static QByteArray multigetQuery(const QStringList& hrefs);

    // Nothing when the answer is no multistatus document. Hrefs are resolved against `base`.
    static std::optional<Multistatus> parse(const QByteArray& body, const QUrl& base);
    // A path as the server writes it: each segment percent-encoded.
    static QString encodedPath(const QString& path);
};

} // namespace lullet
