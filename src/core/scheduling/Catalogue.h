#pragma once

#include "core/dates/Date.h"
#include "core/scheduling/CatalogueEntries.h"
#include "core/scheduling/CatalogueRow.h"

#include <QObject>

#include <vector>

namespace lullet {

class Clock;
class Generator;
class Item;
class Library;
class Rule;
class ScheduleTexts;
class WorkingHours;
class WorkingSchedule;

// The rows of the repeat list: the compiled-in suggestions merged with the stored rules. A
// suggestion becomes a stored rule only when the user switches it on or edits it; rules that
// claim no suggestion are listed under "Custom breaks". Every active rule passes through its row,
// which is what gives it its open occurrence.
class Catalogue final : public QObject {
    Q_OBJECT
public:
    struct Services {
        const Clock& clock;
        Library& library;
        Generator& generator;
        WorkingSchedule& schedule;
        const WorkingHours& hours;
        const ScheduleTexts& texts;
    };
    explicit Catalogue(const Services& services, QObject* parent = nullptr);

    // Rebuilds every row from the catalogue and the stored rules.
    void rebuild();
    const std::vector<CatalogueRowPtr>& rows() const { return m_rows; }
    // The rows that stand for the rule.
    std::vector<CatalogueRowPtr> rowsOf(const Rule* rule) const;

    // Brings a row up to date from its rule and makes sure an active rule has an occurrence.
    void refreshRow(CatalogueRow& row);
    // Every switched-on rule moves its next occurrence forward: the only way a new day is
    // noticed.
    void refreshActiveRows();
    // Refreshes the texts of the suggestions without a rule, as after a change of working hours.
    void refreshSuggestionTexts();

    // Makes the stored rule of a suggestion, switched off, anchored at the start of today's
    // working hours, and ties it to its row.
    Rule* createRuleFor(CatalogueRow& row);
    // Registers a new or edited rule and ties it to its row, which makes its first occurrence.
    void registerRule(Rule* rule);
    // Unregisters a rule, its open occurrences and its row; true when no custom rule is left.
    bool unregisterRule(Rule* rule);
    // The row's switch. A suggestion becomes a rule first. Off removes the rule's open
    // occurrences; on makes its next occurrence at once, unless the rule's end has passed: then
    // nothing changes and the switch falls back. Answers whether the row is on afterwards.
    bool switchRow(CatalogueRow& row, bool on);
    // Deletes a rule with its open occurrences and its row; finished occurrences stay.
    void deleteRule(Rule* rule);
    // Makes the follower of an occurrence that has just ended, from the date it stood on: missed
    // dates are skipped, and finishing early doesn't repeat a date.
    void makeNextOccurrence(Item* occurrence, Date basedOnDate);

    static CatalogueRowPtr headerRow(const QString& title);
    static CatalogueRowPtr suggestionRow(const CatalogueEntry& entry);
    static QString customHeaderTitle() { return tr("Custom breaks"); }
    // A rule's id: its title, "_" and the moment in seconds since 1970, as a double prints.
    static QString newRuleId(const QString& title, Date moment);

Q_SIGNALS:
    // The texts of the suggestions without a rule changed.
    void suggestionsChanged();

private:
    Services m_services;
    std::vector<CatalogueRowPtr> m_rows;
};

} // namespace lullet
