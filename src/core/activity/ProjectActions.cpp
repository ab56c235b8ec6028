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
    m_library.loadHistory(project);
    for (const Item* item : std::vector<Item*>(project.toReminders())) {
        Item* twin = m_library.newItem();
        twin->setUniqueId(item->uniqueId());
        twin->setTitle(item->title());
        twin->setDurationHr(item->durationHr());
        twin->setDurationMin(item->durationMin());
        twin->setShouldRemind(item->shouldRemind());
        twin->setRemindBefore(item->remindBefore());
        twin->setToProject(copy);
        m_library.addItem(twin);
    }
    m_library.save();
    m_library.addProject(copy);
    return copy;
}

} // namespace lullet
