#include "core/presentation/QuickAddForm.h"

#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/model/RepeatCodes.h"

namespace lullet {

QuickAddForm::QuickAddForm(const Clock& clock, Library& library)
    : m_clock(clock)
    , m_library(library)
{
    reset();
}

void QuickAddForm::reset()
{
    m_date = m_clock.now().dateByAddingMinutes(10);
}

QStringList QuickAddForm::durationChoices()
{
    return {QStringLiteral("No duration"), QStringLiteral("1 min"),  QStringLiteral("2 min"),
            QStringLiteral("3 min"),       QStringLiteral("4 min"),  QStringLiteral("5 min"),
            QStringLiteral("6 min"),       QStringLiteral("7 min"),  QStringLiteral("8 min"),
            QStringLiteral("9 min"),       QStringLiteral("10 min"), QStringLiteral("15 min"),
            QStringLiteral("30 min"),      QStringLiteral("1 Hour")};
}

QString QuickAddForm::dateLabel() const
{
    if (!m_date)
        return QStringLiteral("No");
    return QString::number(m_date->day()) + u' ' + m_date->shortMonthToString() + u' ' +
           QString::number(m_date->year());
}

QString QuickAddForm::timeLabel() const
{
    if (!m_date)
        return QStringLiteral("date");
    return QStringLiteral("at ") + m_date->toString(DateStyle::None, DateStyle::Short);
}

Date QuickAddForm::chooserStart() const
{
    return m_date.value_or(m_clock.now().dateByAddingMinutes(10));
}

Item* QuickAddForm::add(const QString& name, Project* project)
{
    const QString title = name.trimmed();
    if (title.isEmpty())
        return nullptr;
    Item* item = m_library.newTask(title);
    item->setDurationHr(0);
    item->setDurationMin(0);
    item->setShouldRemind(m_date.has_value());
    item->setRemindBefore(int(RemindBefore::OnTheDay));
    item->setDtReminder(m_date);
    m_library.addUserTask(item, project);
    return item;
}

} // namespace lullet
