#include "lists/LulletListBuilder.h"

#include "core/app/AppDelegate.h"
#include "core/dates/Clock.h"
#include "scheduling/RepeatTypes.h"

#include <algorithm>

namespace lullet {

int LulletListBuilder::reminderWindowDays(const ReminderInfo& item)
{
    return remindBeforeDays(item.remindBefore().value_or(0));
}

LulletListBuilder::Today::Today(Date now)
    : start(now.dateAtStartOfDay())
    , end(now.dateByAddingDays(1).dateAtStartOfDay())
{
}

qint64 LulletListBuilder::Today::daysTo(Date d) const
{
    // Rounded, since a day across a change of the clocks is not 24 hours long.
    return qRound64((d.dateAtStartOfDay().timeIntervalSince1970() - start.timeIntervalSince1970()) /
                    86400.0);
}

bool LulletListBuilder::belongs(const ReminderInfo& item, const Scope& scope, AppDelegate& app)
{
    return belongs(item, scope, Today(app.clock().now()));
}

bool LulletListBuilder::belongs(const ReminderInfo& item, const Scope& scope, const Today& today)
{
    if (!item.hasContext())
        return false;
    if (scope.project && item.toProject() != scope.project)
        return false;
    const bool anytime = scope.segment == QStringLiteral("Anytime");
    if (anytime && item.dtReminder())
        return false;
    if (scope.showRunningOnly && !item.hasStarted().value_or(false))
        return false;
    const bool finished = item.hasFinished().value_or(false);
    if (anytime && finished)
        return false;
    const std::optional<Date> due = item.effectiveDate();
    if (!due)
        return anytime || scope.project;
    if (scope.segment == QStringLiteral("Today") && !scope.project) {
        if (finished)
            return today.contains(*due);
        // Overdue items (a negative count) and those within the window stay.
        return today.daysTo(*due) <= reminderWindowDays(item);
    }
    return true;
}

void LulletListBuilder::getSortedArray(std::vector<ReminderInfo*>& items)
{
    std::stable_sort(items.begin(), items.end(), [](const ReminderInfo* a, const ReminderInfo* b) {
        const bool aDone = a->hasFinished().value_or(false);
        const bool bDone = b->hasFinished().value_or(false);
        if (aDone != bDone)
            return !aDone;
        const std::optional<Date> da = a->effectiveDate();
        const std::optional<Date> db = b->effectiveDate();
        if (!da || !db)
            return da.has_value() && !db.has_value();
        return *da < *db;
    });
}

std::vector<ReminderInfo*> LulletListBuilder::prepareLulletListArray(const Scope& scope,
                                                                     AppDelegate& app)
{
    const Today today(app.clock().now());
    std::vector<ReminderInfo*> items;
    for (ReminderInfo* item : app.getAllLulletLists()) {
        if (belongs(*item, scope, today))
            items.push_back(item);
    }
    getSortedArray(items);
    return items;
}

} // namespace lullet
