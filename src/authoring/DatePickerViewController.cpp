#include "authoring/DatePickerViewController.h"

#include "core/app/AppDelegate.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTimeEdit>
#include <QVBoxLayout>

namespace lullet {

DatePickerViewController::DatePickerViewController(AppDelegate& app, QString strId,
                                                   std::optional<Date> initial,
                                                   std::optional<Date> minimum, QWidget* parent)
    : QFrame(parent, Qt::Popup)
    , m_app(app)
    , m_strId(std::move(strId))
    , dtPicker(new QCalendarWidget(this))
    , dtPickerTime(new QTimeEdit(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    auto* layout = new QVBoxLayout(this);
    dtPicker->setObjectName(QStringLiteral("dtPicker"));
    dtPicker->setGridVisible(false);
    layout->addWidget(dtPicker);
    auto* row = new QHBoxLayout;
    dtPickerTime->setObjectName(QStringLiteral("dtPickerTime"));
    row->addWidget(dtPickerTime);
    row->addStretch();
    auto* none = new QPushButton(tr("No date"), this);
    none->setObjectName(QStringLiteral("onSetToNoDate"));
    auto* choose = new QPushButton(tr("Set"), this);
    choose->setObjectName(QStringLiteral("onChooseDate"));
    choose->setDefault(true);
    row->addWidget(none);
    row->addWidget(choose);
    layout->addLayout(row);

    if (minimum)
        dtPicker->setMinimumDate(QDate(minimum->year(), minimum->month(), minimum->day()));
    if (initial) {
        dtPicker->setSelectedDate(QDate(initial->year(), initial->month(), initial->day()));
        dtPickerTime->setTime(QTime(initial->hour(), initial->minute()));
    }
    connect(choose, &QPushButton::clicked, this, &DatePickerViewController::onChooseDate);
    connect(dtPicker, &QCalendarWidget::activated, this, &DatePickerViewController::onChooseDate);
    connect(none, &QPushButton::clicked, this, &DatePickerViewController::onSetToNoDate);
}

void DatePickerViewController::popUpBelow(QWidget* anchor)
{
    adjustSize();
    move(anchor->mapToGlobal(QPoint(0, anchor->height())));
    show();
    dtPicker->setFocus();
}

Date DatePickerViewController::chosen() const
{
    const QDate day = dtPicker->selectedDate();
    const QTime time = dtPickerTime->time();
    return Date::dateFromComponents(day.year(), day.month(), day.day(), time.hour(), time.minute(),
                                    0);
}

void DatePickerViewController::onChooseDate()
{
    m_app.notifCenter().post(notification::doSelectDate,
                             QVariantList{m_strId, QVariant::fromValue(chosen())});
    close();
}

void DatePickerViewController::onSetToNoDate()
{
    m_app.notifCenter().post(notification::doUnsetDate);
    close();
}

} // namespace lullet
