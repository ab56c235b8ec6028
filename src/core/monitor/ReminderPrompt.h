#pragma once

#include "core/monitor/PromptOutcome.h"

#include <QCoreApplication>
#include <QString>

namespace lullet {

class Item;
class Postponing;
class RunningItem;

// A scheduled item is due: start it, delay it, or, where another item still runs, say that the
// other one is finished or needs more time. This is where an item becomes the running one.
class ReminderPrompt {
    Q_DECLARE_TR_FUNCTIONS(ReminderPrompt)

public:
    ReminderPrompt(Postponing& postponing, RunningItem& running, Item* due, Item* previous);

    Item* due() const { return m_due; }
    Item* previous() const { return m_previous; }

    // "Time for : <title>, at :<time>", or "None" without a due item.
    QString reminderText() const;
    // "Have you finished : <title> ?", or nothing without a running item.
    QString previousText() const;

    // The due item runs from now, on its own day at the present time of day. Nothing is saved.
    PromptOutcome start();
    // Delays by 10 minutes without saving (the delay reaches the disk with the next save), or by
    // 30 minutes and saves.
    PromptOutcome postpone10();
    PromptOutcome postpone30();
    // The running item is finished, and the due one starts at once.
    PromptOutcome finishPrevious();
    // The running item gets more time and the due item moves that much later.
    PromptOutcome moreTime(int minutes);

private:
    Postponing& m_postponing;
    RunningItem& m_running;
    Item* m_due;
    Item* m_previous;
};

} // namespace lullet
