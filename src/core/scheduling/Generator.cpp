#include "core/scheduling/Generator.h"

#include "core/dates/Clock.h"
#include "core/model/RepeatCodes.h"
#include "core/model/Rule.h"
#include "core/scheduling/RepeatRules.h"
#include "core/text/LocalizedText.h"

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
            m_generator.m_openById[LocalizedText::foldCaseAndDiacritics(*item->uniqueId())]
                .push_back(item);
    }
}

Generator::Batch::~Batch()
{
    if (--m_generator.m_batchDepth == 0)
        m_generator.m_openById.clear();
}

bool Generator::standsInTheWay(const QString& uniqueId, const std::optional<Window>& window) const
{
    const QString key = LocalizedText::foldCaseAndDiacritics(uniqueId);
    const auto qualifies = [&](const Item* item) {
        return isOpen(item) && (!window || inWindow(item, window->from, window->to));
    };
    if (m_batchDepth > 0) {
        const auto own = m_openById.constFind(key);
        return own != m_openById.cend() && std::any_of(own->begin(), own->end(), qualifies);
    }
    return std::any_of(m_library.items().begin(), m_library.items().end(), [&](const Item* item) {
        return qualifies(item) && LocalizedText::foldCaseAndDiacritics(*item->uniqueId()) == key;
    });
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
        m_openById[LocalizedText::foldCaseAndDiacritics(*item->uniqueId())].push_back(item);
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
        const std::vector<Item*> all = m_library.items();
        for (Item* item : all) {
            if (isOpen(item) && LocalizedText::equalsCD(*item->uniqueId(), *rule->uniqueId()))
                m_library.deleteItem(item);
        }
    }
    m_library.announceRulesChangedLater();
}

} // namespace lullet
