#pragma once

#include "core/presentation/TaskStats.h"

#include <QHash>
#include <QObject>

#include <array>
#include <optional>

namespace lullet {

class Clock;
class Item;
class Library;
class Project;
class RunningItem;

// What the history on disk adds to the counts, without reading it into memory: how many items
// are finished, the sums of all of them, of each project's and of those in no project, and how
// many count in each month of this year. It is read in one pass with one scratch record, and
// again only when the history on disk changes as a whole or the year turns; an item brought into
// memory is counted out at once, as it was read. The history's items are finished and long past,
// so their sums do not move with the clock.
class HistoryTotals final : public QObject {
    Q_OBJECT
public:
    HistoryTotals(Library& library, const Clock& clock, const RunningItem& running,
                  QObject* parent = nullptr);

    int finishedCount() { return fresh().m_finished; }
    const TaskStats& allSums() { return fresh().m_all; }
    TaskStats sumsOf(const Project& project) { return fresh().m_projects.value(&project); }
    int countIn(const Project& project) { return sumsOf(project).totalCount; }
    const TaskStats& sumsInNoProject() { return fresh().m_noProject; }
    // January to December of this year.
    const std::array<int, 12>& months() { return fresh().m_months; }

private:
    // Brought up to date with the history on disk, and this year's months.
    HistoryTotals& fresh();
    void count(const Item& item, int sign);

    Library& m_library;
    const Clock& m_clock;
    const RunningItem& m_running;
    std::optional<quint32> m_version;
    int m_year = 0;
    int m_finished = 0;
    TaskStats m_all;
    TaskStats m_noProject;
    QHash<const Project*, TaskStats> m_projects;
    std::array<int, 12> m_months{};
};

} // namespace lullet
