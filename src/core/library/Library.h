#pragma once

#include "core/model/Item.h"
#include "core/model/Project.h"
#include "core/model/Rule.h"
#include "core/store/HistoryOnDisk.h"

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

    // The items in memory: every open one and the recent history. The older history stays on
    // disk (see HistoryOnDisk), read below by lines, sums and pages, never kept whole.
    const std::vector<Item*>& items() const { return m_items; }
    const std::vector<Project*>& projects() const { return m_projects; }
    const std::vector<Rule*>& rules() const { return m_rules; }

    // The history on disk, all of it or one project's. A read error is told by readFailed(), and
    // what was read is passed on.
    bool historyLines(std::vector<HistoryOnDisk::Line>& out, HistoryOnDisk::Part part = {});
    void scanHistory(const std::function<void(const Item&)>& visit,
                     const Project* project = nullptr);
    bool scanHistoryTitles(const std::function<void(qint64 rowId, QByteArrayView title,
                                                    const Project* project)>& visit);
    void readHistory(const std::vector<qint64>& rowIds,
                     const std::function<void(const Item&)>& visit);
    void historySums(std::vector<HistoryOnDisk::Sums>& out);
    void historyByMonth(const std::vector<Date>& starts, std::vector<int>& months);
    // The item of that row of the history, read into memory and listed, to be acted on; none
    // when it has gone.
    Item* bringIn(qint64 rowId);
    // Whether some history stays on disk, and a number that changes whenever it does as a whole.
    bool holdsHistory() const;
    quint32 historyVersion() const;

    // The folder of the store, where the program keeps its files.
    QString dataFolder() const;

    // New records in the context; they join the lists through add...().
    Item* newItem();
    // A task of no rule ("<to make>"), its title capitalised; not listed yet.
    Item* newTask(const QString& title);
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
    // Takes the project out and deletes it and every item of it, those on disk too.
    void deleteProject(Project* project);
    // The project of that name, compared ignoring case and diacritics, or none.
    Project* projectNamed(const QString& name) const;

    void addRule(Rule* rule);
    void removeRule(Rule* rule);
    // Takes the rule out and deletes its record.
    void deleteRule(Rule* rule);

    // Writes every change. The first of a run of failures is told by saveFailed(), in the user's
    // words, after the current work; the changes stay for the next save.
    bool save();
    // The same, with a failure left to the caller to tell (quitting asks what to do).
    bool saveQuietly();
    // Why the last save failed, in the user's words.
    QString saveError() const;

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
    // An item of the history came into memory, as it was on disk.
    void broughtIn(const lullet::Item& item);

private:
    void later(std::function<void()> emitter);
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
