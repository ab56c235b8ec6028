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
#include "core/text/CountedText.h"
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
    static const char* singular[] = {
        QT_TRANSLATE_NOOP("ScheduleTexts", "minute"), QT_TRANSLATE_NOOP("ScheduleTexts", "hour"),
        QT_TRANSLATE_NOOP("ScheduleTexts", "day"),    QT_TRANSLATE_NOOP("ScheduleTexts", "week"),
        QT_TRANSLATE_NOOP("ScheduleTexts", "month"),  QT_TRANSLATE_NOOP("ScheduleTexts", "year")};
    static const char* plural[] = {QT_TRANSLATE_N_NOOP("ScheduleTexts", "%n mins"),
                                   QT_TRANSLATE_N_NOOP("ScheduleTexts", "%n hours"),
                                   QT_TRANSLATE_N_NOOP("ScheduleTexts", "%n days"),
                                   QT_TRANSLATE_N_NOOP("ScheduleTexts", "%n weeks"),
                                   QT_TRANSLATE_N_NOOP("ScheduleTexts", "%n months"),
                                   QT_TRANSLATE_N_NOOP("ScheduleTexts", "%n years")};
    if (!RepeatUnit::isKnown(repeatType))
        return {};
    if (count <= 1)
        return tr(singular[repeatType]);
    return CountedText::text("ScheduleTexts", plural[repeatType], count);
}

QString ScheduleTexts::dateText(Date d) const
{
    QString t = d.toString(DateStyle::Medium, DateStyle::None, &m_clock);
    if (!isFullDate(t))
        return t;
    // Weekday, day, month and year.
    return tr("On %1 %2, %3 %4")
        .arg(LocalizedText::capitalizeFirst(d.shortWeekdayToString()), QString::number(d.day()),
             LocalizedText::capitalizeFirst(d.shortMonthToString()), QString::number(d.year()));
}

QString ScheduleTexts::timeText(Date d) const
{
    return d.toString(DateStyle::None, DateStyle::Short, &m_clock);
}

QString ScheduleTexts::compose(bool isToDo, Date next, int repeatType, int count) const
{
    // The date, the time and how often.
    const QString text = isToDo ? tr("Lullet : %1 at %2, repeats every %3")
                                : tr("Task : %1 at %2, repeats every %3");
    return text.arg(dateText(next), timeText(next), intervalText(repeatType, count));
}

QString ScheduleTexts::nextTimeLabel(const CatalogueRow& row) const
{
    const Date now = m_clock.now();
    const Date startOfToday = now.dateAtStartOfDay();
    if (const Rule* rule = row.representedObject) {
        if (rule->repeatOption() == std::optional<int>(RepeatEnd::untilDate) &&
            rule->dtRepeatUpto() && rule->dtRepeatUpto()->isEarlierThanDate(startOfToday))
            return tr("No further repeat");
    }
    if (!row.nextRepeatOn)
        return {};
    const Date next = *row.nextRepeatOn;
    if (next.isToday(m_clock)) {
        const qint64 minutes = next.secondsAfterDate(now) / 60;
        if (minutes < 0)
            return {};
        if (minutes == 0)
            return tr("Now");
        const qint64 hours = minutes / 60;
        const qint64 rest = minutes - hours * 60;
        if (hours > 0 && rest > 0)
            return tr("In next %1 hr %2 min").arg(hours).arg(rest);
        if (hours > 0)
            return tr("In next %1 hr ").arg(hours);
        return tr("In next %1 min").arg(rest);
    }
    const QString time = timeText(next);
    // Calendar days, rounded: a day across a clock change is not 24 hours.
    const qint64 days = qRound64(
        (next.dateAtStartOfDay().timeIntervalSince1970() - startOfToday.timeIntervalSince1970()) /
        86400.0);
    if (row.remindBefore && days <= RemindBefore::days(*row.remindBefore)) {
        const QString word = StyledDateFormat::relativeDayWord(int(days));
        if (!word.isEmpty() && !word.contains(u' '))
            return tr("%1 at %2").arg(word, time);
        return CountedText::text("ScheduleTexts",
                                 QT_TRANSLATE_N_NOOP("ScheduleTexts", "In next %n days at %1"),
                                 days)
            .arg(time);
    }
    // Day, month, year and time.
    return tr("On %1 %2 %3 at %4")
        .arg(QString::number(next.day()), next.shortMonthToString(), QString::number(next.year()),
             time);
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
    static const char* every[] = {QT_TRANSLATE_N_NOOP("ScheduleTexts", "Repeat every %n mins"),
                                  QT_TRANSLATE_N_NOOP("ScheduleTexts", "Repeat every %n hrs"),
                                  QT_TRANSLATE_N_NOOP("ScheduleTexts", "Repeat every %n days"),
                                  QT_TRANSLATE_N_NOOP("ScheduleTexts", "Repeat every %n weeks"),
                                  QT_TRANSLATE_N_NOOP("ScheduleTexts", "Repeat every %n months"),
                                  QT_TRANSLATE_N_NOOP("ScheduleTexts", "Repeat every %n years")};
    static const char* everyOne[] = {"Repeat every %n min",   "Repeat every %n hr",
                                     "Repeat every %n day",   "Repeat every %n week",
                                     "Repeat every %n month", "Repeat every %n year"};
    QString text;
    const std::optional<int> count = item.repeatInterval();
    const std::optional<int> type = item.repeatIntervalType();
    if (item.shouldRemind().value_or(false) && count && type && *type >= 0) {
        const int unit = std::min(*type, 5);
        text = CountedText::text("ScheduleTexts", every[unit], *count,
                                 *count >= 2 ? nullptr : everyOne[unit]);
    }
    if (const std::optional<Date> due = item.dtReminder()) {
        if (!text.isEmpty())
            text += QStringLiteral(", ");
        const QString relative = due->toString(DateStyle::Medium, DateStyle::None, &m_clock);
        if (relative.split(u' ').size() == 1)
            text += relative;
        else
            text += tr(", On %1 %2 %3")
                        .arg(QStringLiteral("%1").arg(due->day(), 2, 10, QLatin1Char('0')),
                             due->shortMonthToString(), QString::number(due->year()));
        text += tr(", at %1").arg(due->toString(DateStyle::None, DateStyle::Short));
    }
    const int hours = item.durationHr().value_or(0);
    const int minutes = item.durationMin().value_or(0);
    if (hours > 0 || minutes > 0) {
        text += tr(", For : %1hr:%2min").arg(hours).arg(minutes);
    }
    return text;
}

} // namespace lullet
