#pragma once

#include "core/model/Item.h"
#include "core/model/Project.h"
#include "core/model/Rule.h"

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

namespace lullet {

class ObjectContext;
class Store;

// The records the program works with, over the one object context: every item (kept in the
// shared order), every project (by name) and every rule. Adding, removing and saving happen
// here, and so does telling the views what changed. A change is visible in the lists at once,
// before it is saved. Main thread only.
class Library final : public QObject {
    Q_OBJECT
public:
    explicit Library(Store& store, QObject* parent = nullptr);

    ObjectContext& context();

    // Reads every record of the store into the lists.
    void load();
    void loadProjects();
    void loadItems();
    void loadRules();

    // The items in memory: every open one and the recent history. Older history stays on disk
    // until loadHistory() or allItems().
    const std::vector<Item*>& items() const { return m_items; }
    // Every item, the whole history read in first.
    const std::vector<Item*>& allItems();
    const std::vector<Project*>& projects() const { return m_projects; }
    const std::vector<Rule*>& rules() const { return m_rules; }

    // Reads the history still on disk into the list: all of it, or one project's. A read error
    // is told by readFailed(), and the next call tries the rest again.
    void loadHistory();
    void loadHistory(const Project& project);
    // Reads these items of the history on disk into the list, and no other.
    void loadHistoryItems(const std::vector<qint64>& rowIds);
    // Whether some history is still on disk, and a number that changes whenever that does.
    bool holdsHistory() const;
    quint32 historyVersion() const;
    // Shows each item of the history on disk to `visit` without keeping it: for totals that
    // must count it before anyone lists it. A read error is told by readFailed().
    void scanHistory(const std::function<void(const Item&)>& visit);

    // The folder of the store, where the program keeps its files.
    QString dataFolder() const;

    // New records in the context; they join the lists through add...().
    Item* newItem();
    Project* newProject();
    Rule* newRule();

    // Lists the item once, in the shared order (inside a batch: from the batch's end on).
    void addItem(Item* item);
    // A task the user made: listed, put in the project (or none), saved and announced as added.
    void addUserTask(Item* item, Project* project);
    // Takes the item out of the list; its record stays in the store.
    void removeItem(Item* item);
    // Takes the item out and deletes its record.
    void deleteItem(Item* item);
    void resortItems();

    // Lists the project once, in name order.
    void addProject(Project* project);
    // Takes the project and its items out of the lists; the records stay.
    void removeProject(Project* project);
    // The project of that name, compared ignoring case and diacritics, or none.
    Project* projectNamed(const QString& name) const;

    void addRule(Rule* rule);
    void removeRule(Rule* rule);

    // Writes every change. The first of a run of failures is told by saveFailed(); the changes
    // stay for the next save.
    bool save();

    // Tells the views that items changed; `item` is the one added or edited, if there is one.
    // Inside a batch the news waits and is told once when the batch ends.
    void announceItemChanged(Item* item = nullptr);
    // The same, after the current work is done.
    void announceItemChangedLater(Item* item);
    void announcePostponed(Item* item);
    void announceProjectContent(Project* project);
    // The store was replaced and read again: every list is told.
    void announceReloaded();
    // Rules changed: now, or after the current work is done.
    void announceRulesChanged();
    void announceRulesChangedLater();

    // While a batch is open, item news is collected and told once, as one change of many items,
    // when the outermost batch closes. Many occurrences made at launch thus reload a list once.
    class Batch {
    public:
        explicit Batch(Library& library);
        ~Batch();
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

    private:
        Library& m_library;
    };

Q_SIGNALS:
    // Items were added or edited; `item` is the one concerned, or null when several were.
    void itemsChanged(lullet::Item* item);
    void itemPostponed(lullet::Item* item);
    // The item has left the list (deleted, or gone with its project).
    void itemRemoved(lullet::Item* item);
    // A project was added, renamed or removed.
    void projectsChanged();
    void projectRemoved(lullet::Project* project);
    // An item joined or left the project.
    void projectContentChanged(lullet::Project* project);
    void rulesChanged();
    void saveFailed(const QString& message);
    // The history on disk could not be read; told once for a run of failures.
    void readFailed(const QString& message);

private:
    void later(std::function<void()> emitter);
    // All of the history on disk, or the project's.
    void readHistoryIn(const Project* project);
    // Lists the items read from the history on disk.
    void listRead(const std::vector<Item*>& loaded, bool ok);
    // Now, or once at the end of the batch.
    void sortItemsSoon();
    void tellRead(bool ok);

    Store& m_store;
    std::vector<Item*> m_items;
    std::vector<Project*> m_projects;
    std::vector<Rule*> m_rules;
    int m_batchDepth = 0;
    bool m_saveFailing = false;
    bool m_readFailing = false;
    bool m_batchChanged = false;
    bool m_sortPending = false;
};

} // namespace lullet
