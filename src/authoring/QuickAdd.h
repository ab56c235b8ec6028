#pragma once

#include "core/dates/Date.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace lullet {

class AppDelegate;
class ReminderInfo;

// Adding a plain task by its name from anywhere: due ten minutes after the form opened unless
// the user picks another date or none, in the chosen project or none. It has no duration,
// whatever the duration menu shows.
class QuickAdd {
public:
    explicit QuickAdd(AppDelegate& app);

    static QString blankMessage()
    {
        return QStringLiteral(" Task name is blank! Please enter task name. ");
    }

    // "No Project" and then every project's name; the selection is the selected project, else 0.
    QStringList projectChoices() const;
    int selectedProjectIndex() const;
    static QStringList durationChoices();

    // "23 Nov 2026" and "at 10:25 AM", or "No" and "date" without a date.
    QString dateLabel() const;
    QString timeLabel() const;
    // The date that opening the date picker starts from.
    Date pickerStart() const;
    void doSelectDate(Date date) { dtReminderQuickAdd = date; }
    void doUnsetDate() { dtReminderQuickAdd.reset(); }

    // Adds the task; nothing for a blank name.
    ReminderInfo* onDoAdd(const QString& name, const QString& projectChoice);

    std::optional<Date> dtReminderQuickAdd;

private:
    AppDelegate& m_app;
};

} // namespace lullet
