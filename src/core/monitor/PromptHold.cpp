#include "core/monitor/PromptHold.h"

#include "core/activity/RunningItem.h"
#include "core/dates/Clock.h"
#include "core/model/Item.h"
#include "core/model/RepeatCodes.h"
#include "core/monitor/PromptQueue.h"
#include "core/monitor/ReminderPause.h"
#include "core/monitor/UserPresence.h"
#include "core/settings/Settings.h"

#include <vector>

namespace lullet {

PromptHold::PromptHold(const Services& services, QObject* parent)
    : QObject(parent)
    , m_services(services)
{
    connect(&m_services.pause, &ReminderPause::changed, this, &PromptHold::update);
    if (m_services.presence)
        connect(m_services.presence, &UserPresence::changed, this, &PromptHold::update);
    connect(&m_services.settings, &Settings::changed, this, &PromptHold::update);
    update();
}

void PromptHold::refresh()
{
    m_services.pause.endIfOver();
    if (m_services.presence)
        m_services.presence->refresh();
    update();
}

bool PromptHold::isAway()
{
    const Date now = m_services.clock.now();
    const std::optional<qint64> idle =
        m_services.presence ? m_services.presence->idleMilliseconds() : std::nullopt;
    const qint64 threshold = qint64(std::max(1, m_services.settings.awayMinutes())) * 60000;
    if (idle && *idle >= threshold) {
        if (!m_awaySince)
            m_awaySince = Date(now.timeIntervalSince1970() - double(*idle) / 1000.0);
        return true;
    }
    if (const std::optional<Date> since = std::exchange(m_awaySince, std::nullopt)) {
        const Date back = idle ? Date(now.timeIntervalSince1970() - double(*idle) / 1000.0) : now;
        if (m_services.settings.naturalBreaks())
            takeNaturalBreaks(*since, back);
    }
    return false;
}

PromptHold::Reason PromptHold::currentReason()
{
    const UserPresence* presence = m_services.presence;
    // Away is looked at first, so that its end is noticed whatever else holds the prompts.
    const bool away = isAway();
    if (m_services.pause.isPaused())
        return Reason::Paused;
    if (presence && presence->isLocked())
        return Reason::Locked;
    if (away)
        return Reason::Away;
    if (presence && m_services.settings.holdWhileFullScreen() &&
        presence->isOtherProgramFullScreen())
        return Reason::FullScreen;
    if (presence && presence->notificationsInhibited())
        return Reason::DoNotDisturb;
    return Reason::None;
}

void PromptHold::update()
{
    const Reason reason = currentReason();
    m_services.queue.setHeld(reason != Reason::None);
    if (reason == m_reason)
        return;
    m_reason = reason;
    Q_EMIT changed();
}

void PromptHold::takeNaturalBreaks(Date awaySince, Date back)
{
    const double absence = back.timeIntervalSince1970() - awaySince.timeIntervalSince1970();
    std::vector<Item*> taken;
    for (const PromptRequest& request : m_services.queue.waiting()) {
        Item* item = request.item;
        if (request.kind != PromptRequest::Kind::Reminder || !item || !item->hasContext())
            continue;
        // A break is an occurrence of a rule; the user's own tasks are asked about.
        const std::optional<Date> due = item->effectiveDate();
        const bool isBreak = item->uniqueId() && *item->uniqueId() != placeholderId();
        const int length = item->plannedSeconds();
        if (isBreak && due && *due >= awaySince && *due <= back && length > 0 && length <= absence)
            taken.push_back(item);
    }
    for (Item* item : taken)
        m_services.running.finish(*item, RunningItem::Finish::TakenWhileAway);
}

} // namespace lullet
