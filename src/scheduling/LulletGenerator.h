#pragma once

#include "core/dates/Date.h"

#include <QHash>
#include <QString>

#include <optional>
#include <vector>

namespace lullet {

class AppDelegate;
class ReminderInfo;
class RepeatReminderInfo;

// Turns rules into dated occurrences, lazily: a rule has one open occurrence, made for its next
// date, and the next one is made only when that one ends. Occurrences are tied to their rule by
// equal uniqueId text, compared as a regular expression ignoring case and diacritics.
class LulletGenerator {
public:
    explicit LulletGenerator(AppDelegate& app);

    // Makes one occurrence of the rule on the date unless an open one stands in the way: with
    // the check, only one within the step before the date; without it, any at all.
    void makeReadyLullets(RepeatReminderInfo* rule, std::optional<Date> date,
                          bool withCheckDateTime);
    // Makes the follower of an occurrence that has just ended, from the date it stood on.
    void createNextLullet(ReminderInfo* occurrence, Date basedOnDate);
    // Deletes the rule's open occurrences; finished ones stay as history.
    void removeAssociatedLullets(RepeatReminderInfo* rule);
    // Registers a new or edited rule and ties it to its row, which makes its first occurrence.
    void addRepeatObject(RepeatReminderInfo* rule);
    // Unregisters a rule and its row; true when no custom rule is left.
    bool removeRepeatingObject(RepeatReminderInfo* rule);

    // While a batch is open, the open occurrences are indexed by their id, so that many rules
    // can be checked against a large list quickly. Nested batches share the outer one's index.
    class Batch {
    public:
        explicit Batch(LulletGenerator& generator);
        ~Batch();
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

    private:
        LulletGenerator& m_generator;
    };

private:
    struct Window {
        Date from;
        Date to;
    };
    bool standsInTheWay(const QString& uniqueId, const std::optional<Window>& window) const;
    ReminderInfo* makeOccurrence(const RepeatReminderInfo& rule, Date date);

    AppDelegate& m_app;
    int m_batchDepth = 0;
    QHash<QString, std::vector<ReminderInfo*>> m_openById;
};

} // namespace lullet
