#include "core/app/AppController.h"

#include "core/app/DisplaySleepInhibitor.h"
#include "core/dates/Clock.h"
#include "core/model/Item.h"
#include "core/settings/Settings.h"

#include <QPointer>
#include <QTimer>

#include <cmath>

namespace lullet {

namespace {

constexpr int secondTick = 1000;
constexpr int minuteMargin = 20;

// The idle clock starts at the nearest whole minute: seconds 0 to 30 round down, 31 to 59 up.
Date nearestMinute(Date now)
{
    const int seconds = now.seconds();
    const Date rounded(std::floor(now.timeIntervalSince1970()) - seconds);
    return seconds > 30 ? rounded.dateByAddingMinutes(1) : rounded;
}

} // namespace

AppController::AppController(const Clock& clock, Settings& settings, const QString& storeFolder,
                             DisplaySleepInhibitor& inhibitor, SecretStore& secrets,
                             UserPresence* presence, Sync::PortFactory ports, QObject* parent)
    : QObject(parent)
    , m_clock(clock)
    , m_settings(settings)
    , m_inhibitor(inhibitor)
    , m_store(storeFolder, clock)
    , m_library(m_store)
    , m_schedule(settings, clock)
    , m_hours(m_schedule, clock.now())
    , m_texts(clock, m_schedule, m_hours)
    , m_generator(clock, m_library)
    , m_catalogue({clock, m_library, m_generator, m_schedule, m_hours, m_texts})
    , m_running(clock, m_library)
    , m_historyTotals(m_library, clock, m_running)
    , m_monitor({clock, settings, m_library, m_catalogue, m_hours, m_running, m_lock})
    , m_prompts(m_running)
    , m_pause(clock, settings)
    , m_hold({clock, settings, m_pause, presence, m_prompts, m_running})
    , m_itemActions(m_library, m_running, m_catalogue)
    , m_projectActions(clock, m_library)
    , m_postponing(clock, m_library)
    , m_backups({clock, settings, m_store, m_library, m_catalogue, m_running})
    , m_protection(settings, secrets, m_lock)
    , m_changeLog(clock, m_store)
    , m_sync({clock, settings, m_store, m_library, m_catalogue, m_running, secrets, m_changeLog},
             std::move(ports))
    , m_services{clock,         settings,         m_library,    m_schedule, m_hours,
                 m_texts,       m_generator,      m_catalogue,  m_running,  m_historyTotals,
                 m_lock,        m_monitor,        m_prompts,    m_pause,    m_hold,
                 m_itemActions, m_projectActions, m_postponing, m_backups,  m_protection,
                 m_sync}
{
    queueMonitorPrompts();
    // Before the minute's prompts are asked for: a pause over, the user back.
    connect(&m_monitor, &Monitor::minutePassed, &m_hold, &PromptHold::refresh);
    // The idle question the lock held back is asked as soon as the user is in.
    connect(&m_lock, &Lock::unlocked, &m_monitor, &Monitor::askWhatNow);
    // The monitor counts in a new period from now on, without a relaunch.
    connect(&m_settings, &Settings::changed, this, [this](const QString& key) {
        if (key == SettingsKeys::promptDuration)
            m_running.setPromptPeriod(m_settings.promptDuration());
    });
    connect(&m_backups, &Backups::restored, &m_sync, &Sync::storeReplaced);
}

AppController::~AppController() = default;

void AppController::queueMonitorPrompts()
{
    using Kind = PromptRequest::Kind;
    connect(&m_monitor, &Monitor::reminderDue, &m_prompts, [this](Item* item, Item* previous) {
        m_prompts.add({Kind::Reminder, item, previous, {}, false});
    });
    connect(&m_monitor, &Monitor::idleQuestionDue, &m_prompts, [this](Date since, bool now) {
        m_prompts.add({Kind::IdleQuestion, nullptr, nullptr, since, now});
    });
    connect(&m_monitor, &Monitor::timeOver, &m_prompts, [this](Item* item) {
        m_prompts.add({Kind::TimeOver, item, nullptr, {}, false});
    });
    connect(&m_monitor, &Monitor::toDoDue, &m_prompts, [this](Item* item) {
        m_prompts.add({Kind::ToDo, item, nullptr, {}, false});
    });
}

Store::Result AppController::open()
{
    m_settings.writeIdleQuestionSwitchIfAbsent();
    m_backups.pruneAtLaunch();
    Store::Result opened = m_store.open();
    if (opened.outcome != Store::Outcome::Opened)
        return opened;
    m_storeOpen = true;
    // Every change saved from now on waits to be synchronised.
    m_store.context().setSaveObserver(&m_changeLog);
    m_library.loadProjects();
    m_library.loadItems();
    m_catalogue.rebuild();
    m_running.stampPrompt(nearestMinute(m_clock.now()));
    m_running.setPromptPeriod(m_settings.promptDuration());
    if (m_settings.welcomeDone() && m_settings.passwordProtected())
        m_lock.lock();
    return opened;
}

void AppController::startMonitoring()
{
    QPointer<AppController> self(this);
    m_inhibitor.inhibit(tr("Reason for activity"), [self](std::optional<quint32> cookie) {
        if (self && cookie)
            self->m_inhibitCookie = cookie;
    });
    m_timer = std::make_unique<QTimer>();
    m_timer->setTimerType(Qt::PreciseTimer);
    connect(m_timer.get(), &QTimer::timeout, this, [this] {
        m_monitor.tick();
        armTimer();
    });
    connect(&m_running, &RunningItem::started, this, &AppController::armTimer);
    connect(&m_running, &RunningItem::finished, this, &AppController::armTimer);
    armTimer();
    // After the launch is done: the tray and the window come first.
    if (m_settings.automaticBackup())
        QTimer::singleShot(0, this, [this] { m_backups.createLaunchBackup(); });
    m_sync.start();
}

void AppController::armTimer()
{
    if (!m_timer)
        return;
    // A running item is timed second by second. With nothing running only the minute's work
    // remains, so the program sleeps until the next whole minute; the margin keeps the wakeup
    // inside second 0 rather than a hair before it (a wakeup early still lands in second 59,
    // and the next arming is then a few milliseconds long).
    if (m_running.item()) {
        if (m_timer->interval() != secondTick || !m_timer->isActive())
            m_timer->start(secondTick);
        return;
    }
    constexpr double minute = 60000;
    const double intoMinute = std::fmod(m_clock.now().timeIntervalSince1970() * 1000, minute);
    m_timer->start(int(minute - intoMinute) + minuteMargin);
}

std::chrono::milliseconds AppController::nextTickIn() const
{
    return std::chrono::milliseconds(isMonitoring() ? m_timer->remainingTime() : -1);
}

bool AppController::isMonitoring() const
{
    return m_timer && m_timer->isActive();
}

AppController::QuitReply AppController::prepareToQuit()
{
    if (Item* item = m_running.item())
        m_running.finish(*item, RunningItem::Finish::Quietly);
    if (!m_storeOpen)
        return QuitReply::Now;
    return m_library.saveQuietly() ? QuitReply::Now : QuitReply::SaveFailed;
}

void AppController::finishQuit()
{
    if (m_storeOpen)
        m_schedule.save();
    if (m_timer)
        m_timer->stop();
    if (m_inhibitCookie) {
        m_inhibitor.release(*m_inhibitCookie);
        m_inhibitCookie.reset();
    }
}

} // namespace lullet
