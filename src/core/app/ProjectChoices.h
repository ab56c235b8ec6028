#pragma once

#include <QString>
#include <QStringList>

namespace lullet {

class AppDelegate;
class Project;

// The project menus of the forms and prompts: a first entry that means "no project", then every
// project's name in list order.
class ProjectChoices {
public:
    static QStringList choices(const AppDelegate& app, const QString& noProject);
    // The selected project's entry, else the first.
    static int selectedIndex(const AppDelegate& app, const QStringList& choices);
    // The project of the chosen entry; none for the first entry or a project gone meanwhile.
    static Project* chosen(const AppDelegate& app, const QStringList& choices,
                           const QString& choice);
};

} // namespace lullet
