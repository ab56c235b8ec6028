// Start-up and save costs of a large store, and the date operations used in loops.
#include "BenchClock.h"
#include "BenchLaunch.h"
#include "StoreGenerator.h"
#include "core/dates/CalendarContext.h"
#include "core/dates/Clock.h"
#include "core/store/ObjectContext.h"
#include "support/FakeClock.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

using namespace lullet;
using namespace lullet::bench;

using FixedClock = lullet::test::FakeClock;

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    CalendarContext::setLocale(QStringLiteral("en_US"));
    CalendarContext::setTimeZone(QStringLiteral("Europe/Berlin"));
    const Date now = Date::dateFromComponents(2026, 11, 23, 10, 15);
    FixedClock clock(now);
    QTemporaryDir dir;

    {
        Store store(dir.path(), clock);
        store.open();
        generateStore(store, now, benchItems(), 100, 50);
    }
    // With --keep FILE the generated store is copied out, for measuring the running program;
    // --items N makes it of N items.
    const QStringList args = QCoreApplication::arguments();
    if (const qsizetype at = args.indexOf(QStringLiteral("--keep"));
        at >= 0 && at + 1 < args.size()) {
        Store flushed(dir.path(), clock);
        flushed.open();
        flushed.db().exec("PRAGMA wal_checkpoint(TRUNCATE)");
        QFile::remove(args[at + 1]);
        QFile::copy(flushed.storePath(), args[at + 1]);
    }

    // Open and load: the folder, the file, the checks and the records a launch reads (the
    // history older than two weeks stays on disk).
    const double load = medianNanos(7, [&] {
        Store store(dir.path(), clock);
        store.open();
        std::vector<Item*> items = store.context().items();
        std::stable_sort(items.begin(), items.end(), [](const Item* a, const Item* b) {
            return a->effectiveDate().value_or(Date()) < b->effectiveDate().value_or(Date());
        });
    });
    std::printf("(a store of %d items)\n", benchItems());
    report("open the store, as a launch does (median)", load, 250e6);

    Store store(dir.path(), clock);
    store.open();
    Item* item = store.context().items()[1234];
    int n = 0;
    const double save = medianNanos(101, [&] {
        item->setElapsedTime(++n);
        store.context().save();
    });
    report("save of one changed record (median)", save, 5e6);

    constexpr int ops = 100'000;
    volatile double sink = 0;
    const Date base = now;
    const double addDays = medianNanos(9, [&] {
        for (int i = 0; i < ops; ++i)
            sink = sink + base.dateByAddingDays(i % 400).timeIntervalSince1970();
    });
    report("dateByAddingDays (median per call)", addDays / ops, 1000);
    const double isToday = medianNanos(9, [&] {
        for (int i = 0; i < ops; ++i)
            sink = sink + (Date(base.timeIntervalSince1970() + i * 61.0).isToday(clock) ? 1 : 0);
    });
    report("isToday (median per call)", isToday / ops, 1000);
    const double startOfDay = medianNanos(9, [&] {
        for (int i = 0; i < ops; ++i)
            sink = sink + Date(base.timeIntervalSince1970() + i * 61.0)
                              .dateAtStartOfDay()
                              .timeIntervalSince1970();
    });
    report("dateAtStartOfDay (median per call)", startOfDay / ops, 1000);
    return 0;
}
