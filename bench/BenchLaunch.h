#pragma once

#include "StoreGenerator.h"
#include "core/app/AppDelegate.h"
#include "core/dates/CalendarContext.h"
#include "core/notify/NotificationCenter.h"
#include "core/settings/UserDefaults.h"
#include "core/store/StoreStack.h"
#include "support/FakeClock.h"
#include "support/RecordingHost.h"

#include <QDir>
#include <QTemporaryDir>

namespace lullet::bench {

// The program's controller over a generated store of 50,000 items, 100 rules and 50 projects,
// launched at a fixed moment with every window faked.
struct BenchLaunch {
    explicit BenchLaunch(Date now)
        : clock(now)
        , defaults(QDir(dir.path()).filePath(QStringLiteral("Lullet.conf")))
        , store(generated(QDir(dir.path()).filePath(QStringLiteral("data")), clock), clock)
        , delegate({clock, defaults, center, store, host, inhibitor})
    {
        delegate.awakeFromNib();
    }

    static QString generated(const QString& folder, const Clock& clock)
    {
        StoreStack store(folder, clock);
        store.build();
        generateStore(store, clock.now(), 50'000, 100, 50);
        return folder;
    }

    QTemporaryDir dir;
    test::FakeClock clock;
    UserDefaults defaults;
    NotificationCenter center;
    StoreStack store;
    test::RecordingHost host;
    test::FakeInhibitor inhibitor;
    AppDelegate delegate;
};

// The locale and zone every benchmark runs in.
inline void useBenchCalendar()
{
    CalendarContext::setLocale(QStringLiteral("en_US"));
    CalendarContext::setTimeZone(QStringLiteral("Europe/Berlin"));
}

} // namespace lullet::bench
