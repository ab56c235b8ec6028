#pragma once

#include "core/dates/Date.h"

#include <QByteArray>
#include <QString>

#include <libical/ical.h>
#include <memory>
#include <optional>
#include <vector>

namespace lullet {

// One iCalendar object holding one to-do, parsed or made by libical and freed with this object.
// Its properties are reached by kind; the X- properties by name.
class IcalTodo {
public:
    // Nothing when the text is no iCalendar object with a to-do that has a UID.
    static std::optional<IcalTodo> parse(const QByteArray& text);
    static IcalTodo make(const QString& uid);

    QString uid() const;
    QByteArray text() const;

    icalproperty* first(icalproperty_kind kind) const;
    std::vector<icalproperty*> all(icalproperty_kind kind) const;
    std::optional<QString> text(icalproperty_kind kind) const;
    // A date or time of the to-do, in its own zone; a date without a zone or a time of day is the
    // user's own.
    std::optional<Date> date(icalproperty_kind kind) const;
    std::optional<QString> x(const QString& name) const;

    // The to-do takes the property and frees it with itself.
    void add(icalproperty* property);
    void remove(icalproperty* property);
    void removeAll(icalproperty_kind kind);
    void setText(icalproperty_kind kind, const std::optional<QString>& value);
    void setX(const QString& name, const QString& value);
    // Removes the X- properties whose names start so.
    void removeX(const QString& prefix);

    static icaltimetype utc(Date date);
    static std::optional<Date> dateOf(icalproperty* property, icalcomponent* todo);

private:
    struct Free {
        void operator()(icalcomponent* component) const { icalcomponent_free(component); }
    };
    explicit IcalTodo(icalcomponent* calendar);

    std::unique_ptr<icalcomponent, Free> m_calendar;
    icalcomponent* m_todo;
};

} // namespace lullet
