#pragma once

#include "core/presentation/RuleForm.h"

#include <optional>

namespace lullet {

class Clock;
class Item;
class Library;
class Project;

// The form's task mode: a plain task of a project, with the fields a rule has but its repeat.
// The task is an item of no rule; saving it announces it as an added or edited item.
class TaskForm {
public:
    TaskForm(const Clock& clock, Library& library);

    // A new task: due ten minutes from now, reminding on the day.
    RuleForm::Fields blankFields();
    // The task as it stands, its date being the postponed one where it was put off. A task with
    // no date shows now, and keeps having none unless the date is changed.
    RuleForm::Fields fieldsOf(const Item& item);

    // Saves the fields on `editing`, or on a new task of `project`; nothing for a blank name.
    // A new date replaces the task's own and any postponement.
    Item* done(const RuleForm::Fields& fields, Item* editing, Project* project);

private:
    const Clock& m_clock;
    Library& m_library;
    // The date the form showed, to the minute.
    Date m_shown;
};

} // namespace lullet
