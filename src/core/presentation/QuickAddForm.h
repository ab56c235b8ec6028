#pragma once

#include "core/dates/Date.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>

namespace lullet {

class Clock;
class Item;
class Library;
class Project;

// Adding a plain task by its name: due ten minutes after the form was opened, unless the user
// picks another date or none, in the chosen project or none, with the duration chosen in its
// menu.
class QuickAddForm {
    Q_DECLARE_TR_FUNCTIONS(QuickAddForm)

public:
    QuickAddForm(const Clock& clock, Library& library);

    static QString blankMessage() { return tr(" Task name is blank! Please enter task name. "); }
    static QStringList durationChoices();

    // The form is opened afresh: due ten minutes from now.
    void reset();
    std::optional<Date> date() const { return m_date; }
    void setDate(std::optional<Date> date) { m_date = date; }
    // "23 Nov 2026" and "at 10:25 AM", or "No" and "date" without a date.
    QString dateLabel() const;
    QString timeLabel() const;
    // The date that opening the date chooser starts from.
    Date chooserStart() const;

    // Adds the task, to the project or to none, with the duration of that entry of the menu;
    // nothing for a blank name.
    Item* add(const QString& name, Project* project, int durationChoice = 0);

private:
    const Clock& m_clock;
    Library& m_library;
    std::optional<Date> m_date;
};

} // namespace lullet
