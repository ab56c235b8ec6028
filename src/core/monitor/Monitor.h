#pragma once

#include "core/dates/Date.h"

#include <QObject>

#include <optional>

namespace lullet {

class Catalogue;
class Clock;
class Item;
class Library;
class Lock;
class RunningItem;
class Settings;
class WorkingHours;

// The monitor loop. Each second it advances the running item's clock and decides whether that
// item's time is over; at second 0 of each minute it refreshes the rules, looks for items due in
// that very minute and decides whether the user has gone too long with nothing running. It only
// decides: the prompts it asks for are signals, told after the current work is done, which the
// shell answers with its windows.
//
// Three clocks are at work: the running item's elapsedTime counts ticks, not wall time; the
// running item's idle clock (the moment of the last prompt) is the only measure of idle time;
// the prompt period is in minutes.
class Monitor final : public QObject {
    Q_OBJECT
public:
    struct Services {
        const Clock& clock;
        Settings& settings;
        Library& library;
        Catalogue& catalogue;
        const WorkingHours& hours;
        RunningItem& running;
        const Lock& lock;
    };
    explicit Monitor(const Services& services, QObject* parent = nullptr);

    // One tick of the one-second timer.
    void tick();
    // Asks what the user is doing now, unless the welcome, the switch, the lock or the working
    // hours say not to. It doesn't look for a running item: callers that care do.
    void askWhatNow();

Q_SIGNALS:
    // A tick went by without a prompt.
    void ticked();
    // The minute pass is done: texts that depend on the minute may be refreshed.
    void minutePassed();
    // The prompts. `previous` is the item still running when a reminder falls due.
    void reminderDue(lullet::Item* item, lullet::Item* previous);
    // Nothing ran since `since`: what was the user doing? With `now`, what is the user doing now?
    void idleQuestionDue(lullet::Date since, bool now);
    void timeOver(lullet::Item* item);
    void toDoDue(lullet::Item* item);

private:
    // Does its work only when the present second is 0, with no catch-up for a minute whose
    // second 0 no tick saw.
    void minutePass();
    // Raises every item due in this minute; answers whether one was a reminder, which ends the
    // pass.
    bool raiseDueItems(Date now);
    bool idleQuestionsAllowed() const;
    void later(std::function<void()> emitter);

    Services m_services;
    qint64 m_lastMinutePassed = -1;
};

} // namespace lullet
