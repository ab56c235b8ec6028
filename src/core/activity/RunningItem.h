#pragma once

#include "core/dates/Date.h"

#include <QObject>

#include <optional>

namespace lullet {

class Clock;
class Item;
class Library;

// The one item that runs, and the idle clock. At most one item runs at a time; it counts its
// seconds with the monitor's ticks. Every change of the running state is told here, once, by
// started, extended or finished, whoever made it: nobody announces it a second time.
// The idle clock is the moment of the last prompt, or of the last event that counts as one: the
// time with nothing running is simply now minus that moment. The prompt period, in minutes, is
// both the idle question's and the running prompt's period of an item without a limit. Main
// thread only.
class RunningItem final : public QObject {
    Q_OBJECT
public:
    RunningItem(const Clock& clock, Library& library, QObject* parent = nullptr);

    Item* item() const { return m_item; }
    bool isRunning(const Item* item) const { return item && item == m_item; }

    std::optional<Date> lastPromptAt() const { return m_lastPromptAt; }
    void stampPrompt(Date at) { m_lastPromptAt = at; }
    void stampPromptNow();
    int promptPeriod() const { return m_promptPeriod; }
    void setPromptPeriod(int minutes) { m_promptPeriod = minutes; }

    // The start of an idle gap whose question went unanswered, waiting for the next question.
    std::optional<Date> unansweredGapStart() const { return m_unansweredGapStart; }
    void setUnansweredGapStart(std::optional<Date> start) { m_unansweredGapStart = start; }

    enum class Start {
        // From now: the item keeps its own day, takes the present time of day, gets its planned
        // length as its limit and starts counting from 0.
        Now,
        // An item the caller has already set up, such as an idle answer, whose gap counts as run.
        AsRecorded,
    };
    // Makes the item the running one. Nothing is saved.
    void start(Item& item, Start how = Start::Now);
    // One more second for the running item; answers its seconds run so far (0 when none runs).
    int countSecond();

    enum class Finish {
        // Stopping is finishing: the item keeps its dates; the idle clock starts again.
        Stop,
        // As Stop, and the item is filed at this moment (both its dates become now).
        FileNow,
        // A to-do confirmed: filed at this moment, and no event for the idle clock.
        ToDoDone,
        // Quitting: the item is simply done; nothing else is recorded and nothing saved.
        Quietly,
        // A break that fell due while the user was away, for at least its length: taken as
        // planned, at its own time; no event for the idle clock, which asks about the absence.
        TakenWhileAway,
    };
    void finish(Item& item, Finish how = Finish::Stop);

    // More time for a running item: a limited item's limit grows (and its planned length with
    // it, where it has one); an item without a limit is asked about again after that many
    // minutes. Saved.
    void extend(Item& item, int minutes);

    // The record is gone (the store was replaced, or the item left the list): nothing runs, and
    // nothing is written to it.
    void forget();

Q_SIGNALS:
    void started(lullet::Item* item);
    void finished(lullet::Item* item);
    void extended(lullet::Item* item);

private:
    void onItemRemoved(Item* item);

    const Clock& m_clock;
    Library& m_library;
    Item* m_item = nullptr;
    std::optional<Date> m_lastPromptAt;
    std::optional<Date> m_unansweredGapStart;
    int m_promptPeriod = 1;
};

} // namespace lullet
