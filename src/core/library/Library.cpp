#include "core/library/Library.h"

#include "core/library/ItemOrder.h"
#include "core/store/ObjectContext.h"
#include "core/store/Store.h"
#include "core/text/LocalizedText.h"
#include "core/text/PatternMatcher.h"

#include <algorithm>

namespace lullet {

namespace {

void sortProjects(std::vector<Project*>& projects)
{
    std::stable_sort(projects.begin(), projects.end(), [](const Project* a, const Project* b) {
        return LocalizedText::compare(a->name().value_or(QString()),
                                      b->name().value_or(QString())) < 0;
    });
}

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
    sortProjects(m_projects);
}

void Library::loadItems()
{
    m_items = context().items();
    ItemOrder::sortShared(m_items);
}

const std::vector<Item*>& Library::allItems()
{
    loadHistory();
    return m_items;
}

void Library::loadHistory()
{
    readHistoryIn(nullptr);
}

void Library::loadHistory(const Project& project)
{
    readHistoryIn(&project);
}

void Library::loadHistoryItems(const std::vector<qint64>& rowIds)
{
    std::vector<Item*> loaded;
    const bool ok = context().loadHistoryItems(rowIds, loaded);
    listRead(loaded, ok);
}

void Library::readHistoryIn(const Project* project)
{
    std::vector<Item*> loaded;
    const bool ok = context().loadHistory(loaded, project);
    listRead(loaded, ok);
}

void Library::listRead(const std::vector<Item*>& loaded, bool ok)
{
    if (!loaded.empty()) {
        m_items.insert(m_items.end(), loaded.begin(), loaded.end());
        sortItemsSoon();
    }
    tellRead(ok);
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

void Library::scanHistory(const std::function<void(const Item&)>& visit)
{
    tellRead(context().scanHistory(visit));
}

void Library::loadRules()
{
    m_rules = context().rules();
}

Item* Library::newItem()
{
    return context().insertItem();
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
    sortProjects(m_projects);
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

void Library::addRule(Rule* rule)
{
    if (!contains(m_rules, rule))
        m_rules.push_back(rule);
}

void Library::removeRule(Rule* rule)
{
    erase(m_rules, rule);
}

bool Library::save()
{
    ObjectContext& ctx = context();
    if (!ctx.hasChanges() || ctx.save()) {
        m_saveFailing = false;
        return true;
    }
    // Told once, not at every save that fails for the same reason.
    if (!m_saveFailing)
        Q_EMIT saveFailed(ctx.errorMessage());
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
