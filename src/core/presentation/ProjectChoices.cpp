#include "core/presentation/ProjectChoices.h"

#include "core/library/Library.h"

#include <algorithm>

namespace lullet {

ProjectChoices::ProjectChoices(const Library& library, QString noProject)
    : m_noProject(std::move(noProject))
    , m_projects(library.projects())
{
}

QStringList ProjectChoices::titles() const
{
    QStringList list{m_noProject};
    for (const Project* project : m_projects)
        list << project->name().value_or(QString());
    return list;
}

int ProjectChoices::indexOf(const Project* project) const
{
    const auto it = std::find(m_projects.begin(), m_projects.end(), project);
    return project && it != m_projects.end() ? int(it - m_projects.begin()) + 1 : 0;
}

Project* ProjectChoices::projectAt(int index) const
{
    if (index < 1 || index > int(m_projects.size()))
        return nullptr;
    Project* project = m_projects[std::size_t(index - 1)];
    return project->hasContext() ? project : nullptr;
}

} // namespace lullet
