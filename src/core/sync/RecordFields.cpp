#include "core/sync/RecordFields.h"

#include "core/model/Item.h"
#include "core/model/Project.h"
#include "core/model/Rule.h"

#include <QJsonValue>

#include <cmath>
#include <type_traits>

namespace lullet {

namespace {

using Type = RecordFields::Type;

// One attribute of a record of type R: its name and how it goes to and from JSON.
template <class R> struct Field {
    RecordFields::Attribute attribute;
    std::function<QJsonValue(const R&)> get;
    std::function<void(R&, const QJsonValue&)> set;
};

template <class V> constexpr Type typeOf()
{
    if constexpr (std::is_same_v<V, QString>)
        return Type::Text;
    else if constexpr (std::is_same_v<V, bool>)
        return Type::Flag;
    else if constexpr (std::is_same_v<V, Date>)
        return Type::Date;
    else
        return Type::Number;
}

template <class V> QJsonValue toJson(const std::optional<V>& value)
{
    if (!value)
        return QJsonValue(QJsonValue::Undefined);
    if constexpr (std::is_same_v<V, Date>)
        return value->timeIntervalSince1970();
    else
        return QJsonValue(*value);
}

// Server data is input: a value of the wrong type, or a number no attribute can hold, is none.
template <class V> std::optional<V> fromJson(const QJsonValue& value)
{
    if constexpr (std::is_same_v<V, QString>) {
        return value.isString() ? std::optional<V>(value.toString()) : std::nullopt;
    } else if constexpr (std::is_same_v<V, bool>) {
        return value.isBool() ? std::optional<V>(value.toBool()) : std::nullopt;
    } else if constexpr (std::is_same_v<V, Date>) {
        const double seconds = value.toDouble(NAN);
        return value.isDouble() && std::isfinite(seconds) && std::fabs(seconds) < 3.2e11
                   ? std::optional<V>(Date(seconds))
                   : std::nullopt;
    } else {
        const double number = value.toDouble(NAN);
        return value.isDouble() && number == std::trunc(number) && std::fabs(number) < 2.1e9
                   ? std::optional<V>(int(number))
                   : std::nullopt;
    }
}

template <class R, class Getter, class Setter>
Field<R> field(const char* name, Getter getter, Setter setter)
{
    using V = typename std::decay_t<decltype((std::declval<const R&>().*getter)())>::value_type;
    return {{QString::fromLatin1(name), typeOf<V>()},
            [getter](const R& r) { return toJson<V>((r.*getter)()); },
            [setter](R& r, const QJsonValue& v) { (r.*setter)(fromJson<V>(v)); }};
}

const std::vector<Field<Item>>& itemFields()
{
    using I = Item;
    static const std::vector<Field<I>> fields = {
        field<I>("uniqueId", &I::uniqueId, &I::setUniqueId),
        field<I>("title", &I::title, &I::setTitle),
        field<I>("notes", &I::notes, &I::setNotes),
        field<I>("durationHr", &I::durationHr, &I::setDurationHr),
        field<I>("durationMin", &I::durationMin, &I::setDurationMin),
        field<I>("shouldRemind", &I::shouldRemind, &I::setShouldRemind),
        field<I>("remindBefore", &I::remindBefore, &I::setRemindBefore),
        field<I>("dtReminder", &I::dtReminder, &I::setDtReminder),
        field<I>("dtReminderPostponed", &I::dtReminderPostponed, &I::setDtReminderPostponed),
        field<I>("repeatInterval", &I::repeatInterval, &I::setRepeatInterval),
        field<I>("repeatIntervalType", &I::repeatIntervalType, &I::setRepeatIntervalType),
        field<I>("repeatOption", &I::repeatOption, &I::setRepeatOption),
        field<I>("dtRepeatUpto", &I::dtRepeatUpto, &I::setDtRepeatUpto),
        field<I>("hasStarted", &I::hasStarted, &I::setHasStarted),
        field<I>("hasFinished", &I::hasFinished, &I::setHasFinished),
        field<I>("timeLimit", &I::timeLimit, &I::setTimeLimit),
        field<I>("elapsedTime", &I::elapsedTime, &I::setElapsedTime),
        field<I>("timeLimitExtendedBy", &I::timeLimitExtendedBy, &I::setTimeLimitExtendedBy),
        field<I>("runningTimeCovered", &I::runningTimeCovered, &I::setRunningTimeCovered),
    };
    return fields;
}

const std::vector<Field<Rule>>& ruleFields()
{
    using R = Rule;
    static const std::vector<Field<R>> fields = {
        field<R>("uniqueId", &R::uniqueId, &R::setUniqueId),
        field<R>("title", &R::title, &R::setTitle),
        field<R>("notes", &R::notes, &R::setNotes),
        field<R>("durationHr", &R::durationHr, &R::setDurationHr),
        field<R>("durationMin", &R::durationMin, &R::setDurationMin),
        field<R>("shouldRemind", &R::shouldRemind, &R::setShouldRemind),
        field<R>("remindBefore", &R::remindBefore, &R::setRemindBefore),
        field<R>("dtReminder", &R::dtReminder, &R::setDtReminder),
        field<R>("repeatInterval", &R::repeatInterval, &R::setRepeatInterval),
        field<R>("repeatIntervalType", &R::repeatIntervalType, &R::setRepeatIntervalType),
        field<R>("repeatOption", &R::repeatOption, &R::setRepeatOption),
        field<R>("dtRepeatUpto", &R::dtRepeatUpto, &R::setDtRepeatUpto),
        field<R>("isCustom", &R::isCustom, &R::setIsCustom),
        field<R>("isToDoOrJob", &R::isToDoOrJob, &R::setIsToDoOrJob),
        field<R>("isActive", &R::isActive, &R::setIsActive),
    };
    return fields;
}

const std::vector<Field<Project>>& projectFields()
{
    using P = Project;
    static const std::vector<Field<P>> fields = {
        field<P>("name", &P::name, &P::setName),
        field<P>("createdDate", &P::createdDate, &P::setCreatedDate),
        field<P>("uniqueId", &P::uniqueId, &P::setUniqueId),
    };
    return fields;
}

template <class R>
std::vector<RecordFields::Attribute> attributesOf(const std::vector<Field<R>>& fields)
{
    std::vector<RecordFields::Attribute> attributes;
    attributes.reserve(fields.size());
    for (const Field<R>& f : fields)
        attributes.push_back(f.attribute);
    return attributes;
}

template <class R> void write(const std::vector<Field<R>>& fields, const R& record, QJsonObject& to)
{
    for (const Field<R>& f : fields) {
        const QJsonValue value = f.get(record);
        if (!value.isUndefined())
            to.insert(f.attribute.name, value);
    }
}

template <class R>
void read(const std::vector<Field<R>>& fields, const QJsonObject& from, R& record)
{
    for (const Field<R>& f : fields)
        f.set(record, from.value(f.attribute.name));
}

const QString kindKey = QStringLiteral("kind");
const QString projectKey = QStringLiteral("toProject");

} // namespace

QString RecordFields::kindName(Record::Entity entity)
{
    switch (entity) {
    case Record::Entity::Project:
        return QStringLiteral("project");
    case Record::Entity::Rule:
        return QStringLiteral("rule");
    case Record::Entity::Item:
        break;
    }
    return QStringLiteral("item");
}

std::optional<Record::Entity> RecordFields::kindOf(const QJsonObject& fields)
{
    for (const Record::Entity entity :
         {Record::Entity::Project, Record::Entity::Rule, Record::Entity::Item}) {
        if (fields.value(kindKey).toString() == kindName(entity))
            return entity;
    }
    return std::nullopt;
}

const std::vector<RecordFields::Attribute>& RecordFields::attributes(Record::Entity entity)
{
    static const std::vector<Attribute> items = attributesOf(itemFields());
    static const std::vector<Attribute> rules = attributesOf(ruleFields());
    static const std::vector<Attribute> projects = attributesOf(projectFields());
    switch (entity) {
    case Record::Entity::Project:
        return projects;
    case Record::Entity::Rule:
        return rules;
    case Record::Entity::Item:
        break;
    }
    return items;
}

QJsonObject RecordFields::of(const Record& record, const UidOf& uidOf)
{
    QJsonObject fields{{kindKey, kindName(record.entity())}};
    switch (record.entity()) {
    case Record::Entity::Project:
        write(projectFields(), static_cast<const Project&>(record), fields);
        break;
    case Record::Entity::Rule:
        write(ruleFields(), static_cast<const Rule&>(record), fields);
        break;
    case Record::Entity::Item: {
        const auto& item = static_cast<const Item&>(record);
        write(itemFields(), item, fields);
        if (item.toProject())
            fields.insert(projectKey, uidOf(item.toProject()));
        break;
    }
    }
    return fields;
}

void RecordFields::apply(const QJsonObject& fields, Record& record, const ProjectOf& projectOf)
{
    switch (record.entity()) {
    case Record::Entity::Project:
        read(projectFields(), fields, static_cast<Project&>(record));
        break;
    case Record::Entity::Rule:
        read(ruleFields(), fields, static_cast<Rule&>(record));
        break;
    case Record::Entity::Item: {
        auto& item = static_cast<Item&>(record);
        read(itemFields(), fields, item);
        const QString project = fields.value(projectKey).toString();
        item.setToProject(project.isEmpty() ? nullptr : projectOf(project));
        break;
    }
    }
}

} // namespace lullet
