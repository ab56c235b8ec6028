#include "core/presentation/RuleForm.h"

#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/RepeatCodes.h"
#include "core/model/Rule.h"
#include "core/scheduling/Catalogue.h"
#include "core/scheduling/CatalogueRow.h"
#include "core/scheduling/Generator.h"

#include <algorithm>

namespace lullet {

RuleForm::RuleForm(const Services& services)
    : m_services(services)
{
}

QStringList RuleForm::modeChoices()
{
    return {tr("To-do"), tr("Timed task")};
}

QStringList RuleForm::unitChoices()
{
    return {tr("Minutes"), tr("Hours"), tr("Days"), tr("Weeks"), tr("Months"), tr("Years")};
}

QStringList RuleForm::endChoices()
{
    return {tr("Never"), tr("Until a date")};
}

QString RuleForm::noRepeatCountMessage()
{
    return tr("How often should it repeat? Please enter a number above 0.");
}

RuleForm::Fields RuleForm::blankFields() const
{
    const Date now = m_services.clock.now();
    Fields fields;
    fields.day = now.dateAtStartOfDay();
    fields.time = now;
    fields.upTo = fields.day;
    fields.repeatCount = QStringLiteral("1");
    fields.unit = RepeatUnit::Hour;
    return fields;
}

RuleForm::Fields RuleForm::fieldsFor(const CatalogueRow& row) const
{
    if (row.representedObject)
        return fieldsOf(*row.representedObject);
    Fields fields = blankFields();
    fields.title = row.title;
    fields.notes = row.notes;
    fields.toDo = row.isToDoOrJob.value_or(true);
    fields.hours = row.defaultDurationHr.value_or(0);
    fields.minutes = row.defaultDurationMin.value_or(0);
    fields.repeatCount = QString::number(row.defaultRepeatValue.value_or(15));
    const int unit = row.defaultRepeatType.value_or(RepeatUnit::Minute);
    fields.unit = RepeatUnit::isKnown(unit) ? unit : RepeatUnit::Minute;
    return fields;
}

RuleForm::Fields RuleForm::fieldsOf(const Rule& rule)
{
    Fields fields;
    fields.title = rule.title().value_or(QString());
    fields.notes = rule.notes().value_or(QString());
    fields.toDo = rule.makesToDos();
    const int lastRow = int(RemindBefore::codes.size()) - 1;
    fields.remindBeforeRow = std::clamp(rule.remindBefore().value_or(0), 0, lastRow);
    fields.hours = std::max(0, rule.durationHr().value_or(0));
    fields.minutes = std::max(0, rule.durationMin().value_or(0));
    fields.remind = rule.shouldRemind().value_or(true);
    const Date first = rule.dtReminder().value_or(Date());
    fields.day = first.dateAtStartOfDay();
    fields.time = first;
    fields.repeatCount =
        rule.repeatInterval() ? QString::number(*rule.repeatInterval()) : QString();
    const int unit = rule.repeatIntervalType().value_or(RepeatUnit::Minute);
    fields.unit = RepeatUnit::isKnown(unit) ? unit : RepeatUnit::Minute;
    fields.until = rule.repeatOption() == std::optional<int>(RepeatEnd::untilDate);
    fields.upTo = rule.dtRepeatUpto().value_or(fields.day);
    fields.active = rule.isActive().value_or(false);
    return fields;
}

bool RuleForm::scheduleChanged(const Fields& fields, Date first, const Rule* editing) const
{
    // A new rule, one switched off and a to-do rule start afresh whatever changed.
    if (!editing || !fields.active || fields.toDo)
        return true;
    const int count = fields.repeatCount.toInt();
    // A new time of day on the same day is no change: the open occurrence keeps its time.
    return !editing->dtReminder() || !first.isEqualToDateIgnoringTime(*editing->dtReminder()) ||
           !editing->dtRepeatUpto() ||
           !fields.upTo.isEqualToDateIgnoringTime(*editing->dtRepeatUpto()) ||
           editing->repeatInterval() != std::optional<int>(count) ||
           editing->repeatIntervalType() != std::optional<int>(fields.unit) ||
           editing->repeatOption() !=
               std::optional<int>(fields.until ? RepeatEnd::untilDate : RepeatEnd::never);
}

RuleForm::Outcome RuleForm::done(const Fields& fields, Rule* editing, bool fromSuggestion)
{
    const QString title = fields.title.trimmed();
    if (title.isEmpty())
        return Outcome::BlankName;
    // A rule that cannot step would make no occurrence ever: it is not stored.
    bool isNumber = false;
    const int count = fields.repeatCount.toInt(&isNumber);
    if (!isNumber || count <= 0)
        return Outcome::NoRepeatCount;

    const Date first =
        fields.day.setTimeOfDate(fields.time.hour(), fields.time.minute(), fields.time.seconds());
    Library& library = m_services.library;
    const Generator::Batch batch(m_services.generator);
    if (scheduleChanged(fields, first, editing) && editing)
        m_services.generator.removeOpenOccurrences(editing);

    Rule* rule = editing;
    if (!rule) {
        rule = library.newRule();
        rule->setUniqueId(Catalogue::newRuleId(title, m_services.clock.now()));
    }
    rule->setTitle(title);
    rule->setDurationHr(fields.hours);
    rule->setDurationMin(fields.minutes);
    // The remind box is shown, yet every rule reminds.
    rule->setShouldRemind(true);
    rule->setRemindBefore(fields.remindBeforeRow);
    rule->setDtReminder(first);
    rule->setRepeatInterval(count);
    rule->setRepeatIntervalType(fields.unit);
    rule->setRepeatOption(fields.until ? RepeatEnd::untilDate : RepeatEnd::never);
    rule->setDtRepeatUpto(fields.upTo);
    rule->setNotes(fields.notes);
    rule->setIsCustom(!fromSuggestion);
    rule->setIsToDoOrJob(fields.toDo);
    rule->setIsActive(fields.active);
    m_services.catalogue.registerRule(rule);
    library.save();
    library.announceRulesChanged();
    return Outcome::Saved;
}

} // namespace lullet
