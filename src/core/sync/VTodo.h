#pragma once

#include "core/dates/Date.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace lullet {

class IcalTodo;

// A record as an iCalendar to-do, the resource of a CalDAV collection. The title is the
// SUMMARY, the notes the DESCRIPTION; an item's effective date is its DTSTART and, without a
// planned duration, its DUE (with one, its DURATION: a to-do may not have both); finished is
// STATUS:COMPLETED with COMPLETED, running IN-PROCESS; its project is the parent to-do
// (RELATED-TO;RELTYPE=PARENT) and one of its CATEGORIES. A rule's repeat is its RRULE where one
// can say it, a project's creation its CREATED. Every attribute is also kept exactly in an
// X-LULLET- property, so nothing is lost on the way; where another program changed a standard
// property, what it says now wins. A to-do of another program becomes a task.
class VTodo {
public:
    struct Read {
        QString uid;
        // As RecordFields has them.
        QJsonObject fields;
        // When the resource was last changed, by whoever wrote it.
        std::optional<Date> lastModified;
    };
    // Nothing when the text is no iCalendar to-do with a UID; a value that can't be read is left
    // out.
    static std::optional<Read> read(const QByteArray& text);

    struct Write {
        QString uid;
        QJsonObject fields;
        Date lastModified;
        // The item's project's name, for its category.
        QString projectName;
    };
    // The resource's text. `previous`, the text the server has, is kept with everything other
    // programs put in it; only what the fields say changes.
    static QByteArray write(const Write& what, const QByteArray& previous = {});

private:
    static Read readFrom(const IcalTodo& todo);
};

} // namespace lullet
