#include "core/app/ProjectChoices.h"

#include "core/app/AppDelegate.h"

namespace lullet {

QStringList ProjectChoices::choices(const AppDelegate& app, const QString& noProject)
{
    QStringList list{noProject};
    for (const Project* project : app.getAllProjectsLists())
        list << project->name().value_or(QString());
    return list;
}

int ProjectChoices::selectedIndex(const AppDelegate& app, const QStringList& choices)
{
    const Project* selected = app.objProjectSelectedNow;
    if (!selected || !selected->name())
        return 0;
    const int index = int(choices.indexOf(*selected->name()));
    return index > 0 ? index : 0;
}

Project* ProjectChoices::chosen(const AppDelegate& app, const QStringList& choices,
                                const QString& choice)
{
    if (choices.isEmpty() || choice == choices.constFirst())
        return nullptr;
    for (Project* project : app.getAllProjectsLists()) {
        if (project->name() == choice)
            return project;
    }
    return nullptr;
}

} // namespace lullet
