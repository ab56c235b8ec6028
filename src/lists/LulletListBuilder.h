#pragma once

#include "lists/LulletRow.h"

#include <QString>

#include <vector>

namespace lullet {

class AppDelegate;
class Project;
class ReminderInfo;

// Which items "Today", "Anytime" and a project's list show, and in which order.
class LulletListBuilder {
public:
    struct Scope {
        QString segment = QStringLiteral("Today");
        Project* project = nullptr;
        bool showRunningOnly = false;
    };

    // The days ahead within which an item already shows in "Today".
    static int reminderWindowDays(const ReminderInfo& item);
    // Whether the item belongs in the list of the scope.
    static bool belongs(const ReminderInfo& item, const Scope& scope, AppDelegate& app);
    // Unfinished before finished; within each, the earlier date first.
    static void getSortedArray(std::vector<ReminderInfo*>& items);
    // The items of the scope, in order.
    static std::vector<ReminderInfo*> prepareLulletListArray(const Scope& scope, AppDelegate& app);
};

} // namespace lullet
