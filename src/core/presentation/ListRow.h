#pragma once

#include <QString>

namespace lullet {

class Item;

// One row of a list: the item it stands for and the texts shown for it, rebuilt from the item at
// every change of it (RowTexts::setValues). A row never keeps state of its own.
struct ListRow {
    enum Type { ItemRow = 0, DayHeading = 2 };

    Item* representedObject = nullptr;
    int type = ItemRow;
    QString title;
    bool isToDo = false;
    // "10:15 AM", "In 2 days at 10:15 AM", "Overdue by 1 day at ...", "Due from 1 hr 30 min at ..."
    QString time;
    bool dueOrOverdue = false;
    QString timeUsed;
    int timeUsedInSeconds = 0;
    QString duration;
    QString projectName;
    // Day headings of the grouped lists: how many rows the day holds.
    int countOnDay = 0;

    bool operator==(const ListRow&) const = default;
};

} // namespace lullet
