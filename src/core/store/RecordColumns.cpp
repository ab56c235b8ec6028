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

template <class V> Column<Item> RecordColumns::packed(const char* name, int field, V Item::*member)
{
    const auto f = Item::Field(field);
    return Column<Item>{
        name, [f, member](Stmt& s, int i, const Item& r) { s.bind(i, r.get(f, r.*member)); },
        [f, member](const Stmt& s, int i, Item& r, StringPool& pool) {
            if constexpr (std::is_same_v<V, QString>) {
                const std::optional<QString> text = s.columnText(i);
                r.load(f, r.*member,
                       text ? std::optional<QString>(pool.intern(*text)) : std::nullopt);
            } else if constexpr (std::is_same_v<V, qint32>) {
                r.load(f, r.*member, s.columnInt(i));
            } else {
                r.load(f, r.*member, s.columnDate(i));
            }
        }};
}

Column<Item> RecordColumns::packedFlag(const char* name, int field)
{
    const auto f = Item::Field(field);
    return Column<Item>{
        name, [f](Stmt& s, int i, const Item& r) { s.bind(i, r.flag(f)); },
        [f](const Stmt& s, int i, Item& r, StringPool&) { r.loadFlag(f, s.columnBool(i)); }};
}

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
        packed("uniqueId", R::UniqueId, &R::m_uniqueId),
        packed("title", R::Title, &R::m_title),
        packed("notes", R::Notes, &R::m_notes),
        packed("durationHr", R::DurationHr, &R::m_durationHr),
        packed("durationMin", R::DurationMin, &R::m_durationMin),
        packedFlag("shouldRemind", R::ShouldRemind),
        packed("remindBefore", R::RemindBefore, &R::m_remindBefore),
        packed("dtReminder", R::DtReminder, &R::m_dtReminder),
        packed("dtReminderPostponed", R::DtReminderPostponed, &R::m_dtReminderPostponed),
        packed("repeatInterval", R::RepeatInterval, &R::m_repeatInterval),
        packed("repeatIntervalType", R::RepeatIntervalType, &R::m_repeatIntervalType),
        packed("repeatOption", R::RepeatOption, &R::m_repeatOption),
        packed("dtRepeatUpto", R::DtRepeatUpto, &R::m_dtRepeatUpto),
        packedFlag("hasStarted", R::HasStarted),
        packedFlag("hasFinished", R::HasFinished),
        packed("timeLimit", R::TimeLimit, &R::m_timeLimit),
        packed("elapsedTime", R::ElapsedTime, &R::m_elapsedTime),
        packed("timeLimitExtendedBy", R::TimeLimitExtendedBy, &R::m_timeLimitExtendedBy),
        packed("runningTimeCovered", R::RunningTimeCovered, &R::m_runningTimeCovered),
    };
    return columns;
}

} // namespace lullet
