#pragma once

#include "core/app/AppDelegate.h"
#include "core/notify/NotificationCenter.h"
#include "core/settings/UserDefaults.h"
#include "core/store/StoreStack.h"
#include "support/FakeClock.h"
#include "support/RecordingHost.h"

#include <QDir>

namespace lullet::test {

// One launch of the program over a folder, with every service faked but the store and the
// settings file, which live in that folder.
struct TestLaunch {
    TestLaunch(const QString& dir, Date now)
        : clock(now)
        , defaults(QDir(dir).filePath(QStringLiteral("Lullet.conf")))
        , store(QDir(dir).filePath(QStringLiteral("data")), clock)
        , delegate({clock, defaults, center, store, host, inhibitor})
    {
    }

    FakeClock clock;
    UserDefaults defaults;
    NotificationCenter center;
    StoreStack store;
    RecordingHost host;
    FakeInhibitor inhibitor;
    AppDelegate delegate;
};

inline Date at(int y, int mo, int d, int h = 0, int mi = 0, int s = 0)
{
    return Date::dateFromComponents(y, mo, d, h, mi, s);
}

} // namespace lullet::test
