#pragma once

#include "core/presentation/TaskStats.h"

#include <QHash>

#include <optional>

namespace lullet {

class Clock;
class Library;
class Project;
class RunningItem;

// What the history still on disk adds to the counts: how many finished items, and per project
// how many items and their sums. It is read once and again only when the history on disk
// changes; its items are finished and long past, so their sums do not move with the clock.
class HistoryTotals {
public:
    // Brings the totals up to date with the history on disk.
    void update(Library& library, const Clock& clock, const RunningItem& running);

    int finishedCount() const { return m_finished; }
    int countIn(const Project& project) const { return sumsOf(project).totalCount; }
    // The project's sums, to add to a tally of the items in memory.
    TaskStats sumsOf(const Project& project) const;

private:
    std::optional<quint32> m_version;
    int m_finished = 0;
    QHash<const Project*, TaskStats> m_projects;
};

} // namespace lullet
