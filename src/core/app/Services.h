#pragma once

namespace lullet {

class Backups;
class Catalogue;
class Clock;
class Generator;
class HistoryTotals;
class ItemActions;
class Library;
class Lock;
class Monitor;
class Postponing;
class PromptHold;
class PromptQueue;
class ReminderPause;
class ProjectActions;
class Protection;
class RunningItem;
class ScheduleTexts;
class Settings;
class Sync;
class WorkingHours;
class WorkingSchedule;

// The core services, for the views that use them. References only: every piece of state belongs
// to the service that owns it.
struct Services {
    const Clock& clock;
    Settings& settings;
    Library& library;
    WorkingSchedule& schedule;
    const WorkingHours& hours;
    const ScheduleTexts& texts;
    Generator& generator;
    Catalogue& catalogue;
    RunningItem& running;
    // What the history on disk adds to the counts, read once and shared.
    HistoryTotals& history;
    Lock& lock;
    Monitor& monitor;
    PromptQueue& prompts;
    ReminderPause& pause;
    PromptHold& hold;
    ItemActions& itemActions;
    ProjectActions& projectActions;
    Postponing& postponing;
    Backups& backups;
    Protection& protection;
    Sync& sync;
};

} // namespace lullet
