#include "lists/PostponeViewControllerNew.h"

#include "core/app/AppDelegate.h"
#include "core/dates/Clock.h"
#include "monitor/Postponing.h"

#include <QDateTimeEdit>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace lullet {

namespace {

QDateTime toQDateTime(Date d)
{
    return QDateTime::fromMSecsSinceEpoch(qint64(d.timeIntervalSince1970() * 1000.0));
}

} // namespace

PostponeViewControllerNew::PostponeViewControllerNew(AppDelegate& app, ReminderInfo* task,
                                                     QWidget* parent)
    : QFrame(parent, Qt::Popup)
    , m_app(app)
    , objTask(task)
    , viewMainOptions(new QWidget(this))
    , viewDateChoice(new QWidget(this))
    , dtPicker(new QDateTimeEdit(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    const Clock& clock = m_app.clock();
    // The captions count from the base, but never from before now.
    Date base = task ? Postponing::panelBase(*task, clock) : clock.now();
    base = std::max(base, clock.now());

    auto* layout = new QVBoxLayout(this);
    auto* grid = new QGridLayout(viewMainOptions);
    grid->setContentsMargins(0, 0, 0, 0);
    const std::pair<int, QString> choices[] = {
        {Postponing::InThreeHours, tr("In 3 hours")},
        {Postponing::ThisEvening, Postponing::eveningLabel(base, clock)},
        {Postponing::Tomorrow, Postponing::nextDayLabel(base, clock)},
        {Postponing::InTwoDays, Postponing::inTwoDaysLabel(base)},
        {Postponing::ThisWeekend, Postponing::weekendLabel(base)},
        {Postponing::NextWeek, tr("Next week")},
        {Postponing::NoDate, tr("No date")},
        {Postponing::PickDate, tr("Pick date…")},
    };
    int i = 0;
    for (const auto& [tag, caption] : choices) {
        auto* button = new QPushButton(caption, viewMainOptions);
        button->setObjectName(QStringLiteral("option%1").arg(tag));
        button->setMinimumWidth(130);
        grid->addWidget(button, i / 2, i % 2);
        const int choice = tag;
        connect(button, &QPushButton::clicked, this, [this, choice] { onChooseOption(choice); });
        ++i;
    }
    layout->addWidget(viewMainOptions);

    auto* dateLayout = new QVBoxLayout(viewDateChoice);
    dateLayout->setContentsMargins(0, 0, 0, 0);
    dtPicker->setCalendarPopup(true);
    dtPicker->setMinimumDateTime(toQDateTime(clock.now()));
    dtPicker->setDateTime(toQDateTime(base));
    dateLayout->addWidget(dtPicker);
    auto* actions = new QHBoxLayout;
    auto* back = new QPushButton(tr("Back"), viewDateChoice);
    auto* apply = new QPushButton(tr("Postpone"), viewDateChoice);
    apply->setObjectName(QStringLiteral("onPostPoneToCustom"));
    apply->setDefault(true);
    actions->addWidget(back);
    actions->addStretch();
    actions->addWidget(apply);
    dateLayout->addLayout(actions);
    layout->addWidget(viewDateChoice);
    viewDateChoice->hide();
    connect(back, &QPushButton::clicked, this, [this] {
        viewDateChoice->hide();
        viewMainOptions->show();
        adjustSize();
    });
    connect(apply, &QPushButton::clicked, this, &PostponeViewControllerNew::onPostPoneToCustom);
}

void PostponeViewControllerNew::popUpAt(const QPoint& globalPos)
{
    adjustSize();
    move(globalPos - QPoint(width() / 2, 0));
    show();
}

void PostponeViewControllerNew::onChooseOption(int tag)
{
    if (tag == Postponing::PickDate) {
        viewMainOptions->hide();
        viewDateChoice->show();
        adjustSize();
        return;
    }
    if (Postponing::chooseInPanel(m_app, objTask, tag))
        close();
}

void PostponeViewControllerNew::onPostPoneToCustom()
{
    const qint64 ms = dtPicker->dateTime().toMSecsSinceEpoch();
    // Whole minutes: the picker shows no seconds.
    Postponing::postponeToCustom(m_app, objTask, Date(double(ms / 60000 * 60)));
}

} // namespace lullet
