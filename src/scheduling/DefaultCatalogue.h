#pragma once

#include "scheduling/CatalogueRow.h"
#include "scheduling/DefaultRepeatTypeNames.h"

#include <vector>

namespace lullet {

class AppDelegate;
class RepeatReminderInfo;

// The rows of the repeat list: the compiled-in suggestions merged with the stored rules. A
// suggestion becomes a stored rule only when the user switches it on or edits it; rules that
// claim no suggestion are listed under "Custom breaks".
class DefaultCatalogue {
public:
    explicit DefaultCatalogue(AppDelegate& app);

    // Rebuilds every row from the catalogue and the stored rules; every active rule passes
    // through updateRepeatDictionary, which is what gives it its open occurrence at launch.
    void prepareDefaultRepeats();
    const std::vector<CatalogueRowPtr>& getAllDefaultRepeats() const { return mArrDefaultRepeats; }
    // Brings a row up to date from its rule and makes sure an active rule has an occurrence.
    void updateRepeatDictionary(CatalogueRow& row);
    // Refreshes the texts of the suggestions without a rule, as after a change of working hours.
    void resetDefaultNextRepeats();
    // Makes the stored rule of a suggestion, switched off, anchored at the start of today's
    // working hours, and ties it to its row.
    RepeatReminderInfo* implicitCreateDefaultRepeat(CatalogueRow& row);

    // The rows that stand for the rule.
    std::vector<CatalogueRowPtr> rowsOf(const RepeatReminderInfo* rule) const;

    static CatalogueRowPtr headerRow(const QString& title);
    static CatalogueRowPtr suggestionRow(const CatalogueEntry& entry);
    static QString customHeaderTitle() { return QStringLiteral("Custom breaks"); }

    std::vector<CatalogueRowPtr> mArrDefaultRepeats;

private:
    AppDelegate& m_app;
};

} // namespace lullet
