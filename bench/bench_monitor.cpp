// The one-second tick and the minute pass of the monitor over a large store.
#include "BenchClock.h"
#include "BenchLaunch.h"
#include "core/monitor/Monitor.h"

#include <QCoreApplication>

using namespace lullet;
using namespace lullet::bench;

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    useBenchCalendar();
    const Date now = Date::dateFromComponents(2026, 11, 23, 10, 15, 0);

    BenchLaunch launch(now);
    const Services& services = launch.launched.services();
    test::FakeClock& clock = launch.launched.clock;
    Monitor& monitor = services.monitor;

    // A tick between minutes, with an unlimited item running: its clock advances and the
    // period is checked.
    Item* running = services.library.items().front();
    services.running.start(*running);
    running->setTimeLimit(0);
    clock.set(now.dateByAddingSeconds(1));
    const double tick = medianNanos(10001, [&] { monitor.tick(); });
    report("tick (not at second 0)", tick, 20000);

    services.running.finish(*running, RunningItem::Finish::Quietly);
    clock.set(now);
    const double pass = medianNanos(101, [&] {
        monitor.tick();
        QCoreApplication::processEvents();
    });
    report("minute pass over 50,000 items", pass, 2e6);
    return 0;
}
