#pragma once

#include "core/dates/Date.h"
#include "core/library/Library.h"

#include <QHash>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace lullet {

class Clock;
class Item;
class Rule;

// Turns rules into dated occurrences, lazily: a rule has one open occurrence, made for its next
// date, and the next one is made only when that one ends. Occurrences are tied to their rule by
// equal uniqueId text, compared ignoring case and diacritics; the id is never read as a pattern,
// so a title with pattern characters in it still finds its own occurrences.
class Generator {
public:
    Generator(const Clock& clock, Library& library);

    // What stands in the way of a new occurrence.
    enum class Check {
        // Any open occurrence of the rule, however old.
        AnyOpen,
        // Only an open occurrence within the step before the date (the one exactly a step back
        // doesn't count).
        WithinLastStep,
    };
    // Makes one occurrence of the rule on the date, unless the date has passed or an open one
    // stands in the way; answers it, or nothing.
    Item* makeOccurrence(Rule* rule, std::optional<Date> date, Check check);
    // Deletes the rule's open occurrences; finished ones stay as history.
    void removeOpenOccurrences(Rule* rule);

    // While a batch is open, the open occurrences are indexed by their id, so that many rules
    // can be checked against a large list quickly, and the views hear of the new occurrences
    // once, when the batch closes. Nested batches share the outer one.
    class Batch {
    public:
        explicit Batch(Generator& generator);
        ~Batch();
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

    private:
        Generator& m_generator;
        Library::Batch m_news;
    };

private:
    struct Window {
        Date from;
        Date to;
    };
    bool standsInTheWay(const QString& uniqueId, const std::optional<Window>& window) const;
    Item* newOccurrence(const Rule& rule, Date date);

    const Clock& m_clock;
    Library& m_library;
    int m_batchDepth = 0;
    QHash<QString, std::vector<Item*>> m_openById;
};

} // namespace lullet
