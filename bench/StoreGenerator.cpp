#include "StoreGenerator.h"

#include "core/store/ObjectContext.h"

#include <QString>

#include <random>

namespace lullet::bench {

void generateStore(Store& store, Date now, int items, int rules, int projects)
{
    std::mt19937 rng(42);
    ObjectContext& ctx = store.context();
    std::vector<Project*> made;
    for (int i = 0; i < projects; ++i) {
        Project* p = ctx.insertProject();
        p->setName(QStringLiteral("Project %1").arg(i));
        p->setCreatedDate(now.dateBySubtractingDays(400 - i));
        made.push_back(p);
    }
    for (int i = 0; i < rules; ++i) {
        Rule* r = ctx.insertRule();
        const QString title = QStringLiteral("Rule %1").arg(i);
        r->setTitle(title);
        r->setUniqueId(title + QStringLiteral("_%1").arg(1'700'000'000 + i));
        r->setNotes(QStringLiteral("Notes of %1").arg(title));
        r->setDtReminder(now.dateBySubtractingDays(300));
        r->setRepeatInterval(1 + i % 5);
        r->setRepeatIntervalType(i % 6);
        r->setRepeatOption(0);
        r->setIsActive(i % 3 != 0);
        r->setIsCustom(i % 2 == 0);
        r->setIsToDoOrJob(i % 4 == 0);
        r->setShouldRemind(true);
    }
    // Two years of history up to now, nearly all of it done, and a few items planned ahead:
    // about one item in twenty is still open, as in a store that has been used for a while.
    std::uniform_int_distribution<int> pastMinutes(-2 * 365 * 24 * 60, -1);
    std::uniform_int_distribution<int> aheadMinutes(1, 30 * 24 * 60);
    for (int i = 0; i < items; ++i) {
        Item* r = ctx.insertItem();
        r->setTitle(QStringLiteral("Item %1").arg(i));
        r->setNotes(QStringLiteral("Some notes about item %1").arg(i));
        r->setUniqueId(
            i % 4 ? QStringLiteral("<to make>")
                  : QStringLiteral("Rule %1_%2").arg(i % rules).arg(1'700'000'000 + i % rules));
        const bool ahead = i % 100 == 0;
        const Date due = now.dateByAddingMinutes(ahead ? aheadMinutes(rng) : pastMinutes(rng));
        r->setDtReminder(due);
        r->setDurationHr(i % 2);
        r->setDurationMin((i * 7) % 60);
        r->setShouldRemind(i % 3 != 0);
        r->setRemindBefore(i % 4);
        r->setRepeatOption(i % 5 == 0 ? -5 : 0);
        r->setHasFinished(!ahead && i % 25 != 0);
        r->setHasStarted(false);
        r->setElapsedTime(ahead ? 0 : (i * 13) % 3600);
        r->setTimeLimit(3600);
        if (i % 3 == 0)
            r->setToProject(made[std::size_t(i % projects)]);
    }
    ctx.save();
}

} // namespace lullet::bench
