#include "core/library/Library.h"

#include "core/library/ItemOrder.h"
#include "core/library/ProjectOrder.h"
#include "core/store/Db.h"
#include "core/store/ObjectContext.h"
#include "core/store/Store.h"
#include "core/text/LocalizedText.h"
#include "core/text/PatternMatcher.h"

#include <algorithm>

namespace lullet {

namespace {

template <class T> bool contains(const std::vector<T*>& list, const T* record)
{
    return std::find(list.begin(), list.end(), record) != list.end();
}

template <class T> void erase(std::vector<T*>& list, const T* record)
{
    list.erase(std::remove(list.begin(), list.end(), record), list.end());
}

} // namespace

Library::Library(Store& store, QObject* parent)
    : QObject(parent)
    , m_store(store)
{
}

ObjectContext& Library::context()
{
    return m_store.context();
}

void Library::load()
{
    loadProjects();
    loadItems();
    loadRules();
}

void Library::loadProjects()
{
    m_projects = context().projects();
    ProjectOrder::sortForReading(m_projects);
}

void Library::loadItems()
{
    m_items = context().items();
    ItemOrder::sortShared(m_items);
}

void Library::tellRead(bool ok)
{
    if (!ok && !m_readFailing)
        Q_EMIT readFailed(context().errorMessage());
    m_readFailing = !ok;
}

bool Library::holdsHistory() const
{
    return m_store.context().holdsHistory();
}

quint32 Library::historyVersion() const
{
    return m_store.context().historyVersion();
}

bool Library::historyLines(std::vector<HistoryOnDisk::Line>& out, HistoryOnDisk::Part part)
{
    const bool ok = m_store.history().lines(out, part);
    tellRead(ok);
    return ok;
}

void Library::scanHistory(const std::function<void(const Item&)>& visit, const Project* project)
{
    tellRead(m_store.history().scan(visit, project));
}

bool Library::scanHistoryTitles(
    const std::function<void(qint64 rowId, QByteArrayView title, const Project* project)>& visit)
{
    const bool ok = m_store.history().scanTitles(visit);
    tellRead(ok);
    return ok;
}

void Library::readHistory(const std::vector<qint64>& rowIds,
                          const std::function<void(const Item&)>& visit)
{
    // Nothing asked, nothing learnt of the disk: a run of failures goes on.
    if (!rowIds.empty())
        tellRead(m_store.history().read(rowIds, visit));
}

void Library::historySums(std::vector<HistoryOnDisk::Sums>& out)
{
    tellRead(m_store.history().sums(out));
}

void Library::historyByMonth(const std::vector<Date>& starts, std::vector<int>& months)
{
    tellRead(m_store.history().countByMonth(starts, months));
}

Item* Library::bringIn(qint64 rowId)
{
    const bool listed = std::any_of(m_items.begin(), m_items.end(),
                                    [rowId](const Item* item) { return item->rowId() == rowId; });
    Item* item = m_store.history().bringIn(rowId);
    if (!item) {
        tellRead(context().errorCode() == 0);
        return nullptr;
    }
    if (!listed) {
        // Told as read, before anyone changes it: what counted it on disk counts it out.
        Q_EMIT broughtIn(*item);
        addItem(item);
    }
    return item;
}

void Library::loadRules()
{
    m_rules = context().rules();
}

Item* Library::newItem()
{
    return context().insertItem();
}

Item* Library::newTask(const QString& title)
{
    Item* item = newItem();
    item->setUniqueId(placeholderId());
    item->setTitle(LocalizedText::capitalizeFirst(title));
    return item;
}

Project* Library::newProject()
{
    return context().insertProject();
}

Rule* Library::newRule()
{
    return context().insertRule();
}

QString Library::dataFolder() const
{
    return m_store.folder();
}

void Library::addItem(Item* item)
{
    if (!contains(m_items, item))
        m_items.push_back(item);
    sortItemsSoon();
}

void Library::sortItemsSoon()
{
    // A batch adds many items (a launch makes an occurrence of every rule): it sorts once, at its
    // end, rather than the whole list for each of them.
    if (m_batchDepth > 0)
        m_sortPending = true;
    else
        ItemOrder::sortShared(m_items);
}

void Library::addUserTask(Item* item, Project* project)
{
    addItem(item);
    if (project) {
        item->setToProject(project);
        announceProjectContent(project);
    }
    save();
    announceItemChanged(item);
}

void Library::removeItem(Item* item)
{
    if (!contains(m_items, item))
        return;
    erase(m_items, item);
    Q_EMIT itemRemoved(item);
}

void Library::deleteItem(Item* item)
{
    removeItem(item);
    context().deleteObject(item);
}

void Library::resortItems()
{
    ItemOrder::sortShared(m_items);
}

void Library::addProject(Project* project)
{
    if (!contains(m_projects, project))
        m_projects.push_back(project);
    ProjectOrder::sortForReading(m_projects);
    later([this] { Q_EMIT projectsChanged(); });
}

void Library::removeProject(Project* project)
{
    erase(m_projects, project);
    if (project) {
        for (Item* item : std::vector<Item*>(project->toReminders()))
            removeItem(item);
        Q_EMIT projectRemoved(project);
    }
    later([this] { Q_EMIT projectsChanged(); });
}

Project* Library::projectNamed(const QString& name) const
{
    for (Project* project : m_projects) {
        if (project->name() && LocalizedText::matchesCD(*project->name(), name))
            return project;
    }
    return nullptr;
}

void Library::deleteProject(Project* project)
{
    if (!project)
        return;
    context().deleteHistoryOf(*project);
    const std::vector<Item*> items = project->toReminders();
    removeProject(project);
    for (Item* item : items)
        context().deleteObject(item);
    context().deleteObject(project);
}

void Library::deleteRule(Rule* rule)
{
    removeRule(rule);
    context().deleteObject(rule);
}

void Library::addRule(Rule* rule)
{
    if (!contains(m_rules, rule))
        m_rules.push_back(rule);
}

void Library::removeRule(Rule* rule)
{
    erase(m_rules, rule);
}

bool Library::saveQuietly()
{
    ObjectContext& ctx = context();
    return !ctx.hasChanges() || ctx.save();
}

QString Library::saveError() const
{
    const ObjectContext& context = m_store.context();
    return Db::inWords(context.errorCode(), context.errorMessage());
}

bool Library::save()
{
    if (saveQuietly()) {
        m_saveFailing = false;
        return true;
    }
    // Told once, not at every save that fails for the same reason; and told after the current
    // work, so that a save of the launch, before any window listens, is heard as well.
    if (!m_saveFailing) {
        later([this, words = saveError()] {
            Q_EMIT saveFailed(tr("Your changes could not be saved: %1. Lullet keeps them and "
                                 "saves them with your next change.")
                                  .arg(words));
        });
    }
    m_saveFailing = true;
    return false;
}

void Library::announceItemChanged(Item* item)
{
    if (m_batchDepth > 0) {
        m_batchChanged = true;
        return;
    }
    Q_EMIT itemsChanged(item);
}

void Library::announceItemChangedLater(Item* item)
{
    if (m_batchDepth > 0) {
        m_batchChanged = true;
        return;
    }
    later([this, item] {
        // The item may have been deleted meanwhile; its memory stays valid.
        Q_EMIT itemsChanged(item && item->hasContext() ? item : nullptr);
    });
}

void Library::announcePostponed(Item* item)
{
    Q_EMIT itemPostponed(item);
}

void Library::announceProjectContent(Project* project)
{
    if (project)
        Q_EMIT projectContentChanged(project);
}

void Library::announceRulesChanged()
{
    Q_EMIT rulesChanged();
}

void Library::announceRulesChangedLater()
{
    later([this] { Q_EMIT rulesChanged(); });
}

void Library::announceReloaded()
{
    Q_EMIT projectsChanged();
    Q_EMIT itemsChanged(nullptr);
    Q_EMIT rulesChanged();
}

void Library::later(std::function<void()> emitter)
{
    QMetaObject::invokeMethod(this, std::move(emitter), Qt::QueuedConnection);
}

Library::Batch::Batch(Library& library)
    : m_library(library)
{
    ++m_library.m_batchDepth;
}

Library::Batch::~Batch()
{
    if (--m_library.m_batchDepth > 0)
        return;
    if (m_library.m_sortPending) {
        m_library.m_sortPending = false;
        ItemOrder::sortShared(m_library.m_items);
    }
    if (!m_library.m_batchChanged)
        return;
    m_library.m_batchChanged = false;
    m_library.later([library = &m_library] { Q_EMIT library->itemsChanged(nullptr); });
}

} // namespace lullet
