#pragma once

#include "core/activity/RunningItem.h"
#include "core/library/Library.h"
#include "core/model/Item.h"

#include <QObject>
#include <QStringList>

namespace lullet::test {

// What the services told, in order: the event's name, and the item's title where it names one.
class Heard final : public QObject {
public:
    Heard(Library& library, RunningItem& running)
    {
        hear(&library, &Library::itemsChanged, "itemsChanged");
        hear(&library, &Library::itemPostponed, "postponed");
        hear(&library, &Library::itemRemoved, "removed");
        hear(&running, &RunningItem::started, "started");
        hear(&running, &RunningItem::finished, "finished");
        hear(&running, &RunningItem::extended, "extended");
        connect(&library, &Library::projectContentChanged, this,
                [this] { events << QStringLiteral("projectContentChanged"); });
    }

    QStringList events;

private:
    template <class Sender, class Signal> void hear(Sender* sender, Signal signal, const char* name)
    {
        connect(sender, signal, this, [this, name](Item* item) {
            events << (item ? QString::fromLatin1(name) + u':' + item->title().value_or(QString())
                            : QString::fromLatin1(name));
        });
    }
};

} // namespace lullet::test
