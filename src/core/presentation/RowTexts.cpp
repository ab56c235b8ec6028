#include "core/presentation/RowTexts.h"

#include "core/dates/Clock.h"
#include "core/model/Item.h"
#include "core/model/RepeatCodes.h"
#include "core/presentation/DashboardSummary.h"
#include "core/scheduling/CatalogueEntries.h"
#include "core/text/CountedText.h"

namespace lullet {

namespace {

// Two digits, padded with a zero; rows are built by the thousand, so no formatting machinery.
QString twoDigits(int value)
{
    if (value < 0 || value > 99)
        return QString::number(value);
    const QChar digits[2] = {QChar(u'0' + value / 10), QChar(u'0' + value % 10)};
    return QString(digits, 2);
}

} // namespace

QString RowTexts::getStringFromSeconds(int seconds)
{
    return twoDigits(seconds / 3600) + u':' + twoDigits(seconds % 3600 / 60) + u':' +
           twoDigits(seconds % 60);
}

QString RowTexts::hoursAndMinutes(int hours, int minutes)
{
    return twoDigits(hours) + u':' + twoDigits(minutes) + u'm';
}

QString RowTexts::lateness(const Item& item, Date due, const Clock& clock, bool& dueOrOverdue)
{
    const Date now = clock.now();
    const bool finished = item.isFinished();
    if (!due.isToday(clock) && item.remindBefore()) {
        // Calendar days from today, rounded since a day across a clock change is not 24 h.
        const qint64 days = qRound64((due.dateAtStartOfDay().timeIntervalSince1970() -
                                      now.dateAtStartOfDay().timeIntervalSince1970()) /
                                     86400.0);
        if (days > 0)
            return CountedText::text("RowTexts", QT_TRANSLATE_N_NOOP("RowTexts", "In %n days"),
                                     days, days > 1 ? nullptr : "In %n day");
        if (days < 0 && !finished) {
            dueOrOverdue = true;
            return CountedText::text("RowTexts",
                                     QT_TRANSLATE_N_NOOP("RowTexts", "Overdue by %n days"), -days,
                                     -days > 1 ? nullptr : "Overdue by %n day");
        }
        return {};
    }
    if (!due.isToday(clock) || !item.remindBefore() || finished || item.isStarted())
        return {};
    const int late = (now.hour() - due.hour()) * 60 + (now.minute() - due.minute());
    if (late <= 0)
        return {};
    const int hours = late / 60;
    const int minutes = late - hours * 60;
    dueOrOverdue = true;
    if (hours > 0 && minutes > 0)
        return tr("Due from %1 hr %2 min").arg(hours).arg(minutes);
    if (hours > 0)
        return tr("Due from %1 hr ").arg(hours);
    return tr("Due from %1 min").arg(minutes);
}

void RowTexts::setTimeUsed(ListRow& row, const Item& item)
{
    row.timeUsed.clear();
    row.timeUsedInSeconds = 0;
    if (item.isStarted()) {
        const int limit = item.timeLimit().value_or(0);
        row.timeUsed = hoursAndMinutes(limit / 3600, limit % 3600 / 60);
    } else if (item.isFinished()) {
        const int elapsed = item.elapsedTime().value_or(0);
        row.timeUsed = getStringFromSeconds(elapsed);
        row.timeUsedInSeconds = elapsed;
    }
}

void RowTexts::setValues(ListRow& row, const Clock& clock, ProjectName naming)
{
    if (row.representedObject)
        setTexts(row, *row.representedObject, clock, naming);
}

ListRow RowTexts::textsOf(const Item& item, const Clock& clock, ProjectName naming)
{
    ListRow row;
    setTexts(row, item, clock, naming);
    return row;
}

void RowTexts::setTexts(ListRow& row, const Item& record, const Clock& clock, ProjectName naming)
{
    const Item* item = &record;
    row.type = ListRow::ItemRow;
    row.title = CatalogueEntries::shown(item->title().value_or(QString()));
    row.isToDo = item->isToDo();
    row.dueOrOverdue = false;
    row.time.clear();
    if (const std::optional<Date> due = item->effectiveDate()) {
        const QString prefix = lateness(*item, *due, clock, row.dueOrOverdue);
        const QString clockTime = due->toString(DateStyle::None, DateStyle::Short);
        row.time = prefix.isEmpty() ? clockTime : tr("%1 at %2").arg(prefix, clockTime);
    }
    setTimeUsed(row, *item);
    const int hours = item->durationHr().value_or(0);
    const int minutes = item->durationMin().value_or(0);
    row.duration = hours == 0 && minutes == 0 ? QString() : hoursAndMinutes(hours, minutes);
    setProjectName(row, *item, naming);
}

void RowTexts::setProjectName(ListRow& row, const Item& item, ProjectName naming)
{
    // Every row of a list has these: looked up once, not per row.
    static const QString lullet = tr("Lullet");
    static const QString inProject = tr("Lullet  |  %1");
    const Project* project = item.toProject();
    switch (naming) {
    case ProjectName::None:
        return;
    case ProjectName::InList:
        row.projectName = project ? inProject.arg(project->name().value_or(QString())) : lullet;
        return;
    case ProjectName::InReport:
        // A break, an occurrence of a rule, is the program's own rather than a project's.
        if (item.uniqueId() && *item.uniqueId() != placeholderId()) {
            row.projectName = lullet;
            row.title = inProject.arg(row.title);
            return;
        }
        row.projectName =
            project ? project->name().value_or(QString()) : DashboardSummary::notInProjectTitle();
        return;
    }
}

ListRow RowTexts::makeRow(Item* item, const Clock& clock, ProjectName naming)
{
    ListRow row;
    row.representedObject = item;
    setValues(row, clock, naming);
    return row;
}

} // namespace lullet
