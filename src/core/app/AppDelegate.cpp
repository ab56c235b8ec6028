#include "core/app/AppDelegate.h"

#include "core/app/DisplaySleepInhibitor.h"
#include "core/app/PromptHost.h"
#include "core/dates/Clock.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "core/settings/SettingsKeys.h"
#include "core/settings/UserDefaults.h"
#include "core/store/ObjectContext.h"
#include "core/store/StoreStack.h"
#include "core/text/LocalizedText.h"
#include "monitor/Monitor.h"
#include "scheduling/DefaultCatalogue.h"
#include "scheduling/LulletGenerator.h"
#include "scheduling/ScheduleNotes.h"
#include "scheduling/WorkingHours.h"
#include "scheduling/funcGetData.h"

#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace lullet {

namespace {

// Unfinished (no value or false) before finished; within each, dated items by date and undated
// items after them. Dates that are equal keep their order, which the stable sort preserves, so
// this is a strict weak ordering with the outcome of the inclusive comparisons for distinct
// dates.
bool lulletBefore(const ReminderInfo* a, const ReminderInfo* b)
{
    const bool aDone = a->hasFinished().value_or(false);
    const bool bDone = b->hasFinished().value_or(false);
    if (aDone != bDone)
        return !aDone;
    const std::optional<Date> da = a->effectiveDate();
    const std::optional<Date> db = b->effectiveDate();
    if (!da || !db)
        return da.has_value() && !db.has_value();
    return aDone ? *db < *da : *da < *db;
}

void sortProjects(std::vector<Project*>& projects)
{
    std::stable_sort(projects.begin(), projects.end(), [](const Project* a, const Project* b) {
        return LocalizedText::compare(a->name().value_or(QString()),
                                      b->name().value_or(QString())) < 0;
    });
}

} // namespace

AppDelegate::AppDelegate(const Services& services, QObject* parent)
    : QObject(parent)
    , fetchedDate(services.clock.now())
    , cDate(services.clock.now())
    , m_clock(services.clock)
    , m_defaults(services.defaults)
    , m_notifCenter(services.notifCenter)
    , m_store(services.store)
    , m_host(services.host)
    , m_inhibitor(services.inhibitor)
    , m_schedules(std::make_unique<funcGetData>(m_defaults, m_clock))
    , m_workingHours(std::make_unique<WorkingHours>(*m_schedules, fetchedDate, cDate))
    , m_scheduleNotes(std::make_unique<ScheduleNotes>(m_clock, *m_schedules, *m_workingHours))
    , m_generator(std::make_unique<LulletGenerator>(*this))
    , m_catalogue(std::make_unique<DefaultCatalogue>(*this))
    , m_monitor(std::make_unique<Monitor>(*this, m_host))
{
}

AppDelegate::~AppDelegate() = default;

bool AppDelegate::awakeFromNib()
{
    m_defaults.registerDefaults({
        {SettingsKeys::isShowFirst, 0},
        {SettingsKeys::openAtLogIn, 0},
        {SettingsKeys::isRating, 1},
        {SettingsKeys::remindMe, 2},
        {SettingsKeys::promptDuration, 15},
        {SettingsKeys::automaticBackup, true},
        {SettingsKeys::backupOption, 1},
    });
    if (!m_defaults.hasValue(SettingsKeys::disableAutoPrompt))
        m_defaults.set(SettingsKeys::disableAutoPrompt, 0);

    const StoreStack::Result built = m_store.build();
    if (built.outcome != StoreStack::Outcome::Opened) {
        bIsCoreDataCorrupted = true;
        std::fprintf(stderr, "Lullet: %s\n", qPrintable(built.message));
        return false;
    }

    prepareAllProjectLists();
    prepareAllLulletLists();
    m_catalogue->prepareDefaultRepeats();
    m_host.openStatusMenu();

    // The idle clock starts at the nearest whole minute: seconds 0 to 30 round down, 31 to 59 up.
    const Date now = m_clock.now();
    const int seconds = now.seconds();
    Date rounded(std::floor(now.timeIntervalSince1970()) - seconds);
    if (seconds > 30)
        rounded = rounded.dateByAddingMinutes(1);
    dtLastAnyALertOn = rounded;

    intNoTaskDuration = m_defaults.integer(SettingsKeys::promptDuration);
    return true;
}

void AppDelegate::applicationWillFinishLaunching()
{
    const bool welcomeDone = m_defaults.hasValue(SettingsKeys::isShowFirst) &&
                             m_defaults.boolean(SettingsKeys::isShowFirst);
    if (welcomeDone) {
        const QVariantMap password = m_defaults.dictionary(SettingsKeys::passwordValues);
        if (password.value(SettingsKeys::isPassword).toBool())
            isLogin = false;
    }
    m_host.prepareMainWindow(welcomeDone, !isLogin);

    // The idle question meets the user right after the window appears.
    QPointer<AppDelegate> self(this);
    m_host.bringMainWindowForward([self] {
        if (self && !self->objReminderRunningNow)
            self->m_monitor->doPromptExternally();
    });
}

void AppDelegate::applicationDidFinishLaunching()
{
    QPointer<AppDelegate> self(this);
    m_inhibitor.inhibit(QStringLiteral("Reason for activity"),
                        [self](std::optional<quint32> cookie) {
                            if (self && cookie)
                                self->assertionIDInHold = cookie;
                        });

    monitorTime = std::make_unique<QTimer>();
    monitorTime->setTimerType(Qt::PreciseTimer);
    monitorTime->setInterval(1000);
    connect(monitorTime.get(), &QTimer::timeout, this, &AppDelegate::doMonitorTime);
    monitorTime->start();
}

void AppDelegate::applicationDidBecomeActive()
{
    post(notification::onApplicationBecomeActive);
}

void AppDelegate::applicationDidResignActive()
{
    post(notification::onApplicationResignActive);
}

bool AppDelegate::applicationShouldHandleReopen()
{
    m_host.bringMainWindowForward({});
    return false;
}

AppDelegate::TerminateReply AppDelegate::applicationShouldTerminate()
{
    // Quitting finishes the running item, whatever its time; nothing more is recorded of it.
    if (objReminderRunningNow) {
        objReminderRunningNow->setHasStarted(false);
        objReminderRunningNow->setHasFinished(true);
        objReminderRunningNow = nullptr;
    }
    if (bIsCoreDataCorrupted)
        return TerminateReply::TerminateNow;
    ObjectContext& context = managedObjectContext();
    if (!context.hasChanges())
        return TerminateReply::TerminateNow;
    if (context.save())
        return TerminateReply::TerminateNow;
    const bool quit = m_host.askQuitAnyway(
        QStringLiteral("Could not save changes while quitting. Quit anyway?"),
        QStringLiteral("Quitting now will lose any changes you have made since the last "
                       "successful save"));
    return quit ? TerminateReply::TerminateNow : TerminateReply::TerminateCancel;
}

void AppDelegate::applicationWillTerminate()
{
    m_schedules->saveSchedules();
    if (monitorTime)
        monitorTime->stop();
    if (assertionIDInHold) {
        m_inhibitor.release(*assertionIDInHold);
        assertionIDInHold.reset();
    }
}

void AppDelegate::saveAction()
{
    ObjectContext& context = managedObjectContext();
    if (context.hasChanges() && !context.save())
        m_host.presentError(context.errorMessage());
}

ObjectContext& AppDelegate::managedObjectContext()
{
    return m_store.context();
}

bool AppDelegate::haveDuration(const ReminderInfo& item)
{
    return item.durationHr().value_or(0) > 0 || item.durationMin().value_or(0) > 0;
}

bool AppDelegate::haveDuration(const RepeatReminderInfo& rule)
{
    return rule.durationHr().value_or(0) > 0 || rule.durationMin().value_or(0) > 0;
}

void AppDelegate::prepareAllProjectLists()
{
    mArrAllProjects = managedObjectContext().projects();
    sortProjects(mArrAllProjects);
}

void AppDelegate::prepareAllLulletLists()
{
    mArrAllLullets = managedObjectContext().reminderInfos();
    reSortLulletObjects();
}

void AppDelegate::prepareAllRepeatData()
{
    mArrAllRepeatingData = managedObjectContext().repeatReminderInfos();
}

void AppDelegate::reSortLulletObjects()
{
    std::stable_sort(mArrAllLullets.begin(), mArrAllLullets.end(), lulletBefore);
}

void AppDelegate::addLulletObject(ReminderInfo* item)
{
    if (std::find(mArrAllLullets.begin(), mArrAllLullets.end(), item) == mArrAllLullets.end())
        mArrAllLullets.push_back(item);
    reSortLulletObjects();
}

void AppDelegate::removeLulletObject(ReminderInfo* item)
{
    mArrAllLullets.erase(std::remove(mArrAllLullets.begin(), mArrAllLullets.end(), item),
                         mArrAllLullets.end());
    if (item && item == objReminderRunningNow) {
        objReminderRunningNow = nullptr;
        dtLastAnyALertOn = m_clock.now();
    }
}

void AppDelegate::addProjectObject(Project* project)
{
    if (std::find(mArrAllProjects.begin(), mArrAllProjects.end(), project) == mArrAllProjects.end())
        mArrAllProjects.push_back(project);
    sortProjects(mArrAllProjects);
    postQueued(notification::onProjectAddedOrRemoved);
}

void AppDelegate::removeProjectObject(Project* project)
{
    mArrAllProjects.erase(std::remove(mArrAllProjects.begin(), mArrAllProjects.end(), project),
                          mArrAllProjects.end());
    if (project) {
        for (ReminderInfo* item : std::vector<ReminderInfo*>(project->toReminders()))
            removeLulletObject(item);
    }
    if (project && project == objProjectSelectedNow)
        objProjectSelectedNow = nullptr;
    postQueued(notification::onProjectAddedOrRemoved);
}

void AppDelegate::storesWillChange()
{
    ObjectContext& context = managedObjectContext();
    if (context.hasChanges() && !context.save()) {
        std::fprintf(stderr, "\nSave error: %s\n", qPrintable(context.errorMessage()));
        return;
    }
    context.reset();
}

void AppDelegate::importedUbiquitousContentChanges(const std::function<void(ObjectContext&)>& merge)
{
    const std::optional<QString> selectedName =
        objProjectSelectedNow ? objProjectSelectedNow->name() : std::nullopt;
    merge(managedObjectContext());
    if (objProjectSelectedNow && !objProjectSelectedNow->hasContext())
        objProjectSelectedNow = nullptr;
    // A running item deleted on another machine stops running here.
    if (objReminderRunningNow && !objReminderRunningNow->hasContext())
        objReminderRunningNow = nullptr;
    prepareAllProjectLists();
    prepareAllLulletLists();
    m_catalogue->prepareDefaultRepeats();
    post(notification::onSynciCloud, selectedName ? QVariant(*selectedName) : QVariant());
}

void AppDelegate::doMonitorTime()
{
    m_monitor->doMonitorTime();
}

bool AppDelegate::isMonitorTimerRunning() const
{
    return monitorTime && monitorTime->isActive();
}

void AppDelegate::post(QLatin1String name, const QVariant& object)
{
    m_notifCenter.post(name, object);
}

// Reaches the observers after the caller's work is done, as the lists expect.
void AppDelegate::postQueued(QLatin1String name, const QVariant& object)
{
    QPointer<NotificationCenter> center(&m_notifCenter);
    QMetaObject::invokeMethod(
        this,
        [center, name, object] {
            if (center)
                center->post(name, object);
        },
        Qt::QueuedConnection);
}

} // namespace lullet
