#include "core/activity/ProjectActions.h"

#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/model/RepeatCodes.h"
#include "core/store/ObjectContext.h"
#include "core/text/LocalizedText.h"
#include "core/text/PatternMatcher.h"

namespace lullet {

ProjectActions::ProjectActions(const Clock& clock, Library& library)
    : m_clock(clock)
    , m_library(library)
{
}

bool ProjectActions::nameTaken(const QString& name) const
{
    for (const Project* p : m_library.projects()) {
        if (p->name() == name)
            return true;
    }
    return false;
}

ProjectActions::Added ProjectActions::addProject(const QString& text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return {nullptr, blankMessage()};
    const QString name = LocalizedText::capitalizeFirst(trimmed);
    if (nameTaken(name))
        return {nullptr, existsMessage()};
    Project* project = m_library.newProject();
    project->setName(name);
    project->setCreatedDate(m_clock.now());
    m_library.save();
    m_library.addProject(project);
    return {project, {}};
}

bool ProjectActions::renameProject(Project& project, const QString& text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return false;
    const QString name = LocalizedText::capitalizeFirst(trimmed);
    const QString old = project.name().value_or(QString());
    if (name == old)
        return false;
    // Another project's name, among those that are not the old one, is refused.
    const PatternMatcher isOld(old);
    for (const Project* p : m_library.projects()) {
        if (p->name() && !isOld.matches(*p->name()) && *p->name() == name)
            return false;
    }
    project.setName(name);
    m_library.save();
    // Listed again, which also sorts it into its new place.
    m_library.addProject(&project);
    return true;
}

void ProjectActions::deleteProject(Project& project)
{
    m_library.deleteProject(&project);
    m_library.save();
}

Project* ProjectActions::duplicateAsNew(const Project& project)
{
    Project* copy = m_library.newProject();
    copy->setName(project.name().value_or(QString()) + QStringLiteral(" Copy"));
    copy->setCreatedDate(m_clock.now());
    copy->setUniqueId(placeholderId());
    // The copies keep no date, no state and no time used.
    const auto twin = [this, copy](const Item& item) {
        Item* made = m_library.newItem();
        made->setUniqueId(item.uniqueId());
        made->setTitle(item.title());
        made->setDurationHr(item.durationHr());
        made->setDurationMin(item.durationMin());
        made->setShouldRemind(item.shouldRemind());
        made->setRemindBefore(item.remindBefore());
        made->setToProject(copy);
        m_library.addItem(made);
    };
    for (const Item* item : std::vector<Item*>(project.toReminders()))
        twin(*item);
    m_library.scanHistory(twin, &project);
    m_library.save();
    m_library.addProject(copy);
    return copy;
}

} // namespace lullet
