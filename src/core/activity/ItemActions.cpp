#include "core/activity/ItemActions.h"

#include "core/activity/RunningItem.h"
#include "core/library/Library.h"
#include "core/library/ProjectOrder.h"
#include "core/model/Item.h"
#include "core/model/Project.h"
#include "core/model/RepeatCodes.h"
#include "core/scheduling/Catalogue.h"

namespace lullet {

ItemActions::ItemActions(Library& library, RunningItem& running, Catalogue& catalogue)
    : m_library(library)
    , m_running(running)
    , m_catalogue(catalogue)
{
}

ItemActions::StartResult ItemActions::start(Item& item)
{
    if (item.isToDo()) {
        completeToDo(item);
        return StartResult::ToDoDone;
    }
    if (m_running.item() && !m_running.isRunning(&item))
        return StartResult::AnotherIsRunning;
    m_running.start(item);
    return StartResult::Started;
}

void ItemActions::confirmStart(Item& item)
{
    if (Item* other = m_running.item())
        m_running.finish(*other);
    m_running.start(item);
}

bool ItemActions::finish(Item& item)
{
    m_running.finish(item);
    return m_running.item() == nullptr;
}

void ItemActions::completeToDo(Item& item)
{
    const std::optional<Date> due = item.effectiveDate();
    m_running.finish(item, RunningItem::Finish::ToDoDone);
    if (due)
        m_catalogue.makeNextOccurrence(&item, *due);
}

void ItemActions::deleteItem(Item& item)
{
    Project* project = item.toProject();
    m_library.deleteItem(&item);
    m_library.save();
    m_library.announceProjectContent(project);
}

std::vector<Project*> ItemActions::otherProjects(const Item& item) const
{
    std::vector<Project*> projects;
    for (Project* p : m_library.projects()) {
        if (p != item.toProject())
            projects.push_back(p);
    }
    ProjectOrder::sortByCodePoints(projects);
    return projects;
}

void ItemActions::moveToProject(Item& item, Project* target)
{
    Project* old = item.toProject();
    item.setToProject(target);
    m_library.save();
    m_library.announceProjectContent(old);
    m_library.announceProjectContent(target);
}

Item* ItemActions::duplicateToProject(const Item& item, Project* target)
{
    Item* copy = m_library.newItem();
    copy->setUniqueId(placeholderId());
    copy->setTitle(item.title());
    copy->setDurationHr(item.durationHr());
    copy->setDurationMin(item.durationMin());
    copy->setNotes(item.notes());
    if (target) {
        copy->setToProject(target);
        m_library.announceProjectContent(target);
    }
    m_library.save();
    m_library.addItem(copy);
    m_library.announceItemChanged(copy);
    return copy;
}

} // namespace lullet
