#include "core/model/Item.h"

#include <algorithm>

namespace lullet {

void Item::setToProject(Project* project)
{
    if (m_toProject == project)
        return;
    if (m_toProject) {
        auto& items = m_toProject->m_toReminders;
        items.erase(std::remove(items.begin(), items.end(), this), items.end());
    }
    m_toProject = project;
    if (project)
        project->m_toReminders.push_back(this);
    changed();
}

} // namespace lullet
