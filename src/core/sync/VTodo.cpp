#include "core/sync/VTodo.h"

#include "core/model/RepeatCodes.h"
#include "core/sync/IcalTodo.h"
#include "core/sync/RecordFields.h"

#include <QJsonValue>

#include <cmath>

namespace lullet {

namespace {

using Type = RecordFields::Type;
using Entity = Record::Entity;

const QString prefix = QStringLiteral("X-LULLET-");
const QString kindProperty = QStringLiteral("X-LULLET-KIND");
const char* const projectParameter = "X-LULLET-PROJECT";

// Attributes that a standard property holds exactly: they have no X-LULLET- twin.
bool heldByStandard(const QString& attribute)
{
    return attribute == QLatin1String("title") || attribute == QLatin1String("notes") ||
           attribute == QLatin1String("name");
}

QString encode(const QJsonValue& value, Type type)
{
    switch (type) {
    case Type::Text:
        return value.toString();
    case Type::Number:
        return QString::number(value.toInt());
    case Type::Flag:
        return value.toBool() ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
    case Type::Date:
        break;
    }
    return QString::number(value.toDouble(), 'g', 17);
}

QJsonValue decode(const QString& text, Type type)
{
    bool ok = false;
    switch (type) {
    case Type::Text:
        return text;
    case Type::Number: {
        const int number = text.toInt(&ok);
        return ok ? QJsonValue(number) : QJsonValue(QJsonValue::Undefined);
    }
    case Type::Flag:
        if (text.compare(QLatin1String("TRUE"), Qt::CaseInsensitive) == 0)
            return true;
        if (text.compare(QLatin1String("FALSE"), Qt::CaseInsensitive) == 0)
            return false;
        return QJsonValue(QJsonValue::Undefined);
    case Type::Date:
        break;
    }
    const double seconds = text.toDouble(&ok);
    return ok && std::isfinite(seconds) ? QJsonValue(seconds) : QJsonValue(QJsonValue::Undefined);
}

std::optional<Date> dateIn(const QJsonObject& fields, const QString& key)
{
    const QJsonValue value = fields.value(key);
    return value.isDouble() ? std::optional<Date>(Date(value.toDouble())) : std::nullopt;
}

// Standard properties keep whole seconds.
bool sameSecond(std::optional<Date> a, std::optional<Date> b)
{
    const auto second = [](std::optional<Date> d) {
        return d ? std::optional<double>(std::floor(d->timeIntervalSince1970())) : std::nullopt;
    };
    return second(a) == second(b);
}

QString effectiveKey(const QJsonObject& fields)
{
    return fields.contains(QLatin1String("dtReminderPostponed"))
               ? QStringLiteral("dtReminderPostponed")
               : QStringLiteral("dtReminder");
}

std::optional<Date> effectiveDate(const QJsonObject& fields)
{
    return dateIn(fields, effectiveKey(fields));
}

int plannedSeconds(const QJsonObject& fields)
{
    return std::max(0, fields.value(QLatin1String("durationHr")).toInt()) * 3600 +
           std::max(0, fields.value(QLatin1String("durationMin")).toInt()) * 60;
}

bool flag(const QJsonObject& fields, const char* key)
{
    return fields.value(QLatin1String(key)).toBool();
}

void setDate(QJsonObject& fields, const QString& key, std::optional<Date> date)
{
    if (date)
        fields.insert(key, date->timeIntervalSince1970());
    else
        fields.remove(key);
}

// The parent to-do: a RELATED-TO without a type, or of the type PARENT.
icalproperty* parentLink(const IcalTodo& todo)
{
    for (icalproperty* link : todo.all(ICAL_RELATEDTO_PROPERTY)) {
        icalparameter* type = icalproperty_get_first_parameter(link, ICAL_RELTYPE_PARAMETER);
        if (!type || icalparameter_get_reltype(type) == ICAL_RELTYPE_PARENT)
            return link;
    }
    return nullptr;
}

std::optional<icalproperty_status> statusOf(const IcalTodo& todo)
{
    icalproperty* status = todo.first(ICAL_STATUS_PROPERTY);
    return status ? std::optional(icalproperty_get_status(status)) : std::nullopt;
}

// A to-do of another program: a task of its own, reminding at its date.
void readForeignDefaults(const IcalTodo& todo, QJsonObject& fields)
{
    fields.insert(QStringLiteral("uniqueId"), placeholderId());
    fields.insert(QStringLiteral("durationHr"), 0);
    fields.insert(QStringLiteral("durationMin"), 0);
    fields.insert(QStringLiteral("remindBefore"), int(RemindBefore::OnTheDay));
    fields.insert(QStringLiteral("shouldRemind"),
                  todo.first(ICAL_DUE_PROPERTY) || todo.first(ICAL_DTSTART_PROPERTY));
    fields.insert(QStringLiteral("hasFinished"), false);
}

void readItemSchedule(const IcalTodo& todo, QJsonObject& fields)
{
    const std::optional<Date> due = todo.first(ICAL_DUE_PROPERTY)
                                        ? todo.date(ICAL_DUE_PROPERTY)
                                        : todo.date(ICAL_DTSTART_PROPERTY);
    if (!sameSecond(due, effectiveDate(fields))) {
        if (!due)
            fields.remove(QStringLiteral("dtReminderPostponed"));
        setDate(fields, effectiveKey(fields), due);
    }
    if (icalproperty* duration = todo.first(ICAL_DURATION_PROPERTY)) {
        const int seconds =
            std::max(0, icaldurationtype_as_int(icalproperty_get_duration(duration)));
        if (seconds != plannedSeconds(fields)) {
            fields.insert(QStringLiteral("durationHr"), seconds / 3600);
            fields.insert(QStringLiteral("durationMin"), seconds % 3600 / 60);
        }
    }
}

void readItemState(const IcalTodo& todo, QJsonObject& fields)
{
    const std::optional<icalproperty_status> status = statusOf(todo);
    const bool completed =
        status == ICAL_STATUS_COMPLETED || (!status && todo.first(ICAL_COMPLETED_PROPERTY));
    if (completed != flag(fields, "hasFinished")) {
        fields.insert(QStringLiteral("hasFinished"), completed);
        if (completed)
            fields.insert(QStringLiteral("hasStarted"), false);
    }
    const bool running = status == ICAL_STATUS_INPROCESS;
    if (!completed && running != flag(fields, "hasStarted"))
        fields.insert(QStringLiteral("hasStarted"), running);
    if (icalproperty* parent = parentLink(todo))
        fields.insert(QStringLiteral("toProject"),
                      QString::fromUtf8(icalproperty_get_relatedto(parent)));
}

// A rule's repeat as an RRULE; nothing where its unit can't be said so.
std::optional<icalrecurrencetype> recurrenceOf(const QJsonObject& fields)
{
    static const icalrecurrencetype_frequency frequencies[] = {
        ICAL_MINUTELY_RECURRENCE, ICAL_HOURLY_RECURRENCE,  ICAL_DAILY_RECURRENCE,
        ICAL_WEEKLY_RECURRENCE,   ICAL_MONTHLY_RECURRENCE, ICAL_YEARLY_RECURRENCE};
    const int unit = fields.value(QLatin1String("repeatIntervalType")).toInt(-1);
    const int count = fields.value(QLatin1String("repeatInterval")).toInt();
    if (!RepeatUnit::isKnown(unit) || count < 1 || count > 0x7fff)
        return std::nullopt;
    icalrecurrencetype rule;
    icalrecurrencetype_clear(&rule);
    rule.freq = frequencies[unit];
    rule.interval = short(count);
    const std::optional<Date> until = dateIn(fields, QStringLiteral("dtRepeatUpto"));
    if (fields.value(QLatin1String("repeatOption")).toInt() == RepeatEnd::untilDate && until)
        rule.until = IcalTodo::utc(*until);
    return rule;
}

QString recurrenceText(const icalrecurrencetype& rule)
{
    char* text = icalrecurrencetype_as_string_r(const_cast<icalrecurrencetype*>(&rule));
    QString result = QString::fromUtf8(text);
    icalmemory_free_buffer(text);
    return result;
}

// An RRULE another program wrote, when it says no more than a rule can.
void readRecurrence(const IcalTodo& todo, QJsonObject& fields)
{
    icalproperty* property = todo.first(ICAL_RRULE_PROPERTY);
    if (!property)
        return;
    const icalrecurrencetype rule = icalproperty_get_rrule(property);
    const std::optional<icalrecurrencetype> ours = recurrenceOf(fields);
    if (ours && recurrenceText(*ours) == recurrenceText(rule))
        return;
    const int unit = int(rule.freq) - int(ICAL_MINUTELY_RECURRENCE);
    const bool plain = rule.count == 0 && rule.by_day[0] == ICAL_RECURRENCE_ARRAY_MAX &&
                       rule.by_month_day[0] == ICAL_RECURRENCE_ARRAY_MAX &&
                       rule.by_month[0] == ICAL_RECURRENCE_ARRAY_MAX;
    if (!plain || !RepeatUnit::isKnown(unit))
        return;
    fields.insert(QStringLiteral("repeatIntervalType"), unit);
    fields.insert(QStringLiteral("repeatInterval"), std::max<int>(1, rule.interval));
    const bool ends = !icaltime_is_null_time(rule.until);
    fields.insert(QStringLiteral("repeatOption"), ends ? RepeatEnd::untilDate : RepeatEnd::never);
    if (ends)
        setDate(fields, QStringLiteral("dtRepeatUpto"),
                Date(double(icaltime_as_timet_with_zone(rule.until, rule.until.zone))));
}

void readStandard(const IcalTodo& todo, Entity entity, QJsonObject& fields)
{
    const QString titleKey =
        entity == Entity::Project ? QStringLiteral("name") : QStringLiteral("title");
    fields.insert(titleKey, todo.text(ICAL_SUMMARY_PROPERTY).value_or(QString()));
    if (entity != Entity::Project) {
        if (const std::optional<QString> notes = todo.text(ICAL_DESCRIPTION_PROPERTY))
            fields.insert(QStringLiteral("notes"), *notes);
        else
            fields.remove(QStringLiteral("notes"));
    }
    switch (entity) {
    case Entity::Item:
        readItemSchedule(todo, fields);
        readItemState(todo, fields);
        break;
    case Entity::Rule: {
        const std::optional<Date> anchor = todo.date(ICAL_DTSTART_PROPERTY);
        if (anchor && !sameSecond(anchor, dateIn(fields, QStringLiteral("dtReminder"))))
            setDate(fields, QStringLiteral("dtReminder"), anchor);
        readRecurrence(todo, fields);
        break;
    }
    case Entity::Project: {
        const std::optional<Date> created = todo.date(ICAL_CREATED_PROPERTY);
        if (created && !sameSecond(created, dateIn(fields, QStringLiteral("createdDate"))))
            setDate(fields, QStringLiteral("createdDate"), created);
        break;
    }
    }
}

void replaceDate(IcalTodo& todo, icalproperty_kind kind, std::optional<Date> date)
{
    todo.removeAll(kind);
    if (!date)
        return;
    icalproperty* property = icalproperty_new(kind);
    icalproperty_set_value(property, icalvalue_new_datetime(IcalTodo::utc(*date)));
    todo.add(property);
}

void writeItemSchedule(IcalTodo& todo, const QJsonObject& fields, const QJsonObject& before)
{
    const std::optional<Date> due = effectiveDate(fields);
    const int planned = plannedSeconds(fields);
    // What other programs show is left as they wrote it while it says the same.
    if (sameSecond(due, effectiveDate(before)) && planned == plannedSeconds(before))
        return;
    replaceDate(todo, ICAL_DTSTART_PROPERTY, due);
    todo.removeAll(ICAL_DURATION_PROPERTY);
    replaceDate(todo, ICAL_DUE_PROPERTY, planned > 0 ? std::nullopt : due);
    if (due && planned > 0)
        todo.add(icalproperty_new_duration(icaldurationtype_from_int(planned)));
}

void writeItemState(IcalTodo& todo, const QJsonObject& fields, const QJsonObject& before,
                    Date lastModified)
{
    const bool finished = flag(fields, "hasFinished");
    const bool running = !finished && flag(fields, "hasStarted");
    if (finished == flag(before, "hasFinished") &&
        running == (!flag(before, "hasFinished") && flag(before, "hasStarted")))
        return;
    todo.removeAll(ICAL_STATUS_PROPERTY);
    todo.removeAll(ICAL_COMPLETED_PROPERTY);
    todo.removeAll(ICAL_PERCENTCOMPLETE_PROPERTY);
    todo.add(icalproperty_new_status(finished  ? ICAL_STATUS_COMPLETED
                                     : running ? ICAL_STATUS_INPROCESS
                                               : ICAL_STATUS_NEEDSACTION));
    if (finished) {
        todo.add(icalproperty_new_completed(
            IcalTodo::utc(effectiveDate(fields).value_or(lastModified))));
        todo.add(icalproperty_new_percentcomplete(100));
    }
}

void writeItemProject(IcalTodo& todo, const QJsonObject& fields, const QJsonObject& before,
                      const QString& projectName)
{
    const QString project = fields.value(QLatin1String("toProject")).toString();
    if (project == before.value(QLatin1String("toProject")).toString())
        return;
    if (icalproperty* parent = parentLink(todo))
        todo.remove(parent);
    for (icalproperty* category : todo.all(ICAL_CATEGORIES_PROPERTY)) {
        for (icalparameter* p = icalproperty_get_first_parameter(category, ICAL_X_PARAMETER); p;
             p = icalproperty_get_next_parameter(category, ICAL_X_PARAMETER)) {
            if (qstricmp(icalparameter_get_xname(p), projectParameter) == 0) {
                todo.remove(category);
                break;
            }
        }
    }
    if (project.isEmpty())
        return;
    icalproperty* parent = icalproperty_new_relatedto(project.toUtf8().constData());
    icalproperty_add_parameter(parent, icalparameter_new_reltype(ICAL_RELTYPE_PARENT));
    todo.add(parent);
    // A comma would split the name into two categories.
    if (projectName.isEmpty() || projectName.contains(QLatin1Char(',')))
        return;
    icalproperty* category = icalproperty_new_categories(projectName.toUtf8().constData());
    icalparameter* ours = icalparameter_new_x("TRUE");
    icalparameter_set_xname(ours, projectParameter);
    icalproperty_add_parameter(category, ours);
    todo.add(category);
}

void writeRule(IcalTodo& todo, const QJsonObject& fields, const QJsonObject& before)
{
    const std::optional<Date> anchor = dateIn(fields, QStringLiteral("dtReminder"));
    if (!sameSecond(anchor, dateIn(before, QStringLiteral("dtReminder"))) ||
        !todo.first(ICAL_DTSTART_PROPERTY))
        replaceDate(todo, ICAL_DTSTART_PROPERTY, anchor);
    todo.removeAll(ICAL_RRULE_PROPERTY);
    if (const std::optional<icalrecurrencetype> rule = recurrenceOf(fields); rule && anchor)
        todo.add(icalproperty_new_rrule(*rule));
}

void writeStandard(IcalTodo& todo, const VTodo::Write& what, Entity entity,
                   const QJsonObject& before)
{
    const QJsonObject& fields = what.fields;
    const bool isProject = entity == Entity::Project;
    todo.setText(
        ICAL_SUMMARY_PROPERTY,
        fields.value(isProject ? QLatin1String("name") : QLatin1String("title")).toString());
    if (!isProject)
        todo.setText(ICAL_DESCRIPTION_PROPERTY, fields.value(QLatin1String("notes")).toString());
    switch (entity) {
    case Entity::Item:
        writeItemSchedule(todo, fields, before);
        writeItemState(todo, fields, before, what.lastModified);
        writeItemProject(todo, fields, before, what.projectName);
        break;
    case Entity::Rule:
        writeRule(todo, fields, before);
        break;
    case Entity::Project:
        replaceDate(todo, ICAL_CREATED_PROPERTY, dateIn(fields, QStringLiteral("createdDate")));
        break;
    }
    replaceDate(todo, ICAL_LASTMODIFIED_PROPERTY, what.lastModified);
    replaceDate(todo, ICAL_DTSTAMP_PROPERTY, what.lastModified);
}

} // namespace

VTodo::Read VTodo::readFrom(const IcalTodo& todo)
{
    Read read;
    read.uid = todo.uid();
    read.lastModified = todo.date(ICAL_LASTMODIFIED_PROPERTY);
    if (!read.lastModified)
        read.lastModified = todo.date(ICAL_DTSTAMP_PROPERTY);
    const std::optional<QString> kindText = todo.x(kindProperty);
    QJsonObject& fields = read.fields;
    fields.insert(QStringLiteral("kind"), kindText.value_or(QStringLiteral("item")));
    const std::optional<Entity> entity = RecordFields::kindOf(fields);
    if (!entity) {
        // A kind of record this version doesn't know: read as much as a task can hold.
        fields.insert(QStringLiteral("kind"), RecordFields::kindName(Entity::Item));
        readForeignDefaults(todo, fields);
    } else if (!kindText) {
        readForeignDefaults(todo, fields);
    } else {
        for (const RecordFields::Attribute& a : RecordFields::attributes(*entity)) {
            if (heldByStandard(a.name))
                continue;
            const std::optional<QString> text = todo.x(prefix + a.name.toUpper());
            const QJsonValue value = text ? decode(*text, a.type) : QJsonValue::Undefined;
            if (!value.isUndefined())
                fields.insert(a.name, value);
        }
    }
    readStandard(todo, entity.value_or(Entity::Item), fields);
    return read;
}

std::optional<VTodo::Read> VTodo::read(const QByteArray& text)
{
    const std::optional<IcalTodo> todo = IcalTodo::parse(text);
    if (!todo)
        return std::nullopt;
    return readFrom(*todo);
}

QByteArray VTodo::write(const Write& what, const QByteArray& previous)
{
    std::optional<IcalTodo> todo;
    if (!previous.isEmpty())
        todo = IcalTodo::parse(previous);
    if (!todo || todo->uid() != what.uid)
        todo = IcalTodo::make(what.uid);
    const Entity entity = RecordFields::kindOf(what.fields).value_or(Entity::Item);
    // What the text says now, to tell which of its properties must change.
    const QJsonObject before = previous.isEmpty() ? QJsonObject() : readFrom(*todo).fields;
    todo->removeAll(ICAL_XLICERROR_PROPERTY);
    todo->removeX(prefix);
    todo->setX(kindProperty, RecordFields::kindName(entity));
    for (const RecordFields::Attribute& a : RecordFields::attributes(entity)) {
        if (!heldByStandard(a.name) && what.fields.contains(a.name))
            todo->setX(prefix + a.name.toUpper(), encode(what.fields.value(a.name), a.type));
    }
    writeStandard(*todo, what, entity, before);
    return todo->text();
}

} // namespace lullet
