#include "monitor/TodoPrompt.h"

#include "core/app/AppDelegate.h"
#include "core/app/PromptHost.h"
#include "core/dates/Clock.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "scheduling/LulletGenerator.h"

namespace lullet {

TodoPrompt::TodoPrompt(AppDelegate& app, ReminderInfo* item)
    : objLullet(item)
    , m_app(app)
{
}

QString TodoPrompt::text() const
{
    if (!objLullet)
        return {};
    return QStringLiteral("Time for : ") + objLullet->title().value_or(QString()) +
           QStringLiteral(". Done ?");
}

void TodoPrompt::onDone()
{
    if (ReminderInfo* item = objLullet) {
        // The next occurrence follows the date it was due, so a late answer doesn't shift the
        // series; the occurrence itself is filed at the moment of confirming.
        const std::optional<Date> due = item->effectiveDate();
        const Date now = m_app.clock().now();
        item->setHasFinished(true);
        item->setDtReminder(now);
        item->setDtReminderPostponed(now);
        m_app.saveAction();
        m_app.reSortLulletObjects();
        m_app.notifCenter().post(notification::onReminderFinished, QVariant::fromValue(item));
        if (due)
            m_app.generator().createNextLullet(item, *due);
    }
    m_app.host().closePopover();
}

void TodoPrompt::onCancel()
{
    m_app.host().closePopover();
}

} // namespace lullet
