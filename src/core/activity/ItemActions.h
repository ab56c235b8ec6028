#pragma once

#include <QCoreApplication>
#include <QString>

#include <vector>

namespace lullet {

class Catalogue;
class Item;
class Library;
class Project;
class RunningItem;

// What can be done to an item from anywhere it is listed: start, stop (which is finishing),
// finish, confirm a to-do, delete, move and duplicate to a project.
class ItemActions {
    Q_DECLARE_TR_FUNCTIONS(ItemActions)

public:
    ItemActions(Library& library, RunningItem& running, Catalogue& catalogue);

    static QString alreadyRunningMessage() { return tr("A task is already running."); }
    static QString alreadyRunningInformation()
    {
        return tr(
            "Another Task is already running. \nDo you want to complete that, and start this?");
    }
    static QString cannotPostponeTitle() { return tr("Cannot postpone now"); }
    static QString cannotPostponeText()
    {
        return tr("Cannot postpone now as this Lullet is running");
    }

    enum class StartResult { Started, ToDoDone, AnotherIsRunning };
    // A to-do is done at once and makes its next occurrence; with another item running nothing
    // starts and the caller asks the user.
    StartResult start(Item& item);
    // The answer "Start" to that question: the running item is finished first.
    void confirmStart(Item& item);
    // Stopping is finishing. Answers whether nothing runs now, when the idle question may follow.
    bool finish(Item& item);
    // A to-do confirmed: filed now, and its rule's next occurrence made from the date it was due
    // on, so a late answer doesn't shift the series.
    void completeToDo(Item& item);
    // Deletes without asking.
    void deleteItem(Item& item);

    // Every project but the item's own, in name order: the targets of move and duplicate.
    std::vector<Project*> otherProjects(const Item& item) const;
    // To the project, or to none.
    void moveToProject(Item& item, Project* target);
    // A copy without a date (an anytime item), in the project or in none.
    Item* duplicateToProject(const Item& item, Project* target);

private:
    Library& m_library;
    RunningItem& m_running;
    Catalogue& m_catalogue;
};

} // namespace lullet
