#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

namespace lullet {

class Clock;
class Item;
class Library;
class RunningItem;

// The one clock of the running item as every view shows it, and the tray's summary of the
// moment: what runs, else what comes next.
class RunningStatus {
    Q_DECLARE_TR_FUNCTIONS(RunningStatus)

public:
    // "Walk the dog  00:12:03 / 00:30:00": seconds run, then the limit when it has one.
    static QString clockText(const Item& item);
    // How far the running item is, from 0 to 1: through its limit, or, without one, through the
    // prompt period until it is next asked about. None when nothing runs.
    static std::optional<double> progress(const RunningItem& running, const Clock& clock);
    // "Walk the dog: 12 of 30 min", "Next: Stretch at 10:40 AM", or only the program's name.
    // Whole minutes, so that the text changes once a minute at most.
    static QString toolTip(const Library& library, const RunningItem& running, const Clock& clock);
    // The open item due next, from now on, that waits to be started; none when nothing is due.
    static const Item* nextDue(const Library& library, const Clock& clock);
};

} // namespace lullet
