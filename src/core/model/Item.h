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
    std::optional<QString> uniqueId() const { return get(UniqueId, m_uniqueId); }
    void setUniqueId(const std::optional<QString>& v) { put(UniqueId, m_uniqueId, v); }
    std::optional<QString> title() const { return get(Title, m_title); }
    void setTitle(const std::optional<QString>& v) { put(Title, m_title, v); }
    std::optional<QString> notes() const { return get(Notes, m_notes); }
    void setNotes(const std::optional<QString>& v) { put(Notes, m_notes, v); }
    // Both durations zero: no planned duration.
    std::optional<int> durationHr() const { return get(DurationHr, m_durationHr); }
    void setDurationHr(std::optional<int> v) { put(DurationHr, m_durationHr, v); }
    std::optional<int> durationMin() const { return get(DurationMin, m_durationMin); }
    void setDurationMin(std::optional<int> v) { put(DurationMin, m_durationMin, v); }
    std::optional<bool> shouldRemind() const { return flag(ShouldRemind); }
    void setShouldRemind(std::optional<bool> v) { putFlag(ShouldRemind, v); }
    // Days of advance notice.
    std::optional<int> remindBefore() const { return get(RemindBefore, m_remindBefore); }
    void setRemindBefore(std::optional<int> v) { put(RemindBefore, m_remindBefore, v); }
    // No date: an anytime item.
    std::optional<Date> dtReminder() const { return get(DtReminder, m_dtReminder); }
    void setDtReminder(std::optional<Date> v) { put(DtReminder, m_dtReminder, v); }
    // The effective date when set.
    std::optional<Date> dtReminderPostponed() const
    {
        return get(DtReminderPostponed, m_dtReminderPostponed);
    }
    void setDtReminderPostponed(std::optional<Date> v)
    {
        put(DtReminderPostponed, m_dtReminderPostponed, v);
    }
    std::optional<int> repeatInterval() const { return get(RepeatInterval, m_repeatInterval); }
    void setRepeatInterval(std::optional<int> v) { put(RepeatInterval, m_repeatInterval, v); }
    std::optional<int> repeatIntervalType() const
    {
        return get(RepeatIntervalType, m_repeatIntervalType);
    }
    void setRepeatIntervalType(std::optional<int> v)
    {
        put(RepeatIntervalType, m_repeatIntervalType, v);
    }
    // -5 marks a to-do.
    std::optional<int> repeatOption() const { return get(RepeatOption, m_repeatOption); }
    void setRepeatOption(std::optional<int> v) { put(RepeatOption, m_repeatOption, v); }
    std::optional<Date> dtRepeatUpto() const { return get(DtRepeatUpto, m_dtRepeatUpto); }
    void setDtRepeatUpto(std::optional<Date> v) { put(DtRepeatUpto, m_dtRepeatUpto, v); }
    std::optional<bool> hasStarted() const { return flag(HasStarted); }
    void setHasStarted(std::optional<bool> v) { putFlag(HasStarted, v); }
    std::optional<bool> hasFinished() const { return flag(HasFinished); }
    void setHasFinished(std::optional<bool> v) { putFlag(HasFinished, v); }
    // Seconds; zero or less is an unlimited item.
    std::optional<int> timeLimit() const { return get(TimeLimit, m_timeLimit); }
    void setTimeLimit(std::optional<int> v) { put(TimeLimit, m_timeLimit, v); }
    // Seconds run so far.
    std::optional<int> elapsedTime() const { return get(ElapsedTime, m_elapsedTime); }
    void setElapsedTime(std::optional<int> v) { put(ElapsedTime, m_elapsedTime, v); }
    // Seconds; on an unlimited item the chosen prompt period.
    std::optional<int> timeLimitExtendedBy() const
    {
        return get(TimeLimitExtendedBy, m_timeLimitExtendedBy);
    }
    void setTimeLimitExtendedBy(std::optional<int> v)
    {
        put(TimeLimitExtendedBy, m_timeLimitExtendedBy, v);
    }
    std::optional<int> runningTimeCovered() const
    {
        return get(RunningTimeCovered, m_runningTimeCovered);
    }
    void setRunningTimeCovered(std::optional<int> v)
    {
        put(RunningTimeCovered, m_runningTimeCovered, v);
    }

    bool isStarted() const { return flag(HasStarted).value_or(false); }
    bool isFinished() const { return flag(HasFinished).value_or(false); }
    bool isToDo() const { return repeatOption() == RepeatEnd::toDoMarker; }
    int plannedSeconds() const { return plannedLength(durationHr(), durationMin()); }

    std::optional<Date> effectiveDate() const
    {
        return has(DtReminderPostponed) ? dtReminderPostponed() : dtReminder();
    }

    Project* toProject() const { return m_toProject; }
    void setToProject(Project* project);

private:
    friend class RecordColumns;
    friend class ObjectContext;
    friend class HistoryOnDisk;

    // Which fields are set: a store of years holds tens of thousands of items, and a bit each
    // costs far less than a std::optional each.
    enum Field : quint32 {
        UniqueId,
        Title,
        Notes,
        DurationHr,
        DurationMin,
        ShouldRemind,
        RemindBefore,
        DtReminder,
        DtReminderPostponed,
        RepeatInterval,
        RepeatIntervalType,
        RepeatOption,
        DtRepeatUpto,
        HasStarted,
        HasFinished,
        TimeLimit,
        ElapsedTime,
        TimeLimitExtendedBy,
        RunningTimeCovered,
    };
    static_assert(RunningTimeCovered < 29, "the presence bits stay below the flags' values");
    // The three flags keep their values in the top bits, above every presence bit.
    static constexpr quint32 valueBit(Field field)
    {
        return field == ShouldRemind ? 1u << 29 : field == HasStarted ? 1u << 30 : 1u << 31;
    }

    bool has(Field field) const { return m_fields & (1u << field); }
    template <class V> std::optional<V> get(Field field, const V& value) const
    {
        return has(field) ? std::optional<V>(value) : std::nullopt;
    }
    std::optional<bool> flag(Field field) const
    {
        return has(field) ? std::optional<bool>(m_fields & valueBit(field)) : std::nullopt;
    }
    // Loading sets a field without counting it as a change.
    template <class V> void load(Field field, V& value, const std::optional<V>& next)
    {
        value = next ? *next : V{};
        m_fields = next ? m_fields | (1u << field) : m_fields & ~(1u << field);
    }
    void loadFlag(Field field, std::optional<bool> next)
    {
        m_fields = next ? m_fields | (1u << field) : m_fields & ~(1u << field);
        m_fields = next.value_or(false) ? m_fields | valueBit(field) : m_fields & ~valueBit(field);
    }
    template <class V> void put(Field field, V& value, const std::optional<V>& next)
    {
        if (get(field, value) == next)
            return;
        load(field, value, next);
        changed();
    }
    void putFlag(Field field, std::optional<bool> next)
    {
        if (flag(field) == next)
            return;
        loadFlag(field, next);
        changed();
    }

    Project* m_toProject = nullptr;
    QString m_uniqueId;
    QString m_title;
    QString m_notes;
    Date m_dtReminder;
    Date m_dtReminderPostponed;
    Date m_dtRepeatUpto;
    qint32 m_durationHr = 0;
    qint32 m_durationMin = 0;
    qint32 m_remindBefore = 0;
    qint32 m_repeatInterval = 0;
    qint32 m_repeatIntervalType = 0;
    qint32 m_repeatOption = 0;
    qint32 m_timeLimit = 0;
    qint32 m_elapsedTime = 0;
    qint32 m_timeLimitExtendedBy = 0;
    qint32 m_runningTimeCovered = 0;
    quint32 m_fields = 0;
};

} // namespace lullet

Q_DECLARE_METATYPE(lullet::Item*)
