#include "scheduling/ScheduleNotes.h"

#include "core/dates/Clock.h"
#include "core/model/ReminderInfo.h"
#include "core/model/RepeatReminderInfo.h"
#include "scheduling/CatalogueRow.h"
#include "scheduling/RepeatRules.h"
#include "scheduling/RepeatTypes.h"
#include "scheduling/WorkingHours.h"
#include "scheduling/funcGetData.h"

namespace lullet {

namespace {

QString capitalizeFirst(QString text)
{
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

// More than one part at blanks, else at hyphens, else at commas: a full date, not a day's word.
bool isFullDate(const QString& text)
{
    for (const QChar separator : {u' ', u'-', u','}) {
        if (text.split(separator).size() >= 2)
            return true;
    }
    return false;
}

} // namespace

ScheduleNotes::ScheduleNotes(const Clock& clock, funcGetData& schedules, const WorkingHours& hours)
    : m_clock(clock)
    , m_schedules(schedules)
    , m_hours(hours)
{
}

QString ScheduleNotes::intervalText(int repeatType, int count)
{
    static const char* singular[] = {"minute", "hour", "day", "week", "month", "year"};
    static const char* plural[] = {" mins", " hours", " days", " weeks", " months", " years"};
    if (!isKnownRepeatType(repeatType))
        return {};
    if (count <= 1)
        return QString::fromLatin1(singular[repeatType]);
    return QString::number(count) + QLatin1String(plural[repeatType]);
}

QString ScheduleNotes::dateText(Date d) const
{
    const QString t = d.toString(DateStyle::mediumStyle, DateStyle::none, &m_clock);
    if (!isFullDate(t))
        return t;
    return QStringLiteral("On ") + capitalizeFirst(d.shortWeekdayToString()) + u' ' +
           QString::number(d.day()) + QStringLiteral(", ") +
           capitalizeFirst(d.shortMonthToString()) + u' ' + QString::number(d.year());
}

QString ScheduleNotes::timeText(Date d) const
{
    return d.toString(DateStyle::none, DateStyle::shortStyle, &m_clock);
}

QString ScheduleNotes::compose(bool isToDo, Date next, int repeatType, int count) const
{
    return (isToDo ? QStringLiteral("Lullet") : QStringLiteral("Task")) + QStringLiteral(" : ") +
           dateText(next) + QStringLiteral(" at ") + timeText(next) +
           QStringLiteral(", repeats every ") + intervalText(repeatType, count);
}

QString ScheduleNotes::getScheduleNotes(const RepeatReminderInfo* rule) const
{
    if (!rule)
        return {};
    // A rule without a usable step has no next date to tell.
    const std::optional<Date> next = RepeatRules::getNextRepeat(*rule, m_clock);
    if (!next)
        return {};
    return compose(rule->isToDoOrJob().value_or(true), *next,
                   rule->repeatIntervalType().value_or(-1), rule->repeatInterval().value_or(0));
}

Date ScheduleNotes::defaultNextDate(const CatalogueRow& row) const
{
    Date base = m_clock.now();
    const auto today = m_schedules.returnScheduleDataByType(base.weekday());
    if (today.size() == 1 && today.front()->startTime)
        base = m_hours.returnTimeWithCurrentDate(*today.front()->startTime);
    return RepeatRules::step(base, row.defaultRepeatType.value_or(ID_REPEAT_MIN),
                             row.defaultRepeatValue.value_or(0));
}

QString ScheduleNotes::getDefaultScheduleNotes(const CatalogueRow& row) const
{
    return compose(row.isToDoOrJob.value_or(true), defaultNextDate(row),
                   row.defaultRepeatType.value_or(ID_REPEAT_MIN),
                   row.defaultRepeatValue.value_or(0));
}

QString ScheduleNotes::occurrenceText(const ReminderInfo& item) const
{
    static const char* units[] = {"min", "hr", "day", "week", "month", "year"};
    QString text;
    const std::optional<int> count = item.repeatInterval();
    const std::optional<int> type = item.repeatIntervalType();
    if (item.shouldRemind().value_or(false) && count && type && *type >= 0) {
        text = QStringLiteral("Repeat every ") + QString::number(*count) + u' ' +
               QLatin1String(units[std::min(*type, 5)]) +
               (*count >= 2 ? QStringLiteral("s") : QString());
    }
    if (const std::optional<Date> due = item.dtReminder()) {
        if (!text.isEmpty())
            text += QStringLiteral(", ");
        const QString relative = due->toString(DateStyle::mediumStyle, DateStyle::none, &m_clock);
        if (relative.split(u' ').size() == 1)
            text += relative;
        else
            text += QStringLiteral(", On ") +
                    QStringLiteral("%1").arg(due->day(), 2, 10, QLatin1Char('0')) + u' ' +
                    due->shortMonthToString() + u' ' + QString::number(due->year());
        text += QStringLiteral(", at ") + due->toString(DateStyle::none, DateStyle::shortStyle);
    }
    const int hours = item.durationHr().value_or(0);
    const int minutes = item.durationMin().value_or(0);
    if (hours > 0 || minutes > 0) {
        text += QStringLiteral(", For : ") + QString::number(hours) + QStringLiteral("hr:") +
                QString::number(minutes) + QStringLiteral("min");
    }
    return text;
}

} // namespace lullet
