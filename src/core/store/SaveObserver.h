#pragma once

#include <QtGlobal>

#include <vector>

namespace lullet {

class Record;

// Told of every save of the object context, inside its transaction: whatever it writes there is
// kept or undone with the records' own rows.
class SaveObserver {
public:
    struct Changes {
        const std::vector<Record*>& inserted;
        const std::vector<Record*>& updated;
        // Deleted records still know their rows.
        const std::vector<Record*>& deleted;
        // Items of the history on disk deleted with their project, by row: never in memory.
        const std::vector<qint64>& deletedHistory;
    };

    virtual ~SaveObserver() = default;
    // After the records' rows are written, before the commit. False undoes the whole save.
    virtual bool saving(const Changes& changes) = 0;
    // After the commit.
    virtual void saved() = 0;
};

} // namespace lullet
