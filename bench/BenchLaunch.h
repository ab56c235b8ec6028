#pragma once

#include "StoreGenerator.h"
#include "core/dates/CalendarContext.h"
#include "support/Launched.h"

#include <QDir>
#include <QTemporaryDir>

namespace lullet::bench {

// The program's core over a generated store of 50,000 items, 100 rules and 50 projects,
// launched at a fixed moment with every window faked.
struct BenchLaunch {
    explicit BenchLaunch(Date now)
        : launched(generated(dir.path(), now), now)
    {
        launched.open();
    }

    static QString generated(const QString& dir, Date now)
    {
        const test::FakeClock clock(now);
        Store store(QDir(dir).filePath(QStringLiteral("data")), clock);
        store.open();
        generateStore(store, now, 50'000, 100, 50);
        return dir;
    }

    QTemporaryDir dir;
    test::Launched launched;
};

// The locale and zone every benchmark runs in.
inline void useBenchCalendar()
{
    CalendarContext::setLocale(QStringLiteral("en_US"));
    CalendarContext::setTimeZone(QStringLiteral("Europe/Berlin"));
}

} // namespace lullet::bench
