#pragma once

#include "core/activity/RunningItem.h"
#include "core/app/AppController.h"
#include "core/library/Library.h"
#include "core/settings/Settings.h"
#include "core/store/ObjectContext.h"
#include "support/FakeClock.h"
#include "support/FakeInhibitor.h"
#include "support/FakeSecretStore.h"
#include "support/PromptRecorder.h"

#include <QCoreApplication>
#include <QDir>

namespace lullet::test {

inline Date at(int y, int mo, int d, int h = 0, int mi = 0, int s = 0)
{
    return Date::dateFromComponents(y, mo, d, h, mi, s);
}

// One launch of the program over a folder: the store and the settings file live in that folder,
// the clock is fake, and the prompts the monitor asks for are recorded instead of shown.
class Launched {
public:
    Launched(const QString& dir, Date now, Sync::PortFactory ports = {})
        : clock(now)
        , settings(QDir(dir).filePath(QStringLiteral("Lullet.conf")))
        , core(clock, settings, QDir(dir).filePath(QStringLiteral("data")), inhibitor, secrets,
               std::move(ports))
        , prompts(core.services().monitor)
    {
    }

    // Opens the store as a launch does, after the welcome unless told otherwise.
    bool open(bool welcomeDone = true)
    {
        if (welcomeDone)
            settings.setWelcomeDone();
        return core.open().outcome == Store::Outcome::Opened;
    }

    const Services& services() const { return core.services(); }
    Library& library() const { return services().library; }
    ObjectContext& context() const { return library().context(); }
    RunningItem& running() const { return services().running; }
    Monitor& monitor() const { return services().monitor; }

    // A plain task, listed.
    Item* addItem(const QString& title, std::optional<Date> due)
    {
        Item* item = library().newItem();
        item->setTitle(title);
        item->setDtReminder(due);
        library().addItem(item);
        return item;
    }

    // Moves the clock one second at a time, ticking each, until `until`.
    void runUntil(Date until)
    {
        while (clock.now() < until) {
            clock.advance(1);
            monitor().tick();
            QCoreApplication::processEvents();
        }
    }

    FakeClock clock;
    Settings settings;
    FakeInhibitor inhibitor;
    FakeSecretStore secrets;
    AppController core;
    PromptRecorder prompts;
};

} // namespace lullet::test
