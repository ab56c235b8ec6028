#pragma once

class QTableView;

namespace lullet {

class RepeatListModel;

// How the repeat list's columns share the width, by what they hold: the switch its box, "Next"
// its longest time and the lullets the rest. Where the width is short, the texts take more lines
// in the order that costs the fewest: first the next time, then the schedules; a title that is
// still too long ends in "…". The rows grow to hold their lines.
class RepeatListColumns {
public:
    static void fit(QTableView& table, const RepeatListModel& model);
};

} // namespace lullet
