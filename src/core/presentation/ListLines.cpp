#include "core/presentation/ListLines.h"

#include "core/dates/Clock.h"
#include "core/library/ItemOrder.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/presentation/HistoryTotals.h"

#include <algorithm>
#include <map>

namespace lullet {

namespace {

ListLines::Line lineOf(Item* item)
{
    return ListLines::Line::ofItem(item, item->effectiveDate(),
                                   item->isFinished() ? std::max(0, item->elapsedTime().value_or(0))
                                                      : 0);
}

} // namespace

ListLines::Line ListLines::Line::ofItem(Item* item, std::optional<Date> date, qint32 used)
{
    Line line;
    line.m_held.item = item;
    if (date)
        line.m_date = *date;
    line.m_used = used;
    return line;
}

ListLines::Line ListLines::Line::onDisk(qint64 rowId, Date date, qint32 used)
{
    Line line;
    line.m_held.rowId = rowId;
    line.m_onDisk = 1;
    line.m_date = date;
    line.m_used = used;
    return line;
}

ListLines::Line ListLines::Line::headingOf(std::optional<Date> day)
{
    Line line;
    line.m_heading = 1;
    if (day)
        line.m_date = *day;
    return line;
}

qint64 ListLines::Line::rowId() const
{
    if (m_onDisk)
        return m_held.rowId;
    return m_held.item ? m_held.item->rowId() : 0;
}

bool ListLines::Line::isFinished() const
{
    const Item* held = item();
    return !held || held->isFinished();
}

ListLines::ListLines(const Clock& clock, Library& library, HistoryTotals& history,
                     const RunningItem& running)
    : m_clock(clock)
    , m_library(library)
    , m_history(history)
    , m_running(running)
{
}

void ListLines::build(const ListBuilder::Scope& scope)
{
    m_scope = scope;
    m_lines.clear();
    m_counted = false;
    m_onDisk = OnDisk::None;
    if (scope.isCustomListing())
        buildCustomListing(scope.segment);
    else if (scope.project)
        buildProject(scope);
    else
        buildFlat(scope);
}

void ListLines::clear()
{
    std::vector<Line>().swap(m_lines);
    m_onDisk = OnDisk::None;
}

void ListLines::buildFlat(const ListBuilder::Scope& scope)
{
    // "Today" and "Anytime" list open and recent items, which are all in memory.
    for (Item* item : ListBuilder::itemsFor(scope, m_library, m_clock.now()))
        m_lines.push_back(lineOf(item));
}

std::vector<ListLines::Entry> ListLines::historyEntries(HistoryOnDisk::Part part)
{
    std::vector<HistoryOnDisk::Line> onDisk;
    m_library.historyLines(onDisk, part);
    std::vector<Entry> entries;
    entries.reserve(onDisk.size());
    for (const HistoryOnDisk::Line& line : onDisk)
        entries.push_back(Line::onDisk(line.rowId, line.date, line.used));
    return entries;
}

// A project's list shows its whole content by day, the earlier first, open before finished on
// the same moment, and its undated items last.
void ListLines::buildProject(const ListBuilder::Scope& scope)
{
    std::vector<Entry> dated;
    std::vector<Entry> undated;
    for (Item* item : ListBuilder::itemsFor(scope, m_library, m_clock.now()))
        (item->effectiveDate() ? dated : undated).push_back(lineOf(item));
    // History is neither started nor undated.
    if (!scope.showRunningOnly) {
        m_onDisk = OnDisk::Project;
        for (Entry& entry : historyEntries({scope.project, false}))
            dated.push_back(entry);
    }
    groupByDayAscending(std::move(dated), undated);
}

void ListLines::buildGrouped(Project* project)
{
    if (project) {
        build({Segment::Project, project, false});
        return;
    }
    m_scope = {};
    m_lines.clear();
    m_counted = false;
    m_onDisk = OnDisk::NoProject;
    std::vector<Item*> loose;
    for (Item* item : m_library.items()) {
        if (!item->toProject())
            loose.push_back(item);
    }
    ItemOrder::sortForList(loose);
    std::vector<Entry> dated;
    std::vector<Entry> undated;
    for (Item* item : loose)
        (item->effectiveDate() ? dated : undated).push_back(lineOf(item));
    for (Entry& entry : historyEntries({nullptr, true}))
        dated.push_back(entry);
    groupByDayAscending(std::move(dated), undated);
}

void ListLines::groupByDayAscending(std::vector<Entry> dated, const std::vector<Entry>& undated)
{
    std::stable_sort(dated.begin(), dated.end(), [](const Entry& a, const Entry& b) {
        const Date aDate = *a.date();
        const Date bDate = *b.date();
        if (aDate != bDate)
            return aDate < bDate;
        return !a.isFinished() && b.isFinished();
    });
    groupByDay(dated, undated);
}

// "Upcoming": unfinished items dated after now, the nearest day first. "Completed": finished
// dated items, the history on disk among them, the newest day first. Within a day the later
// first; a heading carries its day's count and time used.
void ListLines::buildCustomListing(Segment segment)
{
    const bool upcoming = segment == Segment::Upcoming;
    const Date now = m_clock.now();
    std::vector<Entry> entries;
    for (Item* item : m_library.items()) {
        const std::optional<Date> due = item->effectiveDate();
        if (!due || item->isFinished() == upcoming || (upcoming && !(*due > now)))
            continue;
        entries.push_back(lineOf(item));
    }
    if (!upcoming) {
        m_onDisk = OnDisk::All;
        for (Entry& entry : historyEntries({}))
            entries.push_back(entry);
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry& a, const Entry& b) { return b.isEarlierThan(a); });
    m_counted = true;
    if (!upcoming) {
        groupByDay(entries, {});
        return;
    }
    // The days in the other order, each day's items as they stand.
    std::vector<std::vector<Entry>> days;
    std::optional<Date> day;
    for (const Entry& entry : entries) {
        const Date start = entry.date()->dateAtStartOfDay();
        if (!day || *day != start)
            days.emplace_back();
        day = start;
        days.back().push_back(entry);
    }
    std::vector<Entry> reordered;
    reordered.reserve(entries.size());
    for (auto it = days.rbegin(); it != days.rend(); ++it)
        reordered.insert(reordered.end(), it->begin(), it->end());
    groupByDay(reordered, {});
}

void ListLines::groupByDay(const std::vector<Entry>& dated, const std::vector<Entry>& undated)
{
    m_lines.reserve(dated.size() + undated.size() + 64);
    std::size_t heading = 0;
    std::optional<Date> day;
    for (const Entry& entry : dated) {
        const Date start = entry.date()->dateAtStartOfDay();
        if (!day || *day != start) {
            day = start;
            heading = m_lines.size();
            m_lines.push_back(Line::headingOf(start));
        }
        m_lines.push_back(entry);
        if (m_counted)
            m_lines[heading].addItem(entry);
    }
    if (undated.empty())
        return;
    m_lines.push_back(Line::headingOf(std::nullopt));
    m_lines.insert(m_lines.end(), undated.begin(), undated.end());
}

int ListLines::indexOf(const Item* item) const
{
    if (!item)
        return -1;
    const qint64 rowId = item->rowId();
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const Line& line = m_lines[i];
        if (line.isHeading())
            continue;
        const Item* held = line.item();
        if (held == item || (rowId && !held && line.rowId() == rowId))
            return int(i);
    }
    return -1;
}

int ListLines::indexOf(const Line& line) const
{
    if (line.isHeading())
        return -1;
    if (line.item())
        return indexOf(line.item());
    const qint64 rowId = line.rowId();
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        if (!m_lines[i].isHeading() && m_lines[i].rowId() == rowId)
            return int(i);
    }
    return -1;
}

Item* ListLines::itemAt(std::size_t index)
{
    if (index >= m_lines.size() || m_lines[index].isHeading())
        return nullptr;
    Line& line = m_lines[index];
    if (!line.item()) {
        if (Item* item = m_library.bringIn(line.rowId()))
            line.setItem(item);
    }
    return line.item();
}

TaskStats ListLines::stats() const
{
    TaskStats::Tally tally(m_clock, m_running);
    for (const Line& line : m_lines) {
        if (const Item* item = line.item())
            tally.add(*item);
    }
    // The lines on disk are counted by the history's sums, which leave out what came into
    // memory.
    if (m_onDisk == OnDisk::All)
        tally.add(m_history.allSums());
    else if (m_onDisk == OnDisk::Project)
        tally.add(m_history.sumsOf(*m_scope.project));
    else if (m_onDisk == OnDisk::NoProject)
        tally.add(m_history.sumsInNoProject());
    return tally.stats();
}

std::vector<std::pair<Date, int>> ListLines::usedByDay() const
{
    std::map<double, int> days;
    for (const Line& line : m_lines) {
        const std::optional<Date> date = line.date();
        if (!line.isHeading() && date)
            days[date->dateAtStartOfDay().timeIntervalSince1970()] += line.used();
    }
    std::vector<std::pair<Date, int>> ordered;
    ordered.reserve(days.size());
    for (const auto& [day, used] : days)
        ordered.emplace_back(Date(day), used);
    return ordered;
}

} // namespace lullet
