#pragma once

#include "core/model/Record.h"

#include <QJsonObject>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace lullet {

class Project;

// A record as synchronisation sees it: its attributes by their stored names, the kind of record
// under "kind" ("item", "rule", "project"), and an item's project under "toProject" as the
// project's UID. Texts are strings, numbers and dates (seconds since 1970) are numbers, flags are
// booleans; an attribute without a value is absent.
class RecordFields {
public:
    enum class Type { Text, Number, Flag, Date };
    struct Attribute {
        QString name;
        Type type;
    };
    using UidOf = std::function<QString(const Project*)>;
    using ProjectOf = std::function<Project*(const QString& uid)>;

    static QString kindName(Record::Entity entity);
    // The kind the fields name; none for a name no record has.
    static std::optional<Record::Entity> kindOf(const QJsonObject& fields);
    // Every stored attribute of the kind, the project link aside.
    static const std::vector<Attribute>& attributes(Record::Entity entity);

    static QJsonObject of(const Record& record, const UidOf& uidOf);
    // Writes the fields into the record: an attribute absent, or of the wrong type, reads as no
    // value. An item's project is looked up by its UID; a UID of no project here leaves the item
    // in none.
    static void apply(const QJsonObject& fields, Record& record, const ProjectOf& projectOf);
};

} // namespace lullet
