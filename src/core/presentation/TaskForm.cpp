#include "core/presentation/TaskForm.h"

#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/model/RepeatCodes.h"
#include "core/text/LocalizedText.h"

#include <algorithm>

namespace lullet {

namespace {

Date toTheMinute(Date date)
{
    return date.setTimeOfDate(date.hour(), date.minute(), 0);
}

} // namespace

TaskForm::TaskForm(const Clock& clock, Library& library)
    : m_clock(clock)
    , m_library(library)
{
}

RuleForm::Fields TaskForm::blankFields()
{
    m_shown = toTheMinute(m_clock.now().dateByAddingMinutes(10));
    RuleForm::Fields fields;
    fields.toDo = false;
    fields.day = m_shown.dateAtStartOfDay();
    fields.time = m_shown;
    return fields;
}

RuleForm::Fields TaskForm::fieldsOf(const Item& item)
{
    const std::optional<Date> due =
        item.dtReminderPostponed() ? item.dtReminderPostponed() : item.dtReminder();
    m_shown = toTheMinute(due.value_or(m_clock.now()));
    RuleForm::Fields fields;
    fields.title = item.title().value_or(QString());
    fields.notes = item.notes().value_or(QString());
    fields.toDo = false;
    const int lastRow = int(RemindBefore::codes.size()) - 1;
    fields.remindBeforeRow = std::clamp(item.remindBefore().value_or(0), 0, lastRow);
    fields.hours = std::max(0, item.durationHr().value_or(0));
    fields.minutes = std::max(0, item.durationMin().value_or(0));
    fields.remind = item.shouldRemind().value_or(true);
    fields.day = m_shown.dateAtStartOfDay();
    fields.time = m_shown;
    return fields;
}

Item* TaskForm::done(const RuleForm::Fields& fields, Item* editing, Project* project)
{
    const QString title = fields.title.trimmed();
    if (title.isEmpty())
        return nullptr;
    const Date due = fields.day.setTimeOfDate(fields.time.hour(), fields.time.minute(), 0);
    Item* item = editing ? editing : m_library.newTask(title);
    item->setTitle(LocalizedText::capitalizeFirst(title));
    item->setNotes(fields.notes);
    item->setDurationHr(fields.hours);
    item->setDurationMin(fields.minutes);
    item->setShouldRemind(fields.remind);
    item->setRemindBefore(fields.remindBeforeRow);
    // A date left as shown keeps the task's own, its postponement, or its having none.
    if (!editing || due != m_shown) {
        item->setDtReminder(due);
        item->setDtReminderPostponed(std::nullopt);
    }
    if (editing) {
        m_library.save();
        m_library.announceItemChanged(item);
    } else {
        m_library.addUserTask(item, project);
    }
    return item;
}

} // namespace lullet
