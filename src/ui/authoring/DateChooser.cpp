#include "ui/authoring/DateChooser.h"

#include "ui/widgets/PanelPlacement.h"
#include "ui/widgets/TimeField.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

DateChooser::DateChooser(std::optional<Date> initial, std::optional<Date> minimum, QWidget* parent)
    : QFrame(parent, Qt::Popup | Qt::FramelessWindowHint)
    , m_calendar(new QCalendarWidget(this))
    , m_time(new TimeField(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    auto* layout = new QVBoxLayout(this);
    m_calendar->setObjectName(QStringLiteral("calendar"));
    m_calendar->setGridVisible(false);
    layout->addWidget(m_calendar);
    auto* row = new QHBoxLayout;
    m_time->setObjectName(QStringLiteral("time"));
    row->addWidget(m_time);
    row->addStretch();
    auto* none = new QPushButton(tr("No date"), this);
    none->setObjectName(QStringLiteral("noDate"));
    // Return on a button presses it; anywhere else it chooses the date shown.
    none->setAutoDefault(true);
    auto* set = new QPushButton(tr("Set"), this);
    set->setObjectName(QStringLiteral("set"));
    set->setDefault(true);
    row->addWidget(none);
    row->addWidget(set);
    layout->addLayout(row);

    if (minimum)
        m_calendar->setMinimumDate(QDate(minimum->year(), minimum->month(), minimum->day()));
    if (initial) {
        m_calendar->setSelectedDate(QDate(initial->year(), initial->month(), initial->day()));
        m_time->setTime(QTime(initial->hour(), initial->minute()));
    }
    connect(set, &QPushButton::clicked, this, &DateChooser::choose);
    connect(m_calendar, &QCalendarWidget::activated, this, &DateChooser::choose);
    connect(none, &QPushButton::clicked, this, [this] {
        Q_EMIT unset();
        close();
    });
}

void DateChooser::popUpBelow(QWidget* anchor)
{
    adjustSize();
    const QRect at = PanelPlacement::globalRect(anchor);
    move(PanelPlacement::below(at, at.left(), size(), PanelPlacement::areaAt(at.center())));
    show();
    m_calendar->setFocus();
}

void DateChooser::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        choose();
        return;
    }
    QFrame::keyPressEvent(event);
}

Date DateChooser::selected() const
{
    const QDate day = m_calendar->selectedDate();
    const QTime time = m_time->time();
    return Date::dateFromComponents(day.year(), day.month(), day.day(), time.hour(), time.minute(),
                                    0);
}

void DateChooser::choose()
{
    Q_EMIT chosen(selected());
    close();
}

} // namespace lullet
