#include "scheduling/LulletGenerator.h"

#include "core/app/AppDelegate.h"
#include "core/dates/Clock.h"
#include "core/notify/Notifications.h"
#include "core/store/ObjectContext.h"
#include "core/text/PatternMatcher.h"
#include "scheduling/CatalogueRow.h"
#include "scheduling/DefaultCatalogue.h"
#include "scheduling/RepeatRules.h"
#include "scheduling/RepeatTypes.h"

#include <algorithm>

namespace lullet {

namespace {

// Open: not finished (an explicit false: no value doesn't count) and dated.
bool isOpen(const ReminderInfo* item)
{
    return item->hasContext() && item->hasFinished() == std::optional<bool>(false) &&
           item->dtReminder().has_value() && item->uniqueId().has_value();
}

bool inWindow(const ReminderInfo* item, Date from, Date to)
{
    const Date due = *item->dtReminder();
    return due >= from && due <= to;
}

bool isCustomRule(const RepeatReminderInfo* rule)
{
    return rule->isCustom() == std::optional<bool>(true);
}

} // namespace

LulletGenerator::LulletGenerator(AppDelegate& app)
    : m_app(app)
{
}

LulletGenerator::Batch::Batch(LulletGenerator& generator)
    : m_generator(generator)
{
    if (m_generator.m_batchDepth++ > 0)
        return;
    m_generator.m_openById.clear();
    for (ReminderInfo* item : m_generator.m_app.mArrAllLullets) {
        if (isOpen(item))
            m_generator.m_openById[*item->uniqueId()].push_back(item);
    }
}

LulletGenerator::Batch::~Batch()
{
    if (--m_generator.m_batchDepth == 0)
        m_generator.m_openById.clear();
}

bool LulletGenerator::standsInTheWay(const QString& uniqueId,
                                     const std::optional<Window>& window) const
{
    const PatternMatcher matcher(uniqueId);
    if (!matcher.isValid())
        return false;
    const auto qualifies = [&](const ReminderInfo* item) {
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
    for (const ReminderInfo* item : m_app.mArrAllLullets) {
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

ReminderInfo* LulletGenerator::makeOccurrence(const RepeatReminderInfo& rule, Date date)
{
    ReminderInfo* item = m_app.managedObjectContext().insertReminderInfo();
    item->setUniqueId(rule.uniqueId());
    item->setTitle(rule.title());
    item->setNotes(rule.notes().value_or(QString()));
    item->setDtReminder(date);
    if (rule.isToDoOrJob().value_or(true)) {
        item->setRepeatOption(RepeatOptionsToDo::TODO_VAL);
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

void LulletGenerator::makeReadyLullets(RepeatReminderInfo* rule, std::optional<Date> date,
                                       bool withCheckDateTime)
{
    // A rule without its id or title can't be tied to occurrences: it is skipped.
    if (!rule || !rule->uniqueId() || !rule->title())
        return;
    if (!date || !date->isLaterThanDate(m_app.clock().now()))
        return;

    std::optional<Window> window;
    if (withCheckDateTime) {
        if (!RepeatRules::hasUsableStep(*rule))
            return;
        Date from =
            RepeatRules::stepBack(*date, *rule->repeatIntervalType(), *rule->repeatInterval());
        // The occurrence exactly one step back doesn't count.
        if (from.isEarlierThanDate(*date))
            from = from.dateByAddingSeconds(10);
        window = Window{from, *date};
    }
    if (standsInTheWay(*rule->uniqueId(), window))
        return;

    ReminderInfo* item = makeOccurrence(*rule, *date);
    if (m_batchDepth > 0)
        m_openById[*item->uniqueId()].push_back(item);
    m_app.saveAction();
    m_app.addLulletObject(item);
    m_app.postQueued(notification::onItemAddedOrEdited, QVariant::fromValue(item));
}

void LulletGenerator::createNextLullet(ReminderInfo* occurrence, Date basedOnDate)
{
    if (!occurrence || !occurrence->uniqueId() || occurrence->uniqueId()->isEmpty())
        return;
    const PatternMatcher matcher(*occurrence->uniqueId());
    std::vector<RepeatReminderInfo*> rules;
    for (RepeatReminderInfo* rule : m_app.mArrAllRepeatingData) {
        if (rule->uniqueId() && matcher.matches(*rule->uniqueId()))
            rules.push_back(rule);
    }
    if (rules.size() != 1)
        return;
    RepeatReminderInfo* rule = rules.front();
    // Stored data with no usable step makes nothing rather than repeat a date.
    if (!RepeatRules::hasUsableStep(*rule))
        return;
    const std::vector<CatalogueRowPtr> rows = m_app.catalogue().rowsOf(rule);
    if (rows.size() != 1)
        return;

    const Date now = m_app.clock().now();
    const std::optional<Date> next = basedOnDate.isEarlierThanDate(now)
                                         ? RepeatRules::getNextRepeat(*rule, m_app.clock())
                                         : RepeatRules::singleShiftNextRepeat(*rule, basedOnDate);
    if (!next)
        return;
    if (rule->repeatOption() == std::optional<int>(1) && rule->dtRepeatUpto() &&
        rule->dtRepeatUpto()->isEarlierThanDate(*next))
        return;
    rows.front()->nextRepeatOn = next;
    makeReadyLullets(rule, next, true);
}

void LulletGenerator::removeAssociatedLullets(RepeatReminderInfo* rule)
{
    if (!rule)
        return;
    if (rule->uniqueId()) {
        const PatternMatcher matcher(*rule->uniqueId());
        const std::vector<ReminderInfo*> all = m_app.getAllLulletLists();
        for (ReminderInfo* item : all) {
            if (isOpen(item) && matcher.matches(*item->uniqueId())) {
                m_app.managedObjectContext().deleteObject(item);
                m_app.removeLulletObject(item);
            }
        }
    }
    m_app.postQueued(notification::onRepeatItemAddedOrEdited);
}

void LulletGenerator::addRepeatObject(RepeatReminderInfo* rule)
{
    if (!rule)
        return;
    auto& rules = m_app.mArrAllRepeatingData;
    const bool hadCustom = std::any_of(rules.begin(), rules.end(), isCustomRule);
    if (std::find(rules.begin(), rules.end(), rule) == rules.end())
        rules.push_back(rule);

    DefaultCatalogue& catalogue = m_app.catalogue();
    auto& rows = catalogue.mArrDefaultRepeats;
    if (isCustomRule(rule)) {
        const std::vector<CatalogueRowPtr> own = catalogue.rowsOf(rule);
        if (own.size() == 1) {
            own.front()->represent(rule);
            catalogue.updateRepeatDictionary(*own.front());
            return;
        }
        if (!hadCustom)
            rows.push_back(DefaultCatalogue::headerRow(DefaultCatalogue::customHeaderTitle()));
        auto row = std::make_shared<CatalogueRow>();
        row->type = CatalogueRow::Item;
        row->isCustom = true;
        row->represent(rule);
        rows.push_back(row);
        catalogue.updateRepeatDictionary(*row);
        return;
    }
    if (!rule->title())
        return;
    const PatternMatcher matcher(*rule->title());
    std::vector<CatalogueRowPtr> matches;
    for (const CatalogueRowPtr& row : rows) {
        if (row->type == CatalogueRow::Item && matcher.matches(row->title))
            matches.push_back(row);
    }
    if (matches.size() == 1) {
        matches.front()->represent(rule);
        catalogue.updateRepeatDictionary(*matches.front());
    }
}

bool LulletGenerator::removeRepeatingObject(RepeatReminderInfo* rule)
{
    removeAssociatedLullets(rule);
    auto& rules = m_app.mArrAllRepeatingData;
    rules.erase(std::remove(rules.begin(), rules.end(), rule), rules.end());
    const bool noCustomLeft = std::none_of(rules.begin(), rules.end(), isCustomRule);

    DefaultCatalogue& catalogue = m_app.catalogue();
    auto& rows = catalogue.mArrDefaultRepeats;
    const std::vector<CatalogueRowPtr> own = catalogue.rowsOf(rule);
    if (own.size() == 1) {
        rows.erase(std::remove(rows.begin(), rows.end(), own.front()), rows.end());
        // The last row is then the "Custom breaks" header, with nothing under it.
        if (noCustomLeft && rows.size() > 1 && rows.back()->type == CatalogueRow::Header &&
            rows.back()->title == DefaultCatalogue::customHeaderTitle())
            rows.pop_back();
    }
    return noCustomLeft;
}

} // namespace lullet
