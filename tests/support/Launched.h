#pragma once

#include "core/activity/ProjectActions.h"
#include "core/activity/RunningItem.h"
#include "core/app/AppController.h"
#include "core/library/Library.h"
#include "core/model/RepeatCodes.h"
#include "core/settings/Settings.h"
#include "core/store/ObjectContext.h"
#include "support/FakeClock.h"
#include "support/FakeInhibitor.h"
#include "support/FakeSecretStore.h"
#include "support/PromptRecorder.h"
#include "support/TestCalendar.h"

#include <QCoreApplication>
#include <QDir>
#include <QStringList>

namespace lullet::test {

// The titles of items, in their order.
inline QStringList titlesOf(const std::vector<Item*>& items)
{
    QStringList titles;
    for (const Item* item : items)
        titles << item->title().value_or(QString());
    return titles;
}

// One launch of the program over a folder: the store and the settings file live in that folder,
// the clock is fake, and the prompts the monitor asks for are recorded instead of shown.
class Launched {
public:
    Launched(const QString& dir, Date now, Sync::PortFactory ports = {})
        : clock(now)
        , settings(QDir(dir).filePath(QStringLiteral("Lullet.conf")))
        , core(clock, settings, QDir(dir).filePath(QStringLiteral("data")), inhibitor, secrets,
               nullptr, std::move(ports))
        , prompts(core.services().monitor)
    {
    }

    // A launch with its desktop side is ended through this type as well.
    virtual ~Launched() = default;

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

    // A project, named as the user would name it.
    Project* addProject(const QString& name)
    {
        return services().projectActions.addProject(name).project;
    }

    // A custom rule, switched on, every `count` units from `anchor`; not yet in the catalogue.
    Rule* addRule(const QString& title, int unit, int count, Date anchor)
    {
        Rule* rule = library().newRule();
        rule->setUniqueId(title + QStringLiteral("_1795000000.5"));
        rule->setTitle(title);
        rule->setRepeatIntervalType(unit);
        rule->setRepeatInterval(count);
        rule->setRepeatOption(RepeatEnd::never);
        rule->setDtReminder(anchor);
        rule->setIsCustom(true);
        rule->setIsActive(true);
        return rule;
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
