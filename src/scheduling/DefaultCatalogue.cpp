#include "scheduling/DefaultCatalogue.h"

#include "core/app/AppDelegate.h"
#include "core/dates/Clock.h"
#include "core/notify/Notifications.h"
#include "core/store/ObjectContext.h"
#include "core/text/PatternMatcher.h"
#include "scheduling/LulletGenerator.h"
#include "scheduling/RepeatRules.h"
#include "scheduling/RepeatTypes.h"
#include "scheduling/ScheduleNotes.h"
#include "scheduling/WorkingHours.h"
#include "scheduling/funcGetData.h"

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

// The seconds-since-1970 text of a rule's id: the shortest exact decimal, with ".0" for a whole
// number, as a double prints itself.
QString secondsText(Date moment)
{
    QString text =
        QString::number(moment.timeIntervalSince1970(), 'f', QLocale::FloatingPointShortest);
    if (!text.contains(u'.'))
        text += QStringLiteral(".0");
    return text;
}

} // namespace

DefaultCatalogue::DefaultCatalogue(AppDelegate& app)
    : m_app(app)
{
}

CatalogueRowPtr DefaultCatalogue::headerRow(const QString& title)
{
    auto row = std::make_shared<CatalogueRow>();
    row->type = CatalogueRow::Header;
    row->title = title;
    return row;
}

CatalogueRowPtr DefaultCatalogue::suggestionRow(const CatalogueEntry& entry)
{
    auto row = std::make_shared<CatalogueRow>();
    row->type = CatalogueRow::Item;
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
    row->defaultRepeatType =
        entry.repeatType ? toInt(*entry.repeatType) : (isToDo ? ID_REPEAT_MIN : ID_REPEAT_DAY);
    row->defaultRepeatValue = entry.repeatValue ? toInt(*entry.repeatValue) : 1;
    row->isCustom = false;
    return row;
}

std::vector<CatalogueRowPtr> DefaultCatalogue::rowsOf(const RepeatReminderInfo* rule) const
{
    std::vector<CatalogueRowPtr> rows;
    if (!rule)
        return rows;
    for (const CatalogueRowPtr& row : mArrDefaultRepeats) {
        if (row->representedObject == rule)
            rows.push_back(row);
    }
    return rows;
}

void DefaultCatalogue::prepareDefaultRepeats()
{
    m_app.prepareAllRepeatData();
    const LulletGenerator::Batch batch(m_app.generator());
    const ScheduleNotes& notes = m_app.scheduleNotes();

    std::vector<CatalogueRowPtr> rows;
    QSet<const RepeatReminderInfo*> claimed;
    for (const QString& group : DefaultRepeatTypeNames::arrayTypes()) {
        rows.push_back(headerRow(group));
        for (const CatalogueEntry& entry : DefaultRepeatTypeNames::dictTypeToInfoMap(group)) {
            CatalogueRowPtr row = suggestionRow(entry);
            const PatternMatcher matcher(row->title);
            std::vector<RepeatReminderInfo*> matches;
            for (RepeatReminderInfo* rule : m_app.mArrAllRepeatingData) {
                if (rule->isCustom() != std::optional<bool>(true) && rule->title() &&
                    matcher.matches(*rule->title()))
                    matches.push_back(rule);
            }
            if (matches.size() == 1) {
                claimed.insert(matches.front());
                row->represent(matches.front());
                updateRepeatDictionary(*row);
            } else {
                row->represent(nullptr);
                row->notes2 = notes.getDefaultScheduleNotes(*row);
            }
            rows.push_back(row);
        }
    }

    bool headerAdded = false;
    for (RepeatReminderInfo* rule : m_app.mArrAllRepeatingData) {
        if (claimed.contains(rule))
            continue;
        if (!headerAdded) {
            rows.push_back(headerRow(customHeaderTitle()));
            headerAdded = true;
        }
        auto row = std::make_shared<CatalogueRow>();
        row->type = CatalogueRow::Item;
        row->isCustom = true;
        row->represent(rule);
        updateRepeatDictionary(*row);
        rows.push_back(row);
    }
    mArrDefaultRepeats = std::move(rows);
}

void DefaultCatalogue::updateRepeatDictionary(CatalogueRow& row)
{
    RepeatReminderInfo* rule = row.representedObject;
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
    const Date startOfToday = m_app.clock().now().dateAtStartOfDay();
    // A rule past its end shows as off; the rule itself is left as it is.
    if (active && rule->repeatOption() == std::optional<int>(1) && rule->dtRepeatUpto() &&
        rule->dtRepeatUpto()->isEarlierThanDate(startOfToday))
        active = false;
    row.isActive = active;

    if (!active) {
        row.nextRepeatOn.reset();
    } else {
        row.nextRepeatOn = RepeatRules::getNextRepeat(*rule, m_app.clock());
        if (row.nextRepeatOn)
            m_app.generator().makeReadyLullets(rule, row.nextRepeatOn, false);
    }
    row.notes2 = m_app.scheduleNotes().getScheduleNotes(rule);
    row.remindBefore = rule->remindBefore();
}

void DefaultCatalogue::resetDefaultNextRepeats()
{
    bool any = false;
    for (const CatalogueRowPtr& row : mArrDefaultRepeats) {
        if (row->isDummy()) {
            row->notes2 = m_app.scheduleNotes().getDefaultScheduleNotes(*row);
            any = true;
        }
    }
    if (any)
        m_app.postQueued(notification::onChangeInDefaultRepeats, true);
}

RepeatReminderInfo* DefaultCatalogue::implicitCreateDefaultRepeat(CatalogueRow& row)
{
    const Date now = m_app.clock().now();
    Date moment = now;
    const auto today = m_app.schedules().returnScheduleDataByType(now.weekday());
    if (today.size() == 1 && today.front()->startTime)
        moment = m_app.workingHours().returnTimeWithCurrentDate(*today.front()->startTime);
    const Date anchor = now.setTimeOfDate(moment.hour(), moment.minute(), moment.seconds());

    RepeatReminderInfo* rule = m_app.managedObjectContext().insertRepeatReminderInfo();
    rule->setUniqueId(row.title + u'_' + secondsText(now));
    rule->setTitle(row.title);
    rule->setNotes(row.notes);
    rule->setDurationHr(row.defaultDurationHr.value_or(0));
    rule->setDurationMin(row.defaultDurationMin.value_or(1));
    rule->setShouldRemind(true);
    rule->setRemindBefore(int(ID_ON_DAY));
    rule->setDtReminder(anchor);
    rule->setRepeatInterval(row.defaultRepeatValue.value_or(15));
    rule->setRepeatIntervalType(row.defaultRepeatType.value_or(ID_REPEAT_MIN));
    rule->setRepeatOption(0);
    rule->setDtRepeatUpto(moment);
    rule->setIsCustom(false);
    // Switched on directly, every suggestion is a to-do; only the edit form makes a timed one.
    rule->setIsToDoOrJob(true);
    rule->setIsActive(false);
    m_app.generator().addRepeatObject(rule);
    return rule;
}

} // namespace lullet
