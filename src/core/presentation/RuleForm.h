#pragma once

#include "core/dates/Date.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace lullet {

class Catalogue;
class Clock;
class Generator;
class Library;
class Rule;
struct CatalogueRow;

// The editor of every field of a rule: what it shows for a suggestion, a stored rule or a new
// custom rule, and what Done does with the fields. Done decides whether the change touches the
// schedule, and only then does the rule lose its open occurrences.
class RuleForm {
    Q_DECLARE_TR_FUNCTIONS(RuleForm)

public:
    struct Services {
        const Clock& clock;
        Library& library;
        Generator& generator;
        Catalogue& catalogue;
    };

    struct Fields {
        QString title;
        bool toDo = true;
        // The row of the advance-notice menu, stored as it is ("10 days" is row 8).
        int remindBeforeRow = 0;
        int hours = 0;
        int minutes = 0;
        bool remind = true;
        // The first date: its day, and the time of day from `time`.
        Date day;
        Date time;
        // As typed: digits only, possibly none.
        QString repeatCount;
        int unit = 0;
        bool until = false;
        Date upTo;
        QString notes;
        bool active = true;
    };

    enum class Outcome { Saved, BlankName, NoRepeatCount };

    explicit RuleForm(const Services& services);

    // A suggestion's defaults, or the stored rule behind the row.
    Fields fieldsFor(const CatalogueRow& row) const;
    // A new custom rule: today, now, every hour.
    Fields blankFields() const;
    static Fields fieldsOf(const Rule& rule);

    static QStringList modeChoices();
    static QStringList unitChoices();
    static QStringList endChoices();
    static QString noRepeatCountMessage();

    // Stores the fields on `editing`, or on a new rule when there is none; `fromSuggestion` keeps
    // a rule that began as a suggestion out of the custom rules. Nothing changes on a refusal.
    Outcome done(const Fields& fields, Rule* editing, bool fromSuggestion);

private:
    bool scheduleChanged(const Fields& fields, Date first, const Rule* editing) const;

    Services m_services;
};

} // namespace lullet
