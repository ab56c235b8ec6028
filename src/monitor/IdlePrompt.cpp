#include "monitor/IdlePrompt.h"

#include "core/app/AppDelegate.h"
#include "core/app/ProjectChoices.h"
#include "core/app/PromptHost.h"
#include "core/dates/Clock.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "core/store/ObjectContext.h"
#include "monitor/Monitor.h"
#include "scheduling/RepeatTypes.h"

namespace lullet {

namespace {

QString shortTime(Date d)
{
    return d.toString(DateStyle::none, DateStyle::shortStyle);
}

} // namespace

IdlePrompt::IdlePrompt(AppDelegate& app, Date since, bool autoPromptMode)
    : dtIdleTimeSince(since)
    , bIsAutoPrompt(autoPromptMode)
    , dtTimePromptedOn(app.clock().now())
    , m_app(app)
{
    // An earlier question that went unanswered began the gap.
    if (m_app.dtLastUnrepliedTime) {
        dtIdleTimeSince = *m_app.dtLastUnrepliedTime;
        m_app.dtLastUnrepliedTime.reset();
    }
}

IdlePrompt::~IdlePrompt()
{
    if (bIsDone)
        m_app.dtLastUnrepliedTime.reset();
    else
        m_app.dtLastUnrepliedTime = dtIdleTimeSince;
}

QStringList IdlePrompt::projectChoices() const
{
    return ProjectChoices::choices(m_app, QStringLiteral("Today"));
}

int IdlePrompt::selectedProjectIndex() const
{
    return ProjectChoices::selectedIndex(m_app, projectChoices());
}

QString IdlePrompt::rangeText() const
{
    const Date now = m_app.clock().now();
    if (bIsAutoPrompt)
        return QStringLiteral("(") + shortTime(now) + QStringLiteral(")");
    return QStringLiteral("(") + shortTime(dtIdleTimeSince) + QStringLiteral(" - ") +
           shortTime(now) + QStringLiteral(")");
}

QString IdlePrompt::questionText() const
{
    if (bIsAutoPrompt)
        return QStringLiteral("What are you doing now ?");
    const qint64 minutes = m_app.clock().now().minutesAfterDate(dtIdleTimeSince);
    return QStringLiteral("What were you doing for last %1 minutes ?").arg(minutes);
}

void IdlePrompt::onIdleTimeExtended(bool autoPromptMode)
{
    bIsAutoPrompt = autoPromptMode;
    if (bIsAutoPrompt)
        dtTimePromptedOn = m_app.clock().now();
    intExtraIdleTime += m_app.intNoTaskDuration;
}

IdlePrompt::Result IdlePrompt::onDone(const QString& text, const QString& projectChoice,
                                      bool alreadyDone)
{
    QString title = text.trimmed();
    if (title.isEmpty())
        return Result::Blank;
    bIsDone = true;
    title[0] = title[0].toUpper();
    const Date now = m_app.clock().now();

    ReminderInfo* item = m_app.managedObjectContext().insertReminderInfo();
    item->setUniqueId(QStringLiteral("<to make>"));
    item->setTitle(title);
    item->setDurationHr(0);
    item->setDurationMin(0);
    item->setRemindBefore(int(ID_ON_DAY));
    item->setShouldRemind(false);
    item->setDtReminder(dtIdleTimeSince);
    item->setRepeatInterval(0);
    item->setRepeatIntervalType(0);
    item->setRepeatOption(0);
    item->setDtRepeatUpto(now);
    item->setNotes(QString());
    item->setHasStarted(true);
    m_app.addLulletObject(item);

    // The first choice, "Today", is no project; a project gone meanwhile leaves none.
    if (Project* project = ProjectChoices::chosen(m_app, projectChoices(), projectChoice)) {
        item->setToProject(project);
        m_app.notifCenter().post(notification::onProjectContentChanged,
                                 QVariant::fromValue(project));
    }

    m_app.objReminderRunningNow = item;
    // An answer in the automatic mode counts from the moment of asking, any other from the start
    // of the gap.
    const Date from = bIsAutoPrompt ? dtTimePromptedOn : dtIdleTimeSince;
    item->setElapsedTime(int(now.secondsAfterDate(from)));
    const int period = m_app.intNoTaskDuration;
    const int sincePrompt = int(now.minutesAfterDate(dtTimePromptedOn));
    item->setTimeLimitExtendedBy(period > sincePrompt ? 60 * period : 60 * (period + sincePrompt));
    m_app.saveAction();
    m_app.notifCenter().post(notification::onQuickAddFromPrompt);
    m_app.dtLastAnyALertOn = dtTimePromptedOn;

    if (alreadyDone) {
        item->setHasStarted(false);
        m_app.objReminderRunningNow = nullptr;
        m_app.dtLastAnyALertOn = now;
        item->setHasFinished(true);
        m_app.saveAction();
        m_app.notifCenter().post(notification::onReminderFinished, QVariant::fromValue(item));
    }
    m_app.notifCenter().post(notification::onItemAddedOrEdited);

    if (m_app.objReminderRunningNow) {
        m_app.host().closePopover();
    } else {
        m_app.host().closePopoverImmediate();
        m_app.monitor().doPromptExternally();
    }
    return Result::Accepted;
}

} // namespace lullet
