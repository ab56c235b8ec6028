#pragma once

#include "core/model/Project.h"

#include <QString>

namespace lullet {

class AppDelegate;

// Adding, renaming, deleting and duplicating projects.
class ProjectActions {
public:
    static QString blankMessage() { return QStringLiteral("Name is blank\nPlease set a name"); }
    static QString existsMessage()
    {
        return QStringLiteral("Project alreday exists\nPlease enter different name");
    }
    static QString deleteTitle() { return QStringLiteral("Confirm before delete"); }
    static QString deleteQuestion()
    {
        return QStringLiteral(
            "All tasks under this Project will be deleted.\nAre you sure to delete ?");
    }

    struct Added {
        Project* project = nullptr;
        // Why nothing was added, as the field's balloon says it.
        QString refusal;
    };
    // A new project of that name, its first letter capitalised; refused when blank or taken.
    static Added addProject(AppDelegate& app, const QString& text);
    // True when the project took the new name; a blank name, the same name or another
    // project's name change nothing.
    static bool renameProject(AppDelegate& app, Project& project, const QString& text);
    // Whether deleting asks first: only a project that holds items.
    static bool deleteAsks(const Project& project) { return !project.toReminders().empty(); }
    // The project and every item in it.
    static void deleteProject(AppDelegate& app, Project& project);
    // "<name> Copy" with copies of the items, without their dates, state or time used.
    static Project* duplicateAsNew(AppDelegate& app, const Project& project);
};

} // namespace lullet
