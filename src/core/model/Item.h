#pragma once

#include "core/dates/Date.h"
#include "core/model/Project.h"
#include "core/model/Record.h"
#include "core/model/RepeatCodes.h"

#include <QString>

namespace lullet {

// One scheduled occurrence: a task, an occurrence of a rule, a to-do, or the record of an idle
// gap. Its effective date is dtReminderPostponed when set, else dtReminder.
class Item final : public Record {
public:
    Entity entity() const override { return Entity::Item; }

    // "<to make>" for an item of no rule, else the id of the rule that made it.
    const std::optional<QString>& uniqueId() const { return m_uniqueId; }
    void setUniqueId(std::optional<QString> v) { assign(m_uniqueId, std::move(v)); }
    const std::optional<QString>& title() const { return m_title; }
    void setTitle(std::optional<QString> v) { assign(m_title, std::move(v)); }
    const std::optional<QString>& notes() const { return m_notes; }
    void setNotes(std::optional<QString> v) { assign(m_notes, std::move(v)); }
    const std::optional<int>& durationHr() const { return m_durationHr; }
    void setDurationHr(std::optional<int> v) { assign(m_durationHr, v); }
    // Both durations zero: no planned duration.
    const std::optional<int>& durationMin() const { return m_durationMin; }
    void setDurationMin(std::optional<int> v) { assign(m_durationMin, v); }
    const std::optional<bool>& shouldRemind() const { return m_shouldRemind; }
    void setShouldRemind(std::optional<bool> v) { assign(m_shouldRemind, v); }
    // Days of advance notice.
    const std::optional<int>& remindBefore() const { return m_remindBefore; }
    void setRemindBefore(std::optional<int> v) { assign(m_remindBefore, v); }
    // No date: an anytime item.
    const std::optional<Date>& dtReminder() const { return m_dtReminder; }
    void setDtReminder(std::optional<Date> v) { assign(m_dtReminder, v); }
    // The effective date when set.
    const std::optional<Date>& dtReminderPostponed() const { return m_dtReminderPostponed; }
    void setDtReminderPostponed(std::optional<Date> v) { assign(m_dtReminderPostponed, v); }
    const std::optional<int>& repeatInterval() const { return m_repeatInterval; }
    void setRepeatInterval(std::optional<int> v) { assign(m_repeatInterval, v); }
    const std::optional<int>& repeatIntervalType() const { return m_repeatIntervalType; }
    void setRepeatIntervalType(std::optional<int> v) { assign(m_repeatIntervalType, v); }
    // -5 marks a to-do.
    const std::optional<int>& repeatOption() const { return m_repeatOption; }
    void setRepeatOption(std::optional<int> v) { assign(m_repeatOption, v); }
    const std::optional<Date>& dtRepeatUpto() const { return m_dtRepeatUpto; }
    void setDtRepeatUpto(std::optional<Date> v) { assign(m_dtRepeatUpto, v); }
    const std::optional<bool>& hasStarted() const { return m_hasStarted; }
    void setHasStarted(std::optional<bool> v) { assign(m_hasStarted, v); }
    const std::optional<bool>& hasFinished() const { return m_hasFinished; }
    void setHasFinished(std::optional<bool> v) { assign(m_hasFinished, v); }
    // Seconds; zero or less is an unlimited item.
    const std::optional<int>& timeLimit() const { return m_timeLimit; }
    void setTimeLimit(std::optional<int> v) { assign(m_timeLimit, v); }
    // Seconds run so far.
    const std::optional<int>& elapsedTime() const { return m_elapsedTime; }
    void setElapsedTime(std::optional<int> v) { assign(m_elapsedTime, v); }
    // Seconds; on an unlimited item the chosen prompt period.
    const std::optional<int>& timeLimitExtendedBy() const { return m_timeLimitExtendedBy; }
    void setTimeLimitExtendedBy(std::optional<int> v) { assign(m_timeLimitExtendedBy, v); }
    // elapsedTime at the last extension of an unlimited item.
    const std::optional<int>& runningTimeCovered() const { return m_runningTimeCovered; }
    void setRunningTimeCovered(std::optional<int> v) { assign(m_runningTimeCovered, v); }

    // A missing boolean reads as false.
    bool isStarted() const { return m_hasStarted.value_or(false); }
    bool isFinished() const { return m_hasFinished.value_or(false); }
    // A to-do is told by its repeatOption alone, never by a flag.
    bool isToDo() const { return m_repeatOption == RepeatEnd::toDoMarker; }
    // The planned length in seconds; 0 for an item without one. A part below 0 counts as 0.
    int plannedSeconds() const { return plannedLength(m_durationHr, m_durationMin); }

    // The date the item stands on: the postponed date when set, else the scheduled one.
    std::optional<Date> effectiveDate() const
    {
        return m_dtReminderPostponed ? m_dtReminderPostponed : m_dtReminder;
    }

    // The project holding the item, or none. Setting it keeps Project::toReminders() in step.
    Project* toProject() const { return m_toProject; }
    void setToProject(Project* project);

private:
    friend class RecordColumns;
    friend class ObjectContext;

    Project* m_toProject = nullptr;
    std::optional<QString> m_uniqueId;
    std::optional<QString> m_title;
    std::optional<QString> m_notes;
    std::optional<int> m_durationHr;
    std::optional<int> m_durationMin;
    std::optional<bool> m_shouldRemind;
    std::optional<int> m_remindBefore;
    std::optional<Date> m_dtReminder;
    std::optional<Date> m_dtReminderPostponed;
    std::optional<int> m_repeatInterval;
    std::optional<int> m_repeatIntervalType;
    std::optional<int> m_repeatOption;
    std::optional<Date> m_dtRepeatUpto;
    std::optional<bool> m_hasStarted;
    std::optional<bool> m_hasFinished;
    std::optional<int> m_timeLimit;
    std::optional<int> m_elapsedTime;
    std::optional<int> m_timeLimitExtendedBy;
    std::optional<int> m_runningTimeCovered;
};

} // namespace lullet

Q_DECLARE_METATYPE(lullet::Item*)
