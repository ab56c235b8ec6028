#pragma once

#include "core/model/Project.h"

#include <QCoreApplication>
#include <QString>

namespace lullet {

class Clock;
class Library;

// Adding, renaming, deleting and duplicating projects.
class ProjectActions {
    Q_DECLARE_TR_FUNCTIONS(ProjectActions)

public:
    ProjectActions(const Clock& clock, Library& library);

    static QString blankMessage() { return tr("Name is blank\nPlease set a name"); }
    static QString existsMessage()
    {
        return tr("Project alreday exists\nPlease enter different name");
    }
    static QString deleteTitle() { return tr("Confirm before delete"); }
    static QString deleteQuestion()
    {
        return tr("All tasks under this Project will be deleted.\nAre you sure to delete ?");
    }

    struct Added {
        Project* project = nullptr;
        // Why nothing was added, as the field's balloon says it.
        QString refusal;
    };
    // A new project of that name, its first letter capitalised; refused when blank or taken.
    Added addProject(const QString& text);
    // True when the project took the new name; a blank name, the same name or another
    // project's name change nothing.
    bool renameProject(Project& project, const QString& text);
    // Whether deleting asks first: only a project that holds items.
    static bool deleteAsks(const Project& project) { return !project.toReminders().empty(); }
    // The project and every item in it.
    void deleteProject(Project& project);
    // "<name> Copy" with copies of the items, without their dates, state or time used.
    Project* duplicateAsNew(const Project& project);

private:
    bool nameTaken(const QString& name) const;

    const Clock& m_clock;
    Library& m_library;
};

} // namespace lullet
