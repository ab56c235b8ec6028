#pragma once

#include "core/dates/Date.h"
#include "core/model/Record.h"

#include <QString>

namespace lullet {

// One repeating rule: an anchor, a step and an end. Its occurrences carry its uniqueId.
class Rule final : public Record {
public:
    Entity entity() const override { return Entity::Rule; }

    // The title at creation, "_" and the creation time; never changes.
    const std::optional<QString>& uniqueId() const { return m_uniqueId; }
    void setUniqueId(std::optional<QString> v) { assign(m_uniqueId, std::move(v)); }
    const std::optional<QString>& title() const { return m_title; }
    void setTitle(std::optional<QString> v) { assign(m_title, std::move(v)); }
    const std::optional<QString>& notes() const { return m_notes; }
    void setNotes(std::optional<QString> v) { assign(m_notes, std::move(v)); }
    const std::optional<int>& durationHr() const { return m_durationHr; }
    void setDurationHr(std::optional<int> v) { assign(m_durationHr, v); }
    const std::optional<int>& durationMin() const { return m_durationMin; }
    void setDurationMin(std::optional<int> v) { assign(m_durationMin, v); }
    const std::optional<bool>& shouldRemind() const { return m_shouldRemind; }
    void setShouldRemind(std::optional<bool> v) { assign(m_shouldRemind, v); }
    const std::optional<int>& remindBefore() const { return m_remindBefore; }
    void setRemindBefore(std::optional<int> v) { assign(m_remindBefore, v); }
    // The anchor of the rule's grid.
    const std::optional<Date>& dtReminder() const { return m_dtReminder; }
    void setDtReminder(std::optional<Date> v) { assign(m_dtReminder, v); }
    const std::optional<int>& repeatInterval() const { return m_repeatInterval; }
    void setRepeatInterval(std::optional<int> v) { assign(m_repeatInterval, v); }
    const std::optional<int>& repeatIntervalType() const { return m_repeatIntervalType; }
    void setRepeatIntervalType(std::optional<int> v) { assign(m_repeatIntervalType, v); }
    // 0 repeats without end, 1 up to dtRepeatUpto.
    const std::optional<int>& repeatOption() const { return m_repeatOption; }
    void setRepeatOption(std::optional<int> v) { assign(m_repeatOption, v); }
    const std::optional<Date>& dtRepeatUpto() const { return m_dtRepeatUpto; }
    void setDtRepeatUpto(std::optional<Date> v) { assign(m_dtRepeatUpto, v); }
    const std::optional<bool>& isCustom() const { return m_isCustom; }
    void setIsCustom(std::optional<bool> v) { assign(m_isCustom, v); }
    // No value counts as true.
    const std::optional<bool>& isToDoOrJob() const { return m_isToDoOrJob; }
    void setIsToDoOrJob(std::optional<bool> v) { assign(m_isToDoOrJob, v); }
    const std::optional<bool>& isActive() const { return m_isActive; }
    void setIsActive(std::optional<bool> v) { assign(m_isActive, v); }

    int plannedSeconds() const { return plannedLength(m_durationHr, m_durationMin); }
    // A rule without the flag is a to-do rule.
    bool makesToDos() const { return m_isToDoOrJob.value_or(true); }

private:
    friend class RecordColumns;

    std::optional<QString> m_uniqueId;
    std::optional<QString> m_title;
    std::optional<QString> m_notes;
    std::optional<int> m_durationHr;
    std::optional<int> m_durationMin;
    std::optional<bool> m_shouldRemind;
    std::optional<int> m_remindBefore;
    std::optional<Date> m_dtReminder;
    std::optional<int> m_repeatInterval;
    std::optional<int> m_repeatIntervalType;
    std::optional<int> m_repeatOption;
    std::optional<Date> m_dtRepeatUpto;
    std::optional<bool> m_isCustom;
    std::optional<bool> m_isToDoOrJob;
    std::optional<bool> m_isActive;
};

} // namespace lullet

Q_DECLARE_METATYPE(lullet::Rule*)
