#include "core/store/RecordColumns.h"

#include "core/store/Stmt.h"
#include "core/store/StringPool.h"

#include <type_traits>

namespace lullet {

namespace {

template <class T, class V> Column<T> column(const char* name, std::optional<V> T::*member)
{
    return Column<T>{name, [member](Stmt& s, int i, const T& r) { s.bind(i, r.*member); },
                     [member](const Stmt& s, int i, T& r, StringPool& pool) {
                         if constexpr (std::is_same_v<V, QString>) {
                             const std::optional<QString> text = s.columnText(i);
                             r.*member =
                                 text ? std::optional<QString>(pool.intern(*text)) : std::nullopt;
                         } else if constexpr (std::is_same_v<V, int>) {
                             r.*member = s.columnInt(i);
                         } else if constexpr (std::is_same_v<V, bool>) {
                             r.*member = s.columnBool(i);
                         } else {
                             r.*member = s.columnDate(i);
                         }
                     }};
}

} // namespace

const std::vector<Column<Project>>& RecordColumns::project()
{
    using P = Project;
    static const std::vector<Column<P>> columns = {
        column("name", &P::m_name),
        column("createdDate", &P::m_createdDate),
        column("uniqueId", &P::m_uniqueId),
    };
    return columns;
}

const std::vector<Column<Rule>>& RecordColumns::rule()
{
    using R = Rule;
    static const std::vector<Column<R>> columns = {
        column("uniqueId", &R::m_uniqueId),
        column("title", &R::m_title),
        column("notes", &R::m_notes),
        column("durationHr", &R::m_durationHr),
        column("durationMin", &R::m_durationMin),
        column("shouldRemind", &R::m_shouldRemind),
        column("remindBefore", &R::m_remindBefore),
        column("dtReminder", &R::m_dtReminder),
        column("repeatInterval", &R::m_repeatInterval),
        column("repeatIntervalType", &R::m_repeatIntervalType),
        column("repeatOption", &R::m_repeatOption),
        column("dtRepeatUpto", &R::m_dtRepeatUpto),
        column("isCustom", &R::m_isCustom),
        column("isToDoOrJob", &R::m_isToDoOrJob),
        column("isActive", &R::m_isActive),
    };
    return columns;
}

const std::vector<Column<Item>>& RecordColumns::item()
{
    using R = Item;
    static const std::vector<Column<R>> columns = {
        column("uniqueId", &R::m_uniqueId),
        column("title", &R::m_title),
        column("notes", &R::m_notes),
        column("durationHr", &R::m_durationHr),
        column("durationMin", &R::m_durationMin),
        column("shouldRemind", &R::m_shouldRemind),
        column("remindBefore", &R::m_remindBefore),
        column("dtReminder", &R::m_dtReminder),
        column("dtReminderPostponed", &R::m_dtReminderPostponed),
        column("repeatInterval", &R::m_repeatInterval),
        column("repeatIntervalType", &R::m_repeatIntervalType),
        column("repeatOption", &R::m_repeatOption),
        column("dtRepeatUpto", &R::m_dtRepeatUpto),
        column("hasStarted", &R::m_hasStarted),
        column("hasFinished", &R::m_hasFinished),
        column("timeLimit", &R::m_timeLimit),
        column("elapsedTime", &R::m_elapsedTime),
        column("timeLimitExtendedBy", &R::m_timeLimitExtendedBy),
        column("runningTimeCovered", &R::m_runningTimeCovered),
    };
    return columns;
}

} // namespace lullet
