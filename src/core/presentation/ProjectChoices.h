#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace lullet {

class Library;
class Project;

// A project menu of the forms and prompts: a first entry that means "no project", then every
// project in list order. The menu keeps the projects it was made with, so a choice is read by
// its position: a project may be named like the first entry, or like another project.
class ProjectChoices {
public:
    ProjectChoices(const Library& library, QString noProject);

    QStringList titles() const;
    // The entry of the project, else the first.
    int indexOf(const Project* project) const;
    // The project of an entry; none for the first entry or a project deleted meanwhile.
    Project* projectAt(int index) const;

private:
    QString m_noProject;
    std::vector<Project*> m_projects;
};

} // namespace lullet
