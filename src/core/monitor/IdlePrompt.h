#pragma once

#include "core/dates/Date.h"
#include "core/monitor/PromptOutcome.h"

#include <QCoreApplication>
#include <QString>

namespace lullet {

class Clock;
class Library;
class Project;
class RunningItem;

// What has the user been doing since the gap began (or, asked "now", what is the user doing)?
// The answer becomes an item that began when the gap began and is at once the running item,
// with the gap already counted as run; or, answered as already done, an item finished at once.
// A question left unanswered hands its start on to the next question, which then covers the
// whole gap.
class IdlePrompt {
    Q_DECLARE_TR_FUNCTIONS(IdlePrompt)

public:
    // Takes over the start of a gap that an earlier question left unanswered.
    IdlePrompt(const Clock& clock, Library& library, RunningItem& running, Date since, bool askNow);

    static QString blankMessage() { return tr(" Task name is blank! Please enter task name. "); }
    // The first entry of the project menu, which means no project.
    static QString noProjectChoice() { return tr("Today"); }

    Date gapStart() const { return m_since; }
    bool asksNow() const { return m_askNow; }
    // "(10:00 - 10:25)" and "What were you doing for last 25 minutes ?", or, asked now,
    // "(10:25)" and "What are you doing now ?".
    QString rangeText() const;
    QString questionText() const;

    // Another question came while this one is open: it goes on counting, in the mode given.
    void extend(bool askNow);

    // The answer, in the project or in none. A blank answer changes nothing and stays.
    PromptOutcome answer(const QString& text, Project* project, bool alreadyDone);
    // The question goes away unanswered: the next one takes over its gap.
    void leaveUnanswered();
    // The user put the question off: it comes back, over the whole gap, one prompt period from
    // now rather than at the next minute that finds the period over.
    void putOff();

private:
    const Clock& m_clock;
    Library& m_library;
    RunningItem& m_running;
    Date m_since;
    bool m_askNow;
    // When the question was last asked in the "now" mode.
    Date m_askedAt;
    bool m_answered = false;
};

} // namespace lullet
