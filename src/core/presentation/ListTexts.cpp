#include "core/presentation/ListTexts.h"

#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/presentation/ListBuilder.h"
#include "core/presentation/ListLines.h"
#include "core/presentation/RowTexts.h"
#include "core/presentation/Segment.h"

#include <QHash>

#include <algorithm>

namespace lullet {

ListTexts::ListTexts(const ListLines& lines, Library& library, const Clock& clock,
                     RowTexts::ProjectName naming)
    : m_lines(lines)
    , m_library(library)
    , m_clock(clock)
    , m_naming(naming)
{
}

const ListRow& ListTexts::row(std::size_t index)
{
    const std::size_t number = index / pageSize;
    auto page = m_pages.find(number);
    if (page == m_pages.end()) {
        page = m_pages.emplace(number, makePage(number)).first;
        m_recent.push_front(number);
        if (m_recent.size() > pagesKept) {
            m_pages.erase(m_recent.back());
            m_recent.pop_back();
        }
    } else if (m_recent.front() != number) {
        m_recent.remove(number);
        m_recent.push_front(number);
    }
    return page->second[index - number * pageSize];
}

void ListTexts::forgetAll()
{
    m_pages.clear();
    m_recent.clear();
}

std::vector<std::size_t> ListTexts::refresh()
{
    std::vector<std::size_t> changed;
    for (auto& [number, rows] : m_pages) {
        std::vector<ListRow> fresh = makePage(number);
        for (std::size_t i = 0; i < fresh.size(); ++i) {
            if (i >= rows.size() || !(fresh[i] == rows[i]))
                changed.push_back(number * pageSize + i);
        }
        rows = std::move(fresh);
    }
    return changed;
}

void ListTexts::forget(std::size_t index)
{
    const std::size_t number = index / pageSize;
    if (m_pages.erase(number) > 0)
        m_recent.remove(number);
}

ListRow ListTexts::heading(std::size_t index) const
{
    const ListLines::Line& line = m_lines.at(index);
    ListRow row;
    row.type = ListRow::DayHeading;
    const std::optional<Date> day = line.date();
    row.title = day ? ListBuilder::dayHeading(*day) : Segments::text(Segment::Anytime);
    row.countOnDay = line.count();
    if (m_lines.headingsCounted()) {
        row.timeUsedInSeconds = line.used();
        row.timeUsed = RowTexts::getStringFromSeconds(line.used());
    }
    return row;
}

std::vector<ListRow> ListTexts::makePage(std::size_t number)
{
    const std::size_t first = number * pageSize;
    const std::size_t end = std::min(first + pageSize, m_lines.size());
    std::vector<ListRow> rows(end - first);
    // The history's rows of the page, read in one go.
    QHash<qint64, std::size_t> onDisk;
    std::vector<qint64> rowIds;
    for (std::size_t i = first; i < end; ++i) {
        const ListLines::Line& line = m_lines.at(i);
        if (line.isHeading())
            rows[i - first] = heading(i);
        else if (Item* item = line.item())
            rows[i - first] = RowTexts::makeRow(item, m_clock, m_naming);
        else {
            onDisk.insert(line.rowId(), i - first);
            rowIds.push_back(line.rowId());
        }
    }
    m_library.readHistory(rowIds, [&](const Item& scratch) {
        // The scratch record lives for the read only: the row holds its texts alone.
        rows[onDisk.value(scratch.rowId())] = RowTexts::textsOf(scratch, m_clock, m_naming);
    });
    return rows;
}

std::vector<ListRow> ListTexts::allRows()
{
    std::vector<ListRow> rows;
    rows.reserve(m_lines.size());
    for (std::size_t number = 0; number * pageSize < m_lines.size(); ++number) {
        std::vector<ListRow> page = makePage(number);
        std::move(page.begin(), page.end(), std::back_inserter(rows));
    }
    return rows;
}

} // namespace lullet
