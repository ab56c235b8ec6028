#include "prompts/ReminderViewController.h"

#include "prompts/MoreTimeMenu.h"
#include "prompts/PromptLayout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

ReminderViewController::ReminderViewController(AppDelegate& app, ReminderInfo* due,
                                               ReminderInfo* previous, QWidget* parent)
    : QWidget(parent)
    , m_prompt(app, due, previous)
    , lblReminderNotification(PromptLayout::message(this))
    , viewForPreviousReminder(new QWidget(this))
    , lblPrevReminderNotification(PromptLayout::message(viewForPreviousReminder))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(PromptLayout::heading(tr("Reminder"), this));
    lblReminderNotification->setText(m_prompt.reminderText());
    layout->addWidget(lblReminderNotification);

    auto* actions = new QHBoxLayout;
    QPushButton* start = PromptLayout::button(tr("Start"), this, true);
    start->setObjectName(QStringLiteral("onStart"));
    QPushButton* later10 = PromptLayout::button(tr("In 10 min"), this);
    later10->setObjectName(QStringLiteral("onPostpone10"));
    QPushButton* later30 = PromptLayout::button(tr("In 30 min"), this);
    later30->setObjectName(QStringLiteral("onPostpone30"));
    actions->addWidget(start);
    actions->addStretch();
    actions->addWidget(later10);
    actions->addWidget(later30);
    layout->addLayout(actions);
    connect(start, &QPushButton::clicked, this, [this] { m_prompt.onStart(); });
    connect(later10, &QPushButton::clicked, this, [this] { m_prompt.onPostpone10(); });
    connect(later30, &QPushButton::clicked, this, [this] { m_prompt.onPostpone30(); });

    // The question on the item still running, shown only when there is one.
    auto* previousLayout = new QVBoxLayout(viewForPreviousReminder);
    previousLayout->setContentsMargins(0, 8, 0, 0);
    lblPrevReminderNotification->setText(m_prompt.previousText());
    previousLayout->addWidget(lblPrevReminderNotification);
    auto* previousActions = new QHBoxLayout;
    QPushButton* finished = PromptLayout::button(tr("Finished"), viewForPreviousReminder);
    finished->setObjectName(QStringLiteral("finishedPrevious"));
    QPushButton* moreTime = PromptLayout::button(tr("Need more time"), viewForPreviousReminder);
    moreTime->setObjectName(QStringLiteral("onNeedMoreTime"));
    auto* menu = new MoreTimeMenu(
        [this](int minutes) { m_prompt.onNeedMoreTimeOptionSelected(minutes); }, this);
    moreTime->setMenu(menu);
    previousActions->addWidget(finished);
    previousActions->addStretch();
    previousActions->addWidget(moreTime);
    previousLayout->addLayout(previousActions);
    connect(finished, &QPushButton::clicked, this, [this] { m_prompt.finishedPrevious(); });
    layout->addWidget(viewForPreviousReminder);
    viewForPreviousReminder->setVisible(m_prompt.objReminderPrev != nullptr);
}

} // namespace lullet
