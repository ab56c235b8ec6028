#include "core/sync/IcalTodo.h"

#include <cmath>
#include <cstdlib>

namespace lullet {

namespace {

QString fromC(const char* text)
{
    return text ? QString::fromUtf8(text) : QString();
}

} // namespace

IcalTodo::IcalTodo(icalcomponent* calendar)
    : m_calendar(calendar)
    , m_todo(icalcomponent_get_first_component(calendar, ICAL_VTODO_COMPONENT))
{
}

std::optional<IcalTodo> IcalTodo::parse(const QByteArray& text)
{
    icalcomponent* parsed = icalparser_parse_string(text.constData());
    if (!parsed)
        return std::nullopt;
    if (icalcomponent_isa(parsed) == ICAL_VTODO_COMPONENT) {
        // A bare to-do is put in a calendar, as every resource of a collection is one.
        icalcomponent* calendar = icalcomponent_new(ICAL_VCALENDAR_COMPONENT);
        icalcomponent_add_component(calendar, parsed);
        parsed = calendar;
    }
    IcalTodo todo(parsed);
    if (icalcomponent_isa(parsed) != ICAL_VCALENDAR_COMPONENT || !todo.m_todo ||
        todo.uid().isEmpty())
        return std::nullopt;
    return todo;
}

IcalTodo IcalTodo::make(const QString& uid)
{
    icalcomponent* calendar = icalcomponent_new(ICAL_VCALENDAR_COMPONENT);
    icalcomponent_add_property(calendar, icalproperty_new_version("2.0"));
    icalcomponent_add_property(calendar, icalproperty_new_prodid("-//Lullet//Lullet//EN"));
    icalcomponent_add_component(calendar, icalcomponent_new(ICAL_VTODO_COMPONENT));
    IcalTodo todo(calendar);
    icalcomponent_set_uid(todo.m_todo, uid.toUtf8().constData());
    return todo;
}

QString IcalTodo::uid() const
{
    return fromC(icalcomponent_get_uid(m_todo));
}

QByteArray IcalTodo::text() const
{
    char* text = icalcomponent_as_ical_string_r(m_calendar.get());
    QByteArray bytes(text);
    std::free(text);
    return bytes;
}

icalproperty* IcalTodo::first(icalproperty_kind kind) const
{
    return icalcomponent_get_first_property(m_todo, kind);
}

std::vector<icalproperty*> IcalTodo::all(icalproperty_kind kind) const
{
    std::vector<icalproperty*> found;
    for (icalproperty* p = icalcomponent_get_first_property(m_todo, kind); p;
         p = icalcomponent_get_next_property(m_todo, kind))
        found.push_back(p);
    return found;
}

std::optional<QString> IcalTodo::text(icalproperty_kind kind) const
{
    icalproperty* property = first(kind);
    if (!property)
        return std::nullopt;
    return fromC(icalvalue_get_text(icalproperty_get_value(property)));
}

std::optional<Date> IcalTodo::date(icalproperty_kind kind) const
{
    icalproperty* property = first(kind);
    return property ? dateOf(property, m_todo) : std::nullopt;
}

std::optional<Date> IcalTodo::dateOf(icalproperty* property, icalcomponent* todo)
{
    const icaltimetype t = icalproperty_get_datetime_with_component(property, todo);
    if (icaltime_is_null_time(t) || !icaltime_is_valid_time(t))
        return std::nullopt;
    if (t.is_date || (!t.zone && !icaltime_is_utc(t)))
        return Date::dateFromComponents(t.year, t.month, t.day, t.hour, t.minute, t.second);
    return Date(double(icaltime_as_timet_with_zone(t, t.zone)));
}

std::optional<QString> IcalTodo::x(const QString& name) const
{
    const QByteArray wanted = name.toUtf8();
    for (icalproperty* p : all(ICAL_X_PROPERTY)) {
        if (qstricmp(icalproperty_get_x_name(p), wanted.constData()) == 0)
            return fromC(icalproperty_get_x(p));
    }
    return std::nullopt;
}

void IcalTodo::add(icalproperty* property)
{
    icalcomponent_add_property(m_todo, property);
}

void IcalTodo::remove(icalproperty* property)
{
    icalcomponent_remove_property(m_todo, property);
    icalproperty_free(property);
}

void IcalTodo::removeAll(icalproperty_kind kind)
{
    for (icalproperty* p : all(kind))
        remove(p);
}

void IcalTodo::setText(icalproperty_kind kind, const std::optional<QString>& value)
{
    if (value && text(kind) == value)
        return;
    removeAll(kind);
    if (!value || value->isEmpty())
        return;
    icalproperty* property = icalproperty_new(kind);
    icalproperty_set_value(property, icalvalue_new_text(value->toUtf8().constData()));
    add(property);
}

void IcalTodo::setX(const QString& name, const QString& value)
{
    icalproperty* property = icalproperty_new_x(value.toUtf8().constData());
    icalproperty_set_x_name(property, name.toUtf8().constData());
    add(property);
}

void IcalTodo::removeX(const QString& prefix)
{
    for (icalproperty* p : all(ICAL_X_PROPERTY)) {
        if (fromC(icalproperty_get_x_name(p)).startsWith(prefix, Qt::CaseInsensitive))
            remove(p);
    }
}

icaltimetype IcalTodo::utc(Date date)
{
    return icaltime_from_timet_with_zone(time_t(std::floor(date.timeIntervalSince1970())), 0,
                                         icaltimezone_get_utc_timezone());
}

} // namespace lullet
