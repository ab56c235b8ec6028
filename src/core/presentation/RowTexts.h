#pragma once

#include "core/dates/Date.h"
#include "core/presentation/ListRow.h"

#include <QCoreApplication>

namespace lullet {

class Clock;
class Item;

// The texts of a list row, from its item as it stands.
class RowTexts {
    Q_DECLARE_TR_FUNCTIONS(RowTexts)

public:
    // How a row names its item's project: not at all (a project's own list, the tray's);
    // "Lullet  |  <project>" or "Lullet" in the main window's lists; in a report the project's
    // name or "Not in Project", with "Lullet" for a break and "Lullet  |  " before its title.
    enum class ProjectName { None, InList, InReport };

    static void setValues(ListRow& row, const Clock& clock, ProjectName naming);
    static ListRow makeRow(Item* item, const Clock& clock, ProjectName naming);
    // The texts alone, of a record the row does not hold (one read for a moment from disk).
    static ListRow textsOf(const Item& item, const Clock& clock, ProjectName naming);

    // "hh:mm:ss", each part two digits.
    static QString getStringFromSeconds(int seconds);
    // "hh:mm" and an "m" behind, as planned lengths read.
    static QString hoursAndMinutes(int hours, int minutes);

private:
    // "In 2 days", "Overdue by 1 day", "Due from 1 hr 30 min", or nothing; sets `dueOrOverdue`.
    static QString lateness(const Item& item, Date due, const Clock& clock, bool& dueOrOverdue);
    static void setTimeUsed(ListRow& row, const Item& item);
    static void setTexts(ListRow& row, const Item& item, const Clock& clock, ProjectName naming);
    static void setProjectName(ListRow& row, const Item& item, ProjectName naming);
};

} // namespace lullet
