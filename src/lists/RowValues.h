#pragma once

#include "lists/LulletRow.h"

namespace lullet {

class AppDelegate;
class ReminderInfo;

// The texts of a list row, from its item as it stands.
class RowValues {
public:
    // `withProjectName` for the main window's lists outside a project: "Lullet  |  <project>".
    static void setValues(LulletRow& row, AppDelegate& app, bool withProjectName);
    static LulletRow makeRow(ReminderInfo* item, AppDelegate& app, bool withProjectName);

    // "hh:mm:ss", each part two digits.
    static QString getStringFromSeconds(int seconds);
    // "hh:mm" and an "m" behind, as planned lengths read.
    static QString hoursAndMinutes(int hours, int minutes);
};

} // namespace lullet
