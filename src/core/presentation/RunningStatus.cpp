#include "core/presentation/RunningStatus.h"

#include "core/activity/RunningItem.h"
#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/presentation/RowTexts.h"
#include "core/scheduling/CatalogueEntries.h"

#include <algorithm>

namespace lullet {

QString RunningStatus::clockText(const Item& item)
{
    QString time = RowTexts::getStringFromSeconds(item.elapsedTime().value_or(0));
    if (const int limit = item.timeLimit().value_or(0); limit > 0)
        time = tr("%1 / %2").arg(time, RowTexts::getStringFromSeconds(limit));
    return tr("%1  %2").arg(CatalogueEntries::shown(item.title().value_or(QString())), time);
}

std::optional<double> RunningStatus::progress(const RunningItem& running, const Clock& clock)
{
    const Item* item = running.item();
    if (!item)
        return std::nullopt;
    const double elapsed = std::max(0, item->elapsedTime().value_or(0));
    if (const int limit = item->timeLimit().value_or(0); limit > 0)
        return std::min(1.0, elapsed / limit);
    const double period = std::max(1, running.promptPeriod()) * 60.0;
    const double sincePrompt =
        running.lastPromptAt()
            ? clock.now().timeIntervalSince1970() - running.lastPromptAt()->timeIntervalSince1970()
            : elapsed;
    return std::clamp(sincePrompt / period, 0.0, 1.0);
}

const Item* RunningStatus::nextDue(const Library& library, const Clock& clock)
{
    const Date now = clock.now();
    // The shared order puts open items first, by date: the first one ahead of now is the next,
    // and the walk ends at the finished ones.
    for (const Item* item : library.items()) {
        if (item->isFinished())
            break;
        if (item->isStarted() || item->isToDo())
            continue;
        const std::optional<Date> due = item->effectiveDate();
        if (due && *due >= now)
            return item;
    }
    return nullptr;
}

QString RunningStatus::toolTip(const Library& library, const RunningItem& running,
                               const Clock& clock)
{
    if (const Item* item = running.item()) {
        const int minutes = item->elapsedTime().value_or(0) / 60;
        const int limit = item->timeLimit().value_or(0) / 60;
        const QString title = CatalogueEntries::shown(item->title().value_or(QString()));
        if (limit > 0)
            return tr("%1: %2 of %3 min").arg(title).arg(minutes).arg(limit);
        return tr("%1: %2 min").arg(title).arg(minutes);
    }
    const Item* next = nextDue(library, clock);
    if (!next)
        return tr("Lullet");
    const Date due = *next->effectiveDate();
    const QString title = CatalogueEntries::shown(next->title().value_or(QString()));
    const QString time = due.toString(DateStyle::None, DateStyle::Short);
    if (due.isToday(clock))
        return tr("Next: %1 at %2").arg(title, time);
    return tr("Next: %1 on %2 at %3")
        .arg(title, due.toString(DateStyle::Medium, DateStyle::None), time);
}

} // namespace lullet
