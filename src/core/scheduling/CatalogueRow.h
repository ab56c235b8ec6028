#pragma once

#include "core/dates/Date.h"

#include <QString>

#include <memory>
#include <optional>

namespace lullet {

class Rule;

// One row of the repeat list: a group header, a catalogue suggestion, or a custom rule. A
// suggestion the user never switched on stands for no rule yet (a "dummy" row); that stays
// distinguishable from a header, which stands for nothing at all.
struct CatalogueRow {
    enum Type { ItemRow = 0, Header = 2 };

    int type = ItemRow;
    QString title;
    QString notes;
    // Suggestions only: what the catalogue says of the item.
    std::optional<bool> isToDoOrJob;
    std::optional<int> defaultDurationHr;
    std::optional<int> defaultDurationMin;
    std::optional<int> defaultRepeatType;
    std::optional<int> defaultRepeatValue;
    bool isCustom = false;

    // The stored rule behind the row, if any.
    Rule* representedObject = nullptr;
    // A suggestion without a rule.
    bool dummy = false;

    // The schedule text shown under the title.
    QString notes2;
    bool isActive = false;
    std::optional<Date> nextRepeatOn;
    std::optional<int> remindBefore;

    bool isDummy() const { return dummy && !representedObject; }
    void represent(Rule* rule)
    {
        representedObject = rule;
        dummy = rule == nullptr;
    }
};

using CatalogueRowPtr = std::shared_ptr<CatalogueRow>;

} // namespace lullet
