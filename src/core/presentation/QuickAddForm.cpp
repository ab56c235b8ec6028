#include "core/presentation/QuickAddForm.h"

#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/model/RepeatCodes.h"

#include <iterator>

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

namespace {

// The duration menu's minutes, in its order; 0 is none.
constexpr int durationMinutes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 15, 30, 60};

} // namespace

QStringList QuickAddForm::durationChoices()
{
    QStringList choices;
    for (const int minutes : durationMinutes) {
        if (minutes == 0)
            choices << tr("No duration");
        else if (minutes == 60)
            choices << tr("1 Hour");
        else
            choices << tr("%1 min").arg(minutes);
    }
    return choices;
}

QString QuickAddForm::dateLabel() const
{
    if (!m_date)
        return tr("No");
    return tr("%1 %2 %3")
        .arg(QString::number(m_date->day()), m_date->shortMonthToString(),
             QString::number(m_date->year()));
}

QString QuickAddForm::timeLabel() const
{
    if (!m_date)
        return tr("date");
    return tr("at %1").arg(m_date->toString(DateStyle::None, DateStyle::Short));
}

Date QuickAddForm::chooserStart() const
{
    return m_date.value_or(m_clock.now().dateByAddingMinutes(10));
}

Item* QuickAddForm::add(const QString& name, Project* project, int durationChoice)
{
    const QString title = name.trimmed();
    if (title.isEmpty())
        return nullptr;
    const bool known = durationChoice >= 0 && durationChoice < int(std::size(durationMinutes));
    const int minutes = known ? durationMinutes[durationChoice] : 0;
    Item* item = m_library.newTask(title);
    item->setDurationHr(minutes / 60);
    item->setDurationMin(minutes % 60);
    item->setShouldRemind(m_date.has_value());
    item->setRemindBefore(int(RemindBefore::OnTheDay));
    item->setDtReminder(m_date);
    m_library.addUserTask(item, project);
    return item;
}

} // namespace lullet
