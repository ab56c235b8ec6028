#include "ui/main/PostponePanel.h"

#include "core/activity/Postponing.h"
#include "core/app/Services.h"
#include "core/dates/Clock.h"
#include "core/dates/DateFormats.h"
#include "core/model/Item.h"
#include "core/scheduling/CatalogueEntries.h"

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

PostponePanel::PostponePanel(const Services& services, Item* item, QWidget* parent)
    : QFrame(parent, Qt::Popup)
    , m_clock(services.clock)
    , m_postponing(services.postponing)
    , m_item(item)
    , m_choices(new QWidget(this))
    , m_dateChoice(new QWidget(this))
    , m_dateTime(new QDateTimeEdit(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    const Date now = services.clock.now();
    // The captions count from the base, but never from before now.
    const Date base = std::max(item ? Postponing::panelBase(*item, services.clock) : now, now);
    auto* layout = new QVBoxLayout(this);
    auto* title = new QLabel(
        tr("Postpone %1")
            .arg(item ? CatalogueEntries::shown(item->title().value_or(QString())) : QString()),
        this);
    title->setObjectName(QStringLiteral("postponeTitle"));
    title->setWordWrap(true);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    layout->addWidget(title);
    buildChoices(base);
    layout->addWidget(m_choices);
    buildDateChoice(now, base);
    layout->addWidget(m_dateChoice);
    m_dateChoice->hide();
}

void PostponePanel::buildChoices(Date base)
{
    auto* grid = new QGridLayout(m_choices);
    grid->setContentsMargins(0, 0, 0, 0);
    const std::pair<int, QString> choices[] = {
        {Postponing::InThreeHours, tr("In 3 hours")},
        {Postponing::ThisEvening, Postponing::eveningLabel(base, m_clock)},
        {Postponing::Tomorrow, Postponing::nextDayLabel(base, m_clock)},
        {Postponing::InTwoDays, Postponing::inTwoDaysLabel(base)},
        {Postponing::ThisWeekend, Postponing::weekendLabel(base)},
        {Postponing::NextWeek, tr("Next week")},
        {Postponing::NoDate, tr("No date")},
        {Postponing::PickDate, tr("Pick date…")},
    };
    int i = 0;
    for (const auto& [choice, caption] : choices) {
        // Each named choice shows where it leads: "Tomorrow" and, below it, "Tue 24 Nov 9:00 AM".
        const std::optional<Date> to = Postponing::dateFor(choice, base, m_clock);
        const QString when =
            to ? to->toString(DateFormat::custom(tr("EEE d MMM", "ICU date pattern"))) + u' ' +
                     to->toString(DateStyle::None, DateStyle::Short)
               : QString();
        auto* button =
            new QPushButton(when.isEmpty() ? caption : caption + u'\n' + when, m_choices);
        button->setObjectName(QStringLiteral("choice%1").arg(choice));
        button->setMinimumWidth(130);
        grid->addWidget(button, i / 2, i % 2);
        const int tag = choice;
        connect(button, &QPushButton::clicked, this, [this, tag] { choose(tag); });
        ++i;
    }
}

void PostponePanel::buildDateChoice(Date now, Date base)
{
    auto* layout = new QVBoxLayout(m_dateChoice);
    layout->setContentsMargins(0, 0, 0, 0);
    m_dateTime->setCalendarPopup(true);
    m_dateTime->setMinimumDateTime(toQDateTime(now));
    m_dateTime->setDateTime(toQDateTime(base));
    layout->addWidget(m_dateTime);
    auto* actions = new QHBoxLayout;
    auto* back = new QPushButton(tr("Back"), m_dateChoice);
    auto* apply = new QPushButton(tr("Postpone"), m_dateChoice);
    apply->setObjectName(QStringLiteral("postponeToChosenDate"));
    apply->setDefault(true);
    actions->addWidget(back);
    actions->addStretch();
    actions->addWidget(apply);
    layout->addLayout(actions);
    connect(back, &QPushButton::clicked, this, [this] {
        m_dateChoice->hide();
        m_choices->show();
        adjustSize();
    });
    connect(apply, &QPushButton::clicked, this, &PostponePanel::postponeToChosenDate);
}

void PostponePanel::popUpAt(const QPoint& globalPos)
{
    adjustSize();
    move(globalPos - QPoint(width() / 2, 0));
    show();
}

void PostponePanel::choose(int choice)
{
    if (choice == Postponing::PickDate) {
        m_choices->hide();
        m_dateChoice->show();
        adjustSize();
        return;
    }
    if (m_postponing.chooseInPanel(m_item, choice))
        close();
}

void PostponePanel::postponeToChosenDate()
{
    // Whole minutes: the chooser shows no seconds.
    const qint64 minutes = m_dateTime->dateTime().toMSecsSinceEpoch() / 60000;
    m_postponing.postponeTo(m_item, Date(double(minutes * 60)));
}

} // namespace lullet
