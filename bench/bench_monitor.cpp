// The one-second tick and the minute pass of the monitor over a large store.
#include "BenchClock.h"
#include "BenchLaunch.h"
#include "core/app/AppDelegate.h"
#include "core/dates/CalendarContext.h"
#include "core/notify/NotificationCenter.h"
#include "core/settings/SettingsKeys.h"
#include "core/settings/UserDefaults.h"
#include "core/store/StoreStack.h"
#include "monitor/Monitor.h"
#include "support/FakeClock.h"
#include "support/RecordingHost.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

using namespace lullet;
using namespace lullet::bench;

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    useBenchCalendar();
    const Date now = Date::dateFromComponents(2026, 11, 23, 10, 15, 0);

    BenchLaunch launch(now);
    launch.defaults.set(SettingsKeys::isShowFirst, 1);
    AppDelegate& delegate = launch.delegate;
    test::FakeClock& clock = launch.clock;
    Monitor& monitor = delegate.monitor();

    // A tick between minutes, with an unlimited item running: its clock advances and the
    // period is checked.
    ReminderInfo* running = delegate.mArrAllLullets.front();
    running->setTimeLimit(0);
    running->setElapsedTime(0);
    delegate.objReminderRunningNow = running;
    clock.set(now.dateByAddingSeconds(1));
    const double tick = medianNanos(10001, [&] { monitor.doMonitorTime(); });
    report("tick (not at second 0)", tick, 20000);

    delegate.objReminderRunningNow = nullptr;
    clock.set(now);
    const double pass = medianNanos(101, [&] {
        monitor.onDoMonitoring();
        QCoreApplication::processEvents();
    });
    report("minute pass over 50,000 items", pass, 2e6);
    return 0;
}
