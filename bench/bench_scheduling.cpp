// The next date of long-lived minute rules, and the launch pass over rules and a large store.
#include "BenchClock.h"
#include "BenchLaunch.h"
#include "core/dates/CalendarContext.h"
#include "core/dates/Clock.h"
#include "core/model/RepeatCodes.h"
#include "core/scheduling/Catalogue.h"
#include "core/scheduling/RepeatRules.h"
#include "core/settings/Settings.h"
#include "core/store/Store.h"
#include "support/FakeClock.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>

using namespace lullet;
using namespace lullet::bench;

using FixedClock = lullet::test::FakeClock;

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    useBenchCalendar();
    const Date now = Date::dateFromComponents(2026, 11, 23, 10, 15, 7);
    FixedClock clock(now);

    Rule rule;
    rule.setDtReminder(now.dateBySubtractingMonths(60).dateByAddingSeconds(13));
    rule.setRepeatIntervalType(RepeatUnit::Minute);
    rule.setRepeatInterval(20);
    volatile double sink = 0;
    const double direct = medianNanos(
        2001, [&] { sink = sink + RepeatRules::nextDate(rule, clock)->timeIntervalSince1970(); });
    report("nextDate, 20-minute rule from 5 years ago", direct, 5000);
    const double walked = medianNanos(21, [&] {
        sink = sink + RepeatRules::walkToNextDate(rule, clock)->timeIntervalSince1970();
    });
    std::printf("%-48s %10.3f ms   (the walk: %.0f times slower)\n", "  the same by walking",
                walked / 1e6, walked / direct);

    BenchLaunch launch(now);
    Catalogue& catalogue = launch.launched.services().catalogue;
    // Every round after the first finds each rule's occurrence in place, as a relaunch does.
    const double prepare = medianNanos(21, [&] { catalogue.rebuild(); });
    report("rebuild, 100 rules, 50,000 items", prepare, 20e6);
    return 0;
}
