#pragma once

#include "core/dates/Date.h"

#include <QByteArrayView>

#include <functional>
#include <vector>

namespace lullet {

class Db;
class Item;
class ObjectContext;
class Project;
class Stmt;

// Which of the history on disk: all of it, one project's, or that of no project.
struct HistoryPart {
    const Project* project = nullptr;
    bool withoutProject = false;
};

// The history that stays on disk: items finished, not started and dated before the bound the
// store was opened with, for which no record is in memory. A store of years holds tens of
// thousands of them, and no list keeps them in memory: they are read as small lines, as sums, or
// a page of scratch records for the rows on screen. One comes into memory only to be acted on.
// Every read answers false on a read error, which the context's errorMessage() tells.
class HistoryOnDisk {
public:
    // The history's items: finished, not started, dated before ?2 (and no earlier than any
    // plausible date, ?1). It holds exactly for the rows the program reads as such; a value that
    // reads otherwise (text in a number column, a date out of range) keeps its item in memory.
    static constexpr const char* condition =
        "hasFinished = 1 AND coalesce(hasStarted, 0) = 0 AND "
        "coalesce(dtReminderPostponed, dtReminder) BETWEEN ?1 AND ?2";
    static void bindBounds(Stmt& stmt, Date before);

    HistoryOnDisk(ObjectContext& context, Db& db);

    // An item of the history as a list places it: its row, its effective date, its time used.
    struct Line {
        qint64 rowId = 0;
        Date date;
        qint32 used = 0;
    };
    using Part = HistoryPart;
    // Appends a line for each item of the part, in no order.
    bool lines(std::vector<Line>& out, Part part = {}) const;
    // What the history of each project, and of no project (row 0), adds to a list's totals:
    // every one of its items is finished, and those that are no to-do add their time.
    struct Sums {
        qint64 projectRowId = 0;
        int count = 0;
        // Of the items that are no to-do: seconds used, and seconds planned as a finished item
        // counts them (its limit, else its planned length, no more than it used).
        qint64 used = 0;
        qint64 planned = 0;
    };
    bool sums(std::vector<Sums>& out) const;
    // How many items count in each of the months that `starts` bound (the start of each, and
    // the end of the last): one in the month of its own date, and in that of its postponed date
    // where that is another.
    bool countByMonth(const std::vector<Date>& starts, std::vector<int>& months) const;
    // Calls `visit` for each item, or each of one project's, read into one scratch record that
    // lives only for the call and is linked to its project one way.
    bool scan(const std::function<void(const Item&)>& visit,
              const Project* project = nullptr) const;
    // Calls `visit` with each item's row, its title's UTF-8 bytes and its project.
    bool scanTitles(const std::function<void(qint64 rowId, QByteArrayView title,
                                             const Project* project)>& visit) const;
    // Scratch records of these rows, in no order.
    bool read(const std::vector<qint64>& rowIds,
              const std::function<void(const Item&)>& visit) const;
    // The record of that row, read into memory if it is not there yet; none when the row has gone.
    Item* bringIn(qint64 rowId);

private:
    // The rows of the items in memory, in a table of the connection's own, so that a query left
    // to SQLite can pass them over.
    bool noteItemsInMemory() const;
    // The history's rows as `select` gives them, with `project` bound when given; rows already
    // in memory are passed over.
    // `byTable`: a read of the rows' texts goes through the table in its order, which beats the
    // history's index and a look-up per row.
    bool query(const char* select, Part part, const std::function<void(const Stmt&)>& row,
               bool byTable = false) const;

    ObjectContext& m_context;
    Db& m_db;
};

} // namespace lullet
