#include "core/scheduling/Generator.h"

#include "core/dates/Clock.h"
#include "core/model/RepeatCodes.h"
#include "core/model/Rule.h"
#include "core/scheduling/RepeatRules.h"
#include "core/text/PatternMatcher.h"

#include <algorithm>

namespace lullet {

namespace {

// Open: not finished (an explicit false: no value doesn't count) and dated.
bool isOpen(const Item* item)
{
    return item->hasContext() && item->hasFinished() == std::optional<bool>(false) &&
           item->dtReminder().has_value() && item->uniqueId().has_value();
}

bool inWindow(const Item* item, Date from, Date to)
{
    const Date due = *item->dtReminder();
    return due >= from && due <= to;
}

} // namespace

Generator::Generator(const Clock& clock, Library& library)
    : m_clock(clock)
    , m_library(library)
{
}

Generator::Batch::Batch(Generator& generator)
    : m_generator(generator)
    , m_news(generator.m_library)
{
    if (m_generator.m_batchDepth++ > 0)
        return;
    m_generator.m_openById.clear();
    for (Item* item : m_generator.m_library.items()) {
        if (isOpen(item))
            m_generator.m_openById[*item->uniqueId()].push_back(item);
    }
}

Generator::Batch::~Batch()
{
    if (--m_generator.m_batchDepth == 0)
        m_generator.m_openById.clear();
}

bool Generator::standsInTheWay(const QString& uniqueId, const std::optional<Window>& window) const
{
    const PatternMatcher matcher(uniqueId);
    if (!matcher.isValid())
        return false;
    const auto qualifies = [&](const Item* item) {
        return isOpen(item) && (!window || inWindow(item, window->from, window->to));
    };
    if (m_batchDepth > 0) {
        // Nearly always the rule's own occurrence carries exactly its id: try that first.
        if (const auto own = m_openById.constFind(uniqueId);
            own != m_openById.cend() && std::any_of(own->begin(), own->end(), qualifies) &&
            matcher.matches(own.key()))
            return true;
        for (auto it = m_openById.cbegin(); it != m_openById.cend(); ++it) {
            if (std::any_of(it->begin(), it->end(), qualifies) && matcher.matches(it.key()))
                return true;
        }
        return false;
    }
    // Ids repeat across the list, so each distinct id is matched once.
    QHash<QString, bool> verdicts;
    for (const Item* item : m_library.items()) {
        if (!qualifies(item))
            continue;
        const QString& id = *item->uniqueId();
        auto verdict = verdicts.constFind(id);
        if (verdict == verdicts.constEnd())
            verdict = verdicts.insert(id, matcher.matches(id));
        if (*verdict)
            return true;
    }
    return false;
}

Item* Generator::newOccurrence(const Rule& rule, Date date)
{
    Item* item = m_library.newItem();
    item->setUniqueId(rule.uniqueId());
    item->setTitle(rule.title());
    item->setNotes(rule.notes().value_or(QString()));
    item->setDtReminder(date);
    if (rule.makesToDos()) {
        item->setRepeatOption(RepeatEnd::toDoMarker);
    } else {
        item->setDurationHr(rule.durationHr());
        item->setDurationMin(rule.durationMin());
        item->setShouldRemind(rule.shouldRemind());
        item->setRemindBefore(rule.remindBefore());
        item->setRepeatInterval(rule.repeatInterval());
        item->setRepeatIntervalType(rule.repeatIntervalType());
        item->setRepeatOption(rule.repeatOption());
    }
    return item;
}

Item* Generator::makeOccurrence(Rule* rule, std::optional<Date> date, Check check)
{
    // A rule without its id or title can't be tied to occurrences: it is skipped.
    if (!rule || !rule->uniqueId() || !rule->title())
        return nullptr;
    if (!date || !date->isLaterThanDate(m_clock.now()))
        return nullptr;

    std::optional<Window> window;
    if (check == Check::WithinLastStep) {
        if (!RepeatRules::hasUsableStep(*rule))
            return nullptr;
        Date from =
            RepeatRules::stepBack(*date, *rule->repeatIntervalType(), *rule->repeatInterval());
        // The occurrence exactly one step back doesn't count.
        if (from.isEarlierThanDate(*date))
            from = from.dateByAddingSeconds(10);
        window = Window{from, *date};
    }
    if (standsInTheWay(*rule->uniqueId(), window))
        return nullptr;

    Item* item = newOccurrence(*rule, *date);
    if (m_batchDepth > 0)
        m_openById[*item->uniqueId()].push_back(item);
    m_library.save();
    m_library.addItem(item);
    m_library.announceItemChangedLater(item);
    return item;
}

void Generator::removeOpenOccurrences(Rule* rule)
{
    if (!rule)
        return;
    if (rule->uniqueId()) {
        const PatternMatcher matcher(*rule->uniqueId());
        const std::vector<Item*> all = m_library.items();
        for (Item* item : all) {
            if (isOpen(item) && matcher.matches(*item->uniqueId()))
                m_library.deleteItem(item);
        }
    }
    m_library.announceRulesChangedLater();
}

} // namespace lullet
