#pragma once

#include "core/dates/Date.h"

#include <QFrame>

#include <optional>

class QCalendarWidget;

namespace lullet {

class TimeField;

// The small date-and-time chooser of the forms. It answers the form that opened it with
// chosen() or unset(), and closes on a click elsewhere.
class DateChooser final : public QFrame {
    Q_OBJECT
public:
    DateChooser(std::optional<Date> initial, std::optional<Date> minimum,
                QWidget* parent = nullptr);

    // Shows the chooser below the given widget, or above it, wholly on the screen.
    void popUpBelow(QWidget* anchor);

protected:
    void keyPressEvent(QKeyEvent* event) override;

Q_SIGNALS:
    void chosen(lullet::Date date);
    // The user wants no date at all.
    void unset();

private:
    void choose();
    Date selected() const;

    QCalendarWidget* m_calendar;
    TimeField* m_time;
};

} // namespace lullet
