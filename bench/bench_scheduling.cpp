// The next date of long-lived minute rules and of rules anchored far in the past, and the launch
// pass over rules and a large store.
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
#include <vector>

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

    // A damaged store may anchor rules thousands of years back; a launch asks each for its next
    // date twice (its row and its text).
    std::vector<Rule> ancient(100);
    for (std::size_t i = 0; i < ancient.size(); ++i) {
        ancient[i].setDtReminder(Date::dateFromComponents(-1000, 1 + int(i % 12), 1 + int(i % 31),
                                                          int(i % 24), int(i % 60)));
        ancient[i].setRepeatInterval(1 + int(i % 3));
    }
    const auto everyRule = [&](int unit, auto next) {
        for (Rule& r : ancient) {
            r.setRepeatIntervalType(unit);
            sink = sink + next(r, clock)->timeIntervalSince1970();
        }
    };
    const double monthly =
        medianNanos(21, [&] { everyRule(RepeatUnit::Month, RepeatRules::nextDate); });
    report("nextDate, 100 monthly rules from 1001 BC", monthly, 1e6);
    const double crawled =
        medianNanos(1, [&] { everyRule(RepeatUnit::Month, RepeatRules::walkToNextDate); });
    std::printf("%-48s %10.3f ms   (the walk: %.0f times slower)\n", "  the same by walking",
                crawled / 1e6, crawled / monthly);
    // A day step stops at each of the zone's changes of offset since the anchor: about 140 in
    // Berlin since 1893, against some 1.1 million steps of the walk.
    const double daily =
        medianNanos(21, [&] { everyRule(RepeatUnit::Day, RepeatRules::nextDate); });
    report("nextDate, 100 daily rules from 1001 BC", daily, 40e6);

    BenchLaunch launch(now);
    Catalogue& catalogue = launch.launched.services().catalogue;
    // Every round after the first finds each rule's occurrence in place, as a relaunch does.
    const double prepare = medianNanos(21, [&] { catalogue.rebuild(); });
    report("rebuild, 100 rules, 50,000 items", prepare, 20e6);
    return 0;
}
