#include "core/scheduling/Catalogue.h"

#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/model/RepeatCodes.h"
#include "core/model/Rule.h"
#include "core/scheduling/Generator.h"
#include "core/scheduling/RepeatRules.h"
#include "core/scheduling/ScheduleTexts.h"
#include "core/scheduling/WorkingHours.h"
#include "core/scheduling/WorkingSchedule.h"
#include "core/store/ObjectContext.h"
#include "core/text/LocalizedText.h"
#include "core/text/PatternMatcher.h"

#include <QLocale>
#include <QSet>

#include <algorithm>

namespace lullet {

namespace {

int toInt(const QString& text)
{
    bool ok = false;
    const int value = text.toInt(&ok);
    return ok ? value : 0;
}

bool isCustomRule(const Rule* rule)
{
    return rule->isCustom() == std::optional<bool>(true);
}

CatalogueRowPtr customRow(Rule* rule)
{
    auto row = std::make_shared<CatalogueRow>();
    row->type = CatalogueRow::ItemRow;
    row->isCustom = true;
    row->represent(rule);
    return row;
}

} // namespace

Catalogue::Catalogue(const Services& services, QObject* parent)
    : QObject(parent)
    , m_services(services)
{
}

QString Catalogue::newRuleId(const QString& title, Date moment)
{
    // The shortest exact decimal, with ".0" for a whole number.
    QString seconds =
        QString::number(moment.timeIntervalSince1970(), 'f', QLocale::FloatingPointShortest);
    if (!seconds.contains(u'.'))
        seconds += QStringLiteral(".0");
    return title + u'_' + seconds;
}

CatalogueRowPtr Catalogue::headerRow(const QString& title)
{
    auto row = std::make_shared<CatalogueRow>();
    row->type = CatalogueRow::Header;
    row->title = title;
    return row;
}

CatalogueRowPtr Catalogue::suggestionRow(const CatalogueEntry& entry)
{
    auto row = std::make_shared<CatalogueRow>();
    row->type = CatalogueRow::ItemRow;
    row->title = entry.name;
    row->notes = entry.notes;
    const bool isToDo = entry.type != std::optional<QString>(QStringLiteral("task"));
    row->isToDoOrJob = isToDo;

    // "1 h", "10 m", or "1 h 30 m".
    int hours = 0;
    int minutes = 0;
    if (entry.duration) {
        const QStringList parts = entry.duration->split(u' ');
        if (parts.size() == 2) {
            (parts[1] == QStringLiteral("h") ? hours : minutes) = toInt(parts[0]);
        } else if (parts.size() == 4) {
            hours = toInt(parts[0]);
            minutes = toInt(parts[2]);
        }
    }
    row->defaultDurationHr = hours;
    row->defaultDurationMin = minutes;
    row->defaultRepeatType = entry.repeatType ? toInt(*entry.repeatType)
                                              : (isToDo ? RepeatUnit::Minute : RepeatUnit::Day);
    row->defaultRepeatValue = entry.repeatValue ? toInt(*entry.repeatValue) : 1;
    row->isCustom = false;
    return row;
}

std::vector<CatalogueRowPtr> Catalogue::rowsOf(const Rule* rule) const
{
    std::vector<CatalogueRowPtr> rows;
    if (!rule)
        return rows;
    for (const CatalogueRowPtr& row : m_rows) {
        if (row->representedObject == rule)
            rows.push_back(row);
    }
    return rows;
}

void Catalogue::rebuild()
{
    Library& library = m_services.library;
    library.loadRules();
    const Generator::Batch batch(m_services.generator);

    std::vector<CatalogueRowPtr> rows;
    QSet<const Rule*> claimed;
    for (const QString& group : CatalogueEntries::groups()) {
        rows.push_back(headerRow(group));
        for (const CatalogueEntry& entry : CatalogueEntries::entriesOf(group)) {
            CatalogueRowPtr row = suggestionRow(entry);
            const PatternMatcher matcher(row->title);
            std::vector<Rule*> matches;
            for (Rule* rule : library.rules()) {
                if (!isCustomRule(rule) && rule->title() && matcher.matches(*rule->title()))
                    matches.push_back(rule);
            }
            if (matches.size() == 1) {
                claimed.insert(matches.front());
                row->represent(matches.front());
                refreshRow(*row);
            } else {
                row->represent(nullptr);
                row->notes2 = m_services.texts.suggestionText(*row);
            }
            rows.push_back(row);
        }
    }

    bool headerAdded = false;
    for (Rule* rule : library.rules()) {
        if (claimed.contains(rule))
            continue;
        if (!headerAdded) {
            rows.push_back(headerRow(customHeaderTitle()));
            headerAdded = true;
        }
        CatalogueRowPtr row = customRow(rule);
        refreshRow(*row);
        rows.push_back(row);
    }
    m_rows = std::move(rows);
}

void Catalogue::refreshRow(CatalogueRow& row)
{
    Rule* rule = row.representedObject;
    if (!rule) {
        row.isActive = false;
        row.nextRepeatOn.reset();
        return;
    }
    if (rule->title())
        row.title = *rule->title();
    if (rule->notes())
        row.notes = *rule->notes();

    bool active = rule->isActive().value_or(false);
    const Date startOfToday = m_services.clock.now().dateAtStartOfDay();
    // A rule past its end shows as off; the rule itself is left as it is.
    if (active && rule->repeatOption() == std::optional<int>(RepeatEnd::untilDate) &&
        rule->dtRepeatUpto() && rule->dtRepeatUpto()->isEarlierThanDate(startOfToday))
        active = false;
    row.isActive = active;

    if (!active) {
        row.nextRepeatOn.reset();
    } else {
        row.nextRepeatOn = RepeatRules::nextDate(*rule, m_services.clock);
        if (row.nextRepeatOn)
            m_services.generator.makeOccurrence(rule, row.nextRepeatOn, Generator::Check::AnyOpen);
    }
    row.notes2 = m_services.texts.ruleText(rule);
    row.remindBefore = rule->remindBefore();
}

void Catalogue::refreshActiveRows()
{
    const Generator::Batch batch(m_services.generator);
    const std::vector<CatalogueRowPtr> rows = m_rows;
    for (const CatalogueRowPtr& row : rows) {
        if (row->representedObject && row->nextRepeatOn)
            refreshRow(*row);
    }
}

void Catalogue::refreshSuggestionTexts()
{
    bool any = false;
    for (const CatalogueRowPtr& row : m_rows) {
        if (row->isDummy()) {
            row->notes2 = m_services.texts.suggestionText(*row);
            any = true;
        }
    }
    if (any)
        QMetaObject::invokeMethod(
            this, [this] { Q_EMIT suggestionsChanged(); }, Qt::QueuedConnection);
}

Rule* Catalogue::createRuleFor(CatalogueRow& row)
{
    const Date now = m_services.clock.now();
    Date moment = now;
    const auto today = m_services.schedule.entriesFor(now.weekday());
    if (today.size() == 1 && today.front()->startTime)
        moment = m_services.hours.onLaunchDay(*today.front()->startTime);
    const Date anchor = now.setTimeOfDate(moment.hour(), moment.minute(), moment.seconds());

    Rule* rule = m_services.library.newRule();
    rule->setUniqueId(newRuleId(row.title, now));
    rule->setTitle(row.title);
    rule->setNotes(row.notes);
    rule->setDurationHr(row.defaultDurationHr.value_or(0));
    rule->setDurationMin(row.defaultDurationMin.value_or(1));
    rule->setShouldRemind(true);
    rule->setRemindBefore(int(RemindBefore::OnTheDay));
    rule->setDtReminder(anchor);
    rule->setRepeatInterval(row.defaultRepeatValue.value_or(15));
    rule->setRepeatIntervalType(row.defaultRepeatType.value_or(RepeatUnit::Minute));
    rule->setRepeatOption(RepeatEnd::never);
    rule->setDtRepeatUpto(moment);
    rule->setIsCustom(false);
    // Switched on directly, every suggestion is a to-do; only the edit form makes a timed one.
    rule->setIsToDoOrJob(true);
    rule->setIsActive(false);
    registerRule(rule);
    return rule;
}

void Catalogue::registerRule(Rule* rule)
{
    if (!rule)
        return;
    Library& library = m_services.library;
    const bool hadCustom =
        std::any_of(library.rules().begin(), library.rules().end(), isCustomRule);
    library.addRule(rule);

    if (isCustomRule(rule)) {
        const std::vector<CatalogueRowPtr> own = rowsOf(rule);
        if (own.size() == 1) {
            own.front()->represent(rule);
            refreshRow(*own.front());
            return;
        }
        if (!hadCustom)
            m_rows.push_back(headerRow(customHeaderTitle()));
        CatalogueRowPtr row = customRow(rule);
        m_rows.push_back(row);
        refreshRow(*row);
        return;
    }
    if (!rule->title())
        return;
    const PatternMatcher matcher(*rule->title());
    std::vector<CatalogueRowPtr> matches;
    for (const CatalogueRowPtr& row : m_rows) {
        if (row->type == CatalogueRow::ItemRow && matcher.matches(row->title))
            matches.push_back(row);
    }
    if (matches.size() == 1) {
        matches.front()->represent(rule);
        refreshRow(*matches.front());
    }
}

bool Catalogue::unregisterRule(Rule* rule)
{
    m_services.generator.removeOpenOccurrences(rule);
    Library& library = m_services.library;
    library.removeRule(rule);
    const bool noCustomLeft =
        std::none_of(library.rules().begin(), library.rules().end(), isCustomRule);

    const std::vector<CatalogueRowPtr> own = rowsOf(rule);
    if (own.size() == 1) {
        m_rows.erase(std::remove(m_rows.begin(), m_rows.end(), own.front()), m_rows.end());
        // The last row is then the "Custom breaks" header, with nothing under it.
        if (noCustomLeft && m_rows.size() > 1 && m_rows.back()->type == CatalogueRow::Header &&
            m_rows.back()->title == customHeaderTitle())
            m_rows.pop_back();
    }
    return noCustomLeft;
}

bool Catalogue::switchRow(CatalogueRow& row, bool on)
{
    if (row.type != CatalogueRow::ItemRow)
        return false;
    Library& library = m_services.library;
    Rule* rule = row.representedObject ? row.representedObject : createRuleFor(row);
    if (!rule)
        return false;
    if (!on) {
        m_services.generator.removeOpenOccurrences(rule);
    } else if (rule->repeatOption() == std::optional<int>(RepeatEnd::untilDate) &&
               (!rule->dtRepeatUpto() || !rule->dtRepeatUpto()->isLaterThanDate(
                                             m_services.clock.now().dateAtStartOfDay()))) {
        library.save();
        library.announceRulesChanged();
        return rule->isActive().value_or(false);
    }
    rule->setIsActive(on);
    const Generator::Batch batch(m_services.generator);
    refreshRow(row);
    library.save();
    library.announceRulesChanged();
    return row.isActive;
}

void Catalogue::deleteRule(Rule* rule)
{
    if (!rule)
        return;
    unregisterRule(rule);
    m_services.library.deleteRule(rule);
    m_services.library.save();
    m_services.library.announceRulesChanged();
}

void Catalogue::makeNextOccurrence(Item* occurrence, Date basedOnDate)
{
    if (!occurrence || !occurrence->uniqueId() || occurrence->uniqueId()->isEmpty())
        return;
    std::vector<Rule*> rules;
    for (Rule* rule : m_services.library.rules()) {
        if (rule->uniqueId() && LocalizedText::equalsCD(*rule->uniqueId(), *occurrence->uniqueId()))
            rules.push_back(rule);
    }
    if (rules.size() != 1)
        return;
    Rule* rule = rules.front();
    // Stored data with no usable step makes nothing rather than repeat a date.
    if (!RepeatRules::hasUsableStep(*rule))
        return;
    const std::vector<CatalogueRowPtr> rows = rowsOf(rule);
    if (rows.size() != 1)
        return;

    const Clock& clock = m_services.clock;
    const std::optional<Date> next = basedOnDate.isEarlierThanDate(clock.now())
                                         ? RepeatRules::nextDate(*rule, clock)
                                         : RepeatRules::stepAfter(*rule, basedOnDate);
    if (!next)
        return;
    if (rule->repeatOption() == std::optional<int>(RepeatEnd::untilDate) && rule->dtRepeatUpto() &&
        rule->dtRepeatUpto()->isEarlierThanDate(*next))
        return;
    rows.front()->nextRepeatOn = next;
    m_services.generator.makeOccurrence(rule, next, Generator::Check::WithinLastStep);
}

} // namespace lullet
