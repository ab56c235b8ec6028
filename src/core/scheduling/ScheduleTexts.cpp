#include "core/scheduling/ScheduleTexts.h"

#include "core/dates/Clock.h"
#include "core/dates/StyledDateFormat.h"
#include "core/model/Item.h"
#include "core/model/RepeatCodes.h"
#include "core/model/Rule.h"
#include "core/scheduling/CatalogueRow.h"
#include "core/scheduling/RepeatRules.h"
#include "core/scheduling/WorkingHours.h"
#include "core/scheduling/WorkingSchedule.h"
#include "core/text/LocalizedText.h"

namespace lullet {

namespace {

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

ScheduleTexts::ScheduleTexts(const Clock& clock, WorkingSchedule& schedule,
                             const WorkingHours& hours)
    : m_clock(clock)
    , m_schedule(schedule)
    , m_hours(hours)
{
}

QString ScheduleTexts::intervalText(int repeatType, int count)
{
    static const char* singular[] = {"minute", "hour", "day", "week", "month", "year"};
    static const char* plural[] = {" mins", " hours", " days", " weeks", " months", " years"};
    if (!RepeatUnit::isKnown(repeatType))
        return {};
    if (count <= 1)
        return QString::fromLatin1(singular[repeatType]);
    return QString::number(count) + QLatin1String(plural[repeatType]);
}

QString ScheduleTexts::dateText(Date d) const
{
    QString t = d.toString(DateStyle::Medium, DateStyle::None, &m_clock);
    if (!isFullDate(t))
        return t;
    return QStringLiteral("On ") + LocalizedText::capitalizeFirst(d.shortWeekdayToString()) + u' ' +
           QString::number(d.day()) + QStringLiteral(", ") +
           LocalizedText::capitalizeFirst(d.shortMonthToString()) + u' ' +
           QString::number(d.year());
}

QString ScheduleTexts::timeText(Date d) const
{
    return d.toString(DateStyle::None, DateStyle::Short, &m_clock);
}

QString ScheduleTexts::compose(bool isToDo, Date next, int repeatType, int count) const
{
    return (isToDo ? QStringLiteral("Lullet") : QStringLiteral("Task")) + QStringLiteral(" : ") +
           dateText(next) + QStringLiteral(" at ") + timeText(next) +
           QStringLiteral(", repeats every ") + intervalText(repeatType, count);
}

QString ScheduleTexts::nextTimeLabel(const CatalogueRow& row) const
{
    const Date now = m_clock.now();
    const Date startOfToday = now.dateAtStartOfDay();
    if (const Rule* rule = row.representedObject) {
        if (rule->repeatOption() == std::optional<int>(RepeatEnd::untilDate) &&
            rule->dtRepeatUpto() && rule->dtRepeatUpto()->isEarlierThanDate(startOfToday))
            return QStringLiteral("No further repeat");
    }
    if (!row.nextRepeatOn)
        return {};
    const Date next = *row.nextRepeatOn;
    if (next.isToday(m_clock)) {
        const qint64 minutes = next.secondsAfterDate(now) / 60;
        if (minutes < 0)
            return {};
        if (minutes == 0)
            return QStringLiteral("Now");
        const qint64 hours = minutes / 60;
        const qint64 rest = minutes - hours * 60;
        QString label = QStringLiteral("In next ");
        if (hours > 0)
            label += QString::number(hours) + QStringLiteral(" hr ");
        if (rest > 0)
            label += QString::number(rest) + QStringLiteral(" min");
        return label;
    }
    const QString at = QStringLiteral("at ") + timeText(next);
    // Calendar days, rounded: a day across a clock change is not 24 hours.
    const qint64 days = qRound64(
        (next.dateAtStartOfDay().timeIntervalSince1970() - startOfToday.timeIntervalSince1970()) /
        86400.0);
    if (row.remindBefore && days <= RemindBefore::days(*row.remindBefore)) {
        const QString word = StyledDateFormat::relativeDayWord(int(days));
        if (!word.isEmpty() && !word.contains(u' '))
            return word + u' ' + at;
        return QStringLiteral("In next %1 days ").arg(days) + at;
    }
    return QStringLiteral("On %1 %2 %3 ")
               .arg(next.day())
               .arg(next.shortMonthToString())
               .arg(next.year()) +
           at;
}

QString ScheduleTexts::ruleText(const Rule* rule) const
{
    if (!rule)
        return {};
    // A rule without a usable step has no next date to tell.
    const std::optional<Date> next = RepeatRules::nextDate(*rule, m_clock);
    if (!next)
        return {};
    return compose(rule->makesToDos(), *next, rule->repeatIntervalType().value_or(-1),
                   rule->repeatInterval().value_or(0));
}

Date ScheduleTexts::suggestionNextDate(const CatalogueRow& row) const
{
    Date base = m_clock.now();
    const auto today = m_schedule.entriesFor(base.weekday());
    if (today.size() == 1 && today.front()->startTime)
        base = m_hours.onLaunchDay(*today.front()->startTime);
    return RepeatRules::step(base, row.defaultRepeatType.value_or(RepeatUnit::Minute),
                             row.defaultRepeatValue.value_or(0));
}

QString ScheduleTexts::suggestionText(const CatalogueRow& row) const
{
    return compose(row.isToDoOrJob.value_or(true), suggestionNextDate(row),
                   row.defaultRepeatType.value_or(RepeatUnit::Minute),
                   row.defaultRepeatValue.value_or(0));
}

QString ScheduleTexts::itemText(const Item& item) const
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
        const QString relative = due->toString(DateStyle::Medium, DateStyle::None, &m_clock);
        if (relative.split(u' ').size() == 1)
            text += relative;
        else
            text += QStringLiteral(", On ") +
                    QStringLiteral("%1").arg(due->day(), 2, 10, QLatin1Char('0')) + u' ' +
                    due->shortMonthToString() + u' ' + QString::number(due->year());
        text += QStringLiteral(", at ") + due->toString(DateStyle::None, DateStyle::Short);
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
