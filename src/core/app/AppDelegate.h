#pragma once

#include "core/dates/Date.h"
#include "core/model/Project.h"
#include "core/model/ReminderInfo.h"
#include "core/model/RepeatReminderInfo.h"

#include <QObject>
#include <QString>
#include <QVariant>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QTimer;

namespace lullet {

class Clock;
class DefaultCatalogue;
class DisplaySleepInhibitor;
class LulletGenerator;
class Monitor;
class ScheduleNotes;
class WorkingHours;
class funcGetData;
class NotificationCenter;
class ObjectContext;
class PromptHost;
class StoreStack;
class UserDefaults;

// The one application object: it owns the shared lists of records, the running item and the
// one-second timer, and runs the start and the stop of the program in their fixed order. Every
// view reaches shared state through it. Main thread only.
class AppDelegate final : public QObject {
    Q_OBJECT
public:
    enum class TerminateReply { TerminateNow, TerminateCancel };

    struct Services {
        const Clock& clock;
        UserDefaults& defaults;
        NotificationCenter& notifCenter;
        StoreStack& store;
        PromptHost& host;
        DisplaySleepInhibitor& inhibitor;
    };

    explicit AppDelegate(const Services& services, QObject* parent = nullptr);
    ~AppDelegate() override;

    // Start, in this order. awakeFromNib answers false when the store could not be built: the
    // program must then end without showing anything.
    bool awakeFromNib();
    void applicationWillFinishLaunching();
    void applicationDidFinishLaunching();
    void applicationDidBecomeActive();
    void applicationDidResignActive();
    // A second activation: brings the main window forward; the answer is always false.
    bool applicationShouldHandleReopen();
    // Stop, in this order.
    TerminateReply applicationShouldTerminate();
    void applicationWillTerminate();

    // The one save of every change; failures are presented and the changes kept for the next.
    void saveAction();
    ObjectContext& managedObjectContext();

    // True when the item has a planned duration.
    static bool haveDuration(const ReminderInfo& item);
    static bool haveDuration(const RepeatReminderInfo& rule);

    // Shared lists
    void prepareAllProjectLists();
    void prepareAllLulletLists();
    void prepareAllRepeatData();
    const std::vector<ReminderInfo*>& getAllLulletLists() const { return mArrAllLullets; }
    const std::vector<Project*>& getAllProjectsLists() const { return mArrAllProjects; }
    // Open items first, earliest first; then finished ones, latest first.
    void reSortLulletObjects();
    void addLulletObject(ReminderInfo* item);
    void removeLulletObject(ReminderInfo* item);
    void addProjectObject(Project* project);
    void removeProjectObject(Project* project);

    // Synchronisation: the store is about to change under the context, or changes were
    // imported. merge applies the imported changes to the context.
    void storesWillChange();
    void importedUbiquitousContentChanges(const std::function<void(ObjectContext&)>& merge);

    // The one-second tick of the monitor timer.
    void doMonitorTime();

    // Posts after the caller's work is done, as listeners of list changes expect.
    void postQueued(QLatin1String name, const QVariant& object = {});

    // Scheduling: the working schedule, rules and their occurrences, the catalogue.
    funcGetData& schedules() { return *m_schedules; }
    WorkingHours& workingHours() { return *m_workingHours; }
    ScheduleNotes& scheduleNotes() { return *m_scheduleNotes; }
    LulletGenerator& generator() { return *m_generator; }
    DefaultCatalogue& catalogue() { return *m_catalogue; }
    Monitor& monitor() { return *m_monitor; }

    const Clock& clock() const { return m_clock; }
    UserDefaults& defaults() { return m_defaults; }
    NotificationCenter& notifCenter() { return m_notifCenter; }
    PromptHost& host() { return m_host; }
    bool isMonitorTimerRunning() const;

    // Shared state, read and written by the parts of the program.
    std::vector<ReminderInfo*> mArrAllLullets;
    std::vector<Project*> mArrAllProjects;
    std::vector<RepeatReminderInfo*> mArrAllRepeatingData;
    int intNoTaskDuration = 1;
    bool isPasswordProtected = false;
    bool isLogin = true;
    bool isFirstTimeOpened = true;
    bool isPasswordPanelShowing = false;
    ReminderInfo* objReminderRunningNow = nullptr;
    QString strSegmentSelectedNow = QStringLiteral("Today");
    Project* objProjectSelectedNow = nullptr;
    // The launch time, written once: the working-hours test takes its weekday and day from it.
    const Date fetchedDate;
    const Date cDate;
    std::optional<quint32> assertionIDInHold;
    // The last prompt of any kind, or the last event that counts as one: the clock of idle
    // detection.
    std::optional<Date> dtLastAnyALertOn;
    // The start of the gap of an idle question that went unanswered, handed on to the next one.
    std::optional<Date> dtLastUnrepliedTime;
    bool bIsCoreDataCorrupted = false;

private:
    void post(QLatin1String name, const QVariant& object = {});

    const Clock& m_clock;
    UserDefaults& m_defaults;
    NotificationCenter& m_notifCenter;
    StoreStack& m_store;
    PromptHost& m_host;
    DisplaySleepInhibitor& m_inhibitor;
    std::unique_ptr<QTimer> monitorTime;
    std::unique_ptr<funcGetData> m_schedules;
    std::unique_ptr<WorkingHours> m_workingHours;
    std::unique_ptr<ScheduleNotes> m_scheduleNotes;
    std::unique_ptr<LulletGenerator> m_generator;
    std::unique_ptr<DefaultCatalogue> m_catalogue;
    std::unique_ptr<Monitor> m_monitor;
};

} // namespace lullet
