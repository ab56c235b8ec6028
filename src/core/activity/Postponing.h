#pragma once

#include "core/dates/Date.h"

#include <QCoreApplication>
#include <QString>

#include <optional>

namespace lullet {

class Clock;
class Item;
class Library;

// Moving an item that is not running to a later moment, by the named choices of the postpone
// panel and of the rows' menu. Only the effective date (dtReminderPostponed) is written, but for
// the choice that takes the date away altogether.
class Postponing {
    Q_DECLARE_TR_FUNCTIONS(Postponing)

public:
    enum Choice {
        InThreeHours = 1,
        ThisEvening = 2,
        Tomorrow = 3,
        InTwoDays = 4,
        ThisWeekend = 5,
        NextWeek = 6,
        NoDate = 7,
        Cancel = 8,
        PickDate = 9,
        NextMonth = 10,
    };

    Postponing(const Clock& clock, Library& library);

    // The panel counts from the item's effective date when that is today, else from now.
    static Date panelBase(const Item& item, const Clock& clock);
    // The new date of a choice from base B; nothing for the choices that write no date.
    static std::optional<Date> dateFor(int choice, Date base, const Clock& clock);

    // The panel's four changing captions.
    static QString eveningLabel(Date base, const Clock& clock);
    static QString nextDayLabel(Date base, const Clock& clock);
    static QString inTwoDaysLabel(Date base);
    static QString weekendLabel(Date base);

    // A choice of the panel: writes, saves, re-sorts and announces; true when the panel is to
    // close (every choice but "cancel" and "pick a date").
    bool chooseInPanel(Item* item, int choice);
    // A choice of the rows' menu, always counted from now; "no date", "cancel" and "pick a date"
    // do nothing there.
    void chooseInMenu(Item* item, int choice);
    // The panel's free choice; the panel stays open.
    void postponeTo(Item* item, Date date);
    // The effective date that many minutes later, for an item that has one. Without `save` the
    // change reaches the disk with the next save.
    void postponeBy(Item& item, int minutes, bool save = true);

private:
    void announce(Item* item, bool resort);

    const Clock& m_clock;
    Library& m_library;
};

} // namespace lullet
