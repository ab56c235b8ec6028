#pragma once

#include "core/activity/ItemActions.h"
#include "core/activity/Postponing.h"
#include "core/activity/ProjectActions.h"
#include "core/activity/RunningItem.h"
#include "core/app/Services.h"
#include "core/backup/Backups.h"
#include "core/library/Library.h"
#include "core/monitor/Monitor.h"
#include "core/monitor/PromptHold.h"
#include "core/monitor/PromptQueue.h"
#include "core/monitor/ReminderPause.h"
#include "core/presentation/HistoryTotals.h"
#include "core/scheduling/Catalogue.h"
#include "core/scheduling/Generator.h"
#include "core/scheduling/ScheduleTexts.h"
#include "core/scheduling/WorkingHours.h"
#include "core/scheduling/WorkingSchedule.h"
#include "core/security/Lock.h"
#include "core/security/Protection.h"
#include "core/store/Store.h"
#include "core/sync/ChangeLog.h"
#include "core/sync/Sync.h"

#include <QObject>

#include <chrono>
#include <memory>
#include <optional>

class QTimer;

namespace lullet {

class Clock;
class DisplaySleepInhibitor;
class Settings;
class UserPresence;

// The composition root of the core: it builds the services in their order, owns the monitor's
// timer and the display-sleep inhibit, and runs the start and the stop of the program.
class AppController final : public QObject {
    Q_OBJECT
public:
    // `presence`: the desktop's word on the user (locked, away, ...); none where there is no
    // desktop to ask. Without `ports`, the program has no network and never syncs.
    AppController(const Clock& clock, Settings& settings, const QString& storeFolder,
                  DisplaySleepInhibitor& inhibitor, SecretStore& secrets,
                  UserPresence* presence = nullptr, Sync::PortFactory ports = {},
                  QObject* parent = nullptr);
    ~AppController() override;

    const Services& services() const { return m_services; }

    // Old listed backups go first. Then the store is opened and every record loaded; every
    // active rule gets its occurrence. The idle clock starts at the nearest whole minute, and a
    // protected program starts locked. A store that cannot be used ends the launch: the result
    // says why.
    Store::Result open();
    // The loop begins: the display is kept awake and the monitor ticks each second while an item
    // runs, and at each whole minute while none does. The launch's backup follows, when
    // "automaticBackup" is on, and the first sync, when sync is on.
    void startMonitoring();
    bool isMonitoring() const;
    // How long until the monitor's next tick; negative when it does not tick.
    std::chrono::milliseconds nextTickIn() const;

    enum class QuitReply { Now, SaveFailed };
    // Quitting finishes the running item, whatever its time, and saves. When the save fails the
    // caller asks whether to quit anyway.
    QuitReply prepareToQuit();
    // The last of the run: the schedule is written, the timer stops, the display may sleep.
    void finishQuit();

private:
    void armTimer();
    void queueMonitorPrompts();

    const Clock& m_clock;
    Settings& m_settings;
    DisplaySleepInhibitor& m_inhibitor;
    Store m_store;
    Library m_library;
    WorkingSchedule m_schedule;
    WorkingHours m_hours;
    ScheduleTexts m_texts;
    Generator m_generator;
    Catalogue m_catalogue;
    RunningItem m_running;
    HistoryTotals m_historyTotals;
    Lock m_lock;
    Monitor m_monitor;
    PromptQueue m_prompts;
    ReminderPause m_pause;
    PromptHold m_hold;
    ItemActions m_itemActions;
    ProjectActions m_projectActions;
    Postponing m_postponing;
    Backups m_backups;
    Protection m_protection;
    ChangeLog m_changeLog;
    Sync m_sync;
    Services m_services;
    std::unique_ptr<QTimer> m_timer;
    std::optional<quint32> m_inhibitCookie;
    bool m_storeOpen = false;
};

} // namespace lullet
