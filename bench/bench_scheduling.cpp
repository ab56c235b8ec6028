// The next date of long-lived minute rules, and the launch pass over rules and a large store.
#include "BenchClock.h"
#include "BenchLaunch.h"
#include "core/app/AppDelegate.h"
#include "core/dates/CalendarContext.h"
#include "core/dates/Clock.h"
#include "core/notify/NotificationCenter.h"
#include "core/settings/UserDefaults.h"
#include "core/store/StoreStack.h"
#include "scheduling/DefaultCatalogue.h"
#include "scheduling/RepeatRules.h"
#include "scheduling/RepeatTypes.h"
#include "support/FakeClock.h"
#include "support/RecordingHost.h"

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

    RepeatReminderInfo rule;
    rule.setDtReminder(now.dateBySubtractingMonths(60).dateByAddingSeconds(13));
    rule.setRepeatIntervalType(ID_REPEAT_MIN);
    rule.setRepeatInterval(20);
    volatile double sink = 0;
    const double direct = medianNanos(2001, [&] {
        sink = sink + RepeatRules::getNextRepeat(rule, clock)->timeIntervalSince1970();
    });
    report("getNextRepeat, 20-minute rule from 5 years ago", direct, 5000);
    const double walked = medianNanos(21, [&] {
        sink = sink + RepeatRules::walkToNextRepeat(rule, clock)->timeIntervalSince1970();
    });
    std::printf("%-48s %10.3f ms   (the walk: %.0f times slower)\n", "  the same by walking",
                walked / 1e6, walked / direct);

    BenchLaunch launch(now);
    AppDelegate& delegate = launch.delegate;
    // Every round after the first finds each rule's occurrence in place, as a relaunch does.
    const double prepare = medianNanos(21, [&] { delegate.catalogue().prepareDefaultRepeats(); });
    report("prepareDefaultRepeats, 100 rules, 50,000 items", prepare, 20e6);
    return 0;
}
