#pragma once

#include "core/dates/Date.h"

#include <QJsonObject>

#include <optional>

namespace lullet {

// Merges a record changed on both sides since they last agreed (the base), field by field: a
// field changed on one side only takes that side's value; a field changed on both takes the later
// edit's. What only grows never goes back: finished stays finished, and the time run keeps the
// larger value. With no base (both sides made the record on their own) every differing field is
// a change on both.
class SyncMerge {
public:
    struct Side {
        QJsonObject fields;
        // When the side last changed the record; none counts as long ago.
        std::optional<Date> changedAt;
    };
    static QJsonObject merge(const QJsonObject& base, const Side& local, const Side& remote);
    // Whether a side did no more to the record than run it (start it, count its time): that is
    // no edit, and a deletion on the other side still goes through.
    static bool onlyRan(const QJsonObject& base, const QJsonObject& side);
};

} // namespace lullet
