#include "authoring/QuickAdd.h"

#include "core/app/AppDelegate.h"
#include "core/app/ProjectChoices.h"
#include "core/dates/Clock.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "core/store/ObjectContext.h"
#include "scheduling/RepeatTypes.h"

namespace lullet {

QuickAdd::QuickAdd(AppDelegate& app)
    : dtReminderQuickAdd(app.clock().now().dateByAddingMinutes(10))
    , m_app(app)
{
}

QStringList QuickAdd::projectChoices() const
{
    return ProjectChoices::choices(m_app, QStringLiteral("No Project"));
}

int QuickAdd::selectedProjectIndex() const
{
    return ProjectChoices::selectedIndex(m_app, projectChoices());
}

QStringList QuickAdd::durationChoices()
{
    return {QStringLiteral("No duration"), QStringLiteral("1 min"),  QStringLiteral("2 min"),
            QStringLiteral("3 min"),       QStringLiteral("4 min"),  QStringLiteral("5 min"),
            QStringLiteral("6 min"),       QStringLiteral("7 min"),  QStringLiteral("8 min"),
            QStringLiteral("9 min"),       QStringLiteral("10 min"), QStringLiteral("15 min"),
            QStringLiteral("30 min"),      QStringLiteral("1 Hour")};
}

QString QuickAdd::dateLabel() const
{
    if (!dtReminderQuickAdd)
        return QStringLiteral("No");
    const Date d = *dtReminderQuickAdd;
    return QString::number(d.day()) + u' ' + d.shortMonthToString() + u' ' +
           QString::number(d.year());
}

QString QuickAdd::timeLabel() const
{
    if (!dtReminderQuickAdd)
        return QStringLiteral("date");
    return QStringLiteral("at ") +
           dtReminderQuickAdd->toString(DateStyle::none, DateStyle::shortStyle);
}

Date QuickAdd::pickerStart() const
{
    return dtReminderQuickAdd.value_or(m_app.clock().now().dateByAddingMinutes(10));
}

ReminderInfo* QuickAdd::onDoAdd(const QString& name, const QString& projectChoice)
{
    QString title = name.trimmed();
    if (title.isEmpty())
        return nullptr;
    title[0] = title[0].toUpper();

    ReminderInfo* item = m_app.managedObjectContext().insertReminderInfo();
    item->setUniqueId(QStringLiteral("<to make>"));
    item->setTitle(title);
    item->setDurationHr(0);
    item->setDurationMin(0);
    item->setShouldRemind(dtReminderQuickAdd.has_value());
    item->setRemindBefore(int(ID_ON_DAY));
    item->setDtReminder(dtReminderQuickAdd);
    m_app.addLulletObject(item);

    if (Project* project = ProjectChoices::chosen(m_app, projectChoices(), projectChoice)) {
        item->setToProject(project);
        m_app.notifCenter().post(notification::onProjectContentChanged,
                                 QVariant::fromValue(project));
    }
    m_app.saveAction();
    m_app.notifCenter().post(notification::onItemAddedOrEdited, QVariant::fromValue(item));
    return item;
}

} // namespace lullet
