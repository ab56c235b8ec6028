#pragma once

#include "core/presentation/ListRow.h"
#include "core/presentation/RowTexts.h"

#include <cstddef>
#include <list>
#include <map>
#include <vector>

namespace lullet {

class Clock;
class Library;
class ListLines;

// The texts of a list's rows, made for the rows asked for, the rows on screen, a page at a time;
// the texts of the history's rows come from scratch records read for that page. A few pages are
// kept and the rest forgotten, so a list of the whole history costs the same as a short one.
class ListTexts {
public:
    ListTexts(const ListLines& lines, Library& library, const Clock& clock,
              RowTexts::ProjectName naming);

    const ListRow& row(std::size_t index);
    // Every text is out of date (the minute passed, the lines were built again), or one row's.
    void forgetAll();
    void forget(std::size_t index);
    // The minute passed: the rows kept are made again, and the indexes of those whose texts
    // changed are answered; the others are made afresh when next read.
    std::vector<std::size_t> refresh();
    // Every row with its texts, in order, for a report; made page by page and kept by the caller.
    std::vector<ListRow> allRows();

private:
    static constexpr std::size_t pageSize = 128;
    static constexpr std::size_t pagesKept = 8;

    std::vector<ListRow> makePage(std::size_t number);
    ListRow heading(std::size_t index) const;

    const ListLines& m_lines;
    Library& m_library;
    const Clock& m_clock;
    RowTexts::ProjectName m_naming;
    std::map<std::size_t, std::vector<ListRow>> m_pages;
    // The pages kept, the most recently read first.
    std::list<std::size_t> m_recent;
};

} // namespace lullet
