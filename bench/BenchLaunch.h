#pragma once

#include "StoreGenerator.h"
#include "core/dates/CalendarContext.h"
#include "support/Launched.h"

#include <QCoreApplication>
#include <QDir>
#include <QStringList>
#include <QTemporaryDir>

namespace lullet::bench {

// How many items the generated store holds: `--items N` on the command line, 50,000 without.
inline int benchItems()
{
    const QStringList args = QCoreApplication::arguments();
    const qsizetype at = args.indexOf(QStringLiteral("--items"));
    const int asked = at >= 0 && at + 1 < args.size() ? args[at + 1].toInt() : 0;
    return asked > 0 ? asked : 50'000;
}

// The program's core over a generated store of 50,000 items (or --items N), 100 rules and 50
// projects, launched at a fixed moment with every window faked.
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
        generateStore(store, now, benchItems(), 100, 50);
        // As a store in use for years stands: its log written into the file.
        store.db().exec("PRAGMA wal_checkpoint(TRUNCATE)");
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
