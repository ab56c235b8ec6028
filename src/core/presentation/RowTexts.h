#pragma once

#include "core/dates/Date.h"
#include "core/presentation/ListRow.h"

namespace lullet {

class Clock;
class Item;

// The texts of a list row, from its item as it stands.
class RowTexts {
public:
    // `withProjectName` for the main window's lists outside a project: "Lullet  |  <project>".
    static void setValues(ListRow& row, const Clock& clock, bool withProjectName);
    static ListRow makeRow(Item* item, const Clock& clock, bool withProjectName);

    // "hh:mm:ss", each part two digits.
    static QString getStringFromSeconds(int seconds);
    // "hh:mm" and an "m" behind, as planned lengths read.
    static QString hoursAndMinutes(int hours, int minutes);

private:
    // "In 2 days", "Overdue by 1 day", "Due from 1 hr 30 min", or nothing; sets `dueOrOverdue`.
    static QString lateness(const Item& item, Date due, const Clock& clock, bool& dueOrOverdue);
    static void setTimeUsed(ListRow& row, const Item& item);
};

} // namespace lullet
