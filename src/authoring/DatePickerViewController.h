#pragma once

#include "core/dates/Date.h"

#include <QFrame>

#include <optional>

class QCalendarWidget;
class QTimeEdit;

namespace lullet {

class AppDelegate;

// The small date-and-time chooser of the forms. It answers through notifications: "doSelectDate"
// with the asking field's id and the date, or "doUnsetDate". It closes on a click elsewhere.
class DatePickerViewController final : public QFrame {
    Q_OBJECT
public:
    DatePickerViewController(AppDelegate& app, QString strId, std::optional<Date> dtInitialToSet,
                             std::optional<Date> dtMinimum, QWidget* parent = nullptr);

    // Shows the chooser below the given widget.
    void popUpBelow(QWidget* anchor);

private:
    void onChooseDate();
    void onSetToNoDate();
    Date chosen() const;

    AppDelegate& m_app;
    QString m_strId;
    QCalendarWidget* dtPicker;
    QTimeEdit* dtPickerTime;
};

} // namespace lullet
