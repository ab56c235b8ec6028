#pragma once

#include "core/dates/Date.h"

#include <QCoreApplication>
#include <QString>

namespace lullet {

class Clock;
class Rule;
class Item;
class WorkingHours;
class WorkingSchedule;
struct CatalogueRow;

// The one-line texts that say what a rule or a suggestion is, when it comes next and how often:
// "Lullet : Today at 3:00 PM, repeats every 2 hours".
class ScheduleTexts {
    Q_DECLARE_TR_FUNCTIONS(ScheduleTexts)

public:
    ScheduleTexts(const Clock& clock, WorkingSchedule& schedule, const WorkingHours& hours);

    // For a stored rule; no rule gives the empty text.
    QString ruleText(const Rule* rule) const;
    // For a suggestion without a rule: one step after the start of today's working hours, or
    // after now when today has no single entry.
    QString suggestionText(const CatalogueRow& row) const;
    // The description of an item in the add task form's table: its repeat, date and duration.
    QString itemText(const Item& item) const;

    // When a repeat-list row comes next: "In next 1 hr 5 min", "Now", "Tomorrow at 9:00 AM",
    // "In next 3 days at 9:00 AM" within its advance notice, "On 25 Nov 2026 at 9:00 AM" beyond,
    // "No further repeat" for a rule past its end, and nothing for a row without a next date.
    QString nextTimeLabel(const CatalogueRow& row) const;

    // "minute", "2 mins", "hour", "3 hours", ... for a unit code and count.
    static QString intervalText(int repeatType, int count);
    // The next date of a suggestion, as suggestionText words it.
    Date suggestionNextDate(const CatalogueRow& row) const;

private:
    QString compose(bool isToDo, Date next, int repeatType, int count) const;
    QString dateText(Date d) const;
    QString timeText(Date d) const;

    const Clock& m_clock;
    WorkingSchedule& m_schedule;
    const WorkingHours& m_hours;
};

} // namespace lullet
