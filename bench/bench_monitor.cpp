// The one-second tick and the minute pass of the monitor over a large store.
#include "BenchClock.h"
#include "StoreGenerator.h"
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
    CalendarContext::setLocale(QStringLiteral("en_US"));
    CalendarContext::setTimeZone(QStringLiteral("Europe/Berlin"));
    const Date now = Date::dateFromComponents(2026, 11, 23, 10, 15, 0);
    test::FakeClock clock(now);

    QTemporaryDir dir;
    const QString folder = QDir(dir.path()).filePath(QStringLiteral("data"));
    {
        StoreStack store(folder, clock);
        store.build();
        generateStore(store, now, 50'000, 100, 50);
    }
    UserDefaults defaults(QDir(dir.path()).filePath(QStringLiteral("Lullet.conf")));
    defaults.set(SettingsKeys::isShowFirst, 1);
    NotificationCenter center;
    StoreStack store(folder, clock);
    test::RecordingHost host;
    test::FakeInhibitor inhibitor;
    AppDelegate delegate({clock, defaults, center, store, host, inhibitor});
    delegate.awakeFromNib();
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
