#pragma once

#include <QString>
#include <QStringList>

namespace lullet {

class AppDelegate;
class Project;
class ReminderInfo;

// What the rows of every list do: start, stop (which is finishing), finish, delete, move and
// duplicate to a project.
class ListActions {
public:
    enum class StartResult { Started, ToDoDone, AnotherIsRunning };

    static QString alreadyRunningMessage() { return QStringLiteral("A task is already running."); }
    static QString alreadyRunningInformation()
    {
        return QStringLiteral(
            "Another Task is already running. \nDo you want to complete that, and start this?");
    }
    static QString cannotPostponeTitle() { return QStringLiteral("Cannot postpone now"); }
    static QString cannotPostponeText()
    {
        return QStringLiteral("Cannot postpone now as this Lullet is running");
    }

    // The row's start button switched on. A to-do is done at once and makes its next
    // occurrence; with another item running nothing starts and the caller asks the user.
    static StartResult start(AppDelegate& app, ReminderInfo& item);
    // The answer "Start" to that question: the running item is finished first.
    static void confirmStart(AppDelegate& app, ReminderInfo& item);
    // The start button switched off, or finish: stopping is finishing. May ask at once what the
    // user is doing now.
    static void finish(AppDelegate& app, ReminderInfo& item);
    // Deletes without asking.
    static void deleteItem(AppDelegate& app, ReminderInfo& item);
    // The names of every project but the item's own, in name order.
    static QStringList getProjectsName(AppDelegate& app, const Project* excepting);
    // To the project of that name, or to none.
    static void moveToProject(AppDelegate& app, ReminderInfo& item, const QString& projectName,
                              bool noProject);
    // A copy without a date (an anytime item) in the project of that name, or in none.
    static ReminderInfo* duplicateToProject(AppDelegate& app, const ReminderInfo& item,
                                            const QString& projectName, bool noProject);

private:
    static void run(AppDelegate& app, ReminderInfo& item);
};

} // namespace lullet
