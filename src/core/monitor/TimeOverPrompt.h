#pragma once

#include "core/monitor/PromptOutcome.h"

#include <QCoreApplication>
#include <QString>

namespace lullet {

class Item;
class RunningItem;

// The running item's time is over: is it finished, or does it need more time?
class TimeOverPrompt {
    Q_DECLARE_TR_FUNCTIONS(TimeOverPrompt)

public:
    TimeOverPrompt(RunningItem& running, Item* item);

    Item* item() const { return m_item; }

    // "Have you finished : <title> ?", or nothing without an item.
    static QString question(const Item* item);
    QString question() const { return question(m_item); }
    // Finishes the item and files it at this moment; the idle question may then ask at once
    // what the user is doing now.
    PromptOutcome finish();
    PromptOutcome moreTime(int minutes);

private:
    RunningItem& m_running;
    Item* m_item;
};

} // namespace lullet
