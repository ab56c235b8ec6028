#include "prompts/TimeoverAlertViewController.h"

#include "prompts/MoreTimeMenu.h"
#include "prompts/PromptLayout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

TimeoverAlertViewController::TimeoverAlertViewController(AppDelegate& app, ReminderInfo* item,
                                                         QWidget* parent)
    : QWidget(parent)
    , m_prompt(app, item)
    , viewForPreviousReminder(new QWidget(this))
    , lblPrevReminderNotification(PromptLayout::message(viewForPreviousReminder))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(PromptLayout::heading(tr("Time is up"), this));
    auto* inner = new QVBoxLayout(viewForPreviousReminder);
    inner->setContentsMargins(0, 0, 0, 0);
    lblPrevReminderNotification->setText(m_prompt.previousText());
    inner->addWidget(lblPrevReminderNotification);
    layout->addWidget(viewForPreviousReminder);
    viewForPreviousReminder->setVisible(item != nullptr);

    auto* actions = new QHBoxLayout;
    QPushButton* finished = PromptLayout::button(tr("Finished"), this, true);
    finished->setObjectName(QStringLiteral("finishedPrevious"));
    QPushButton* moreTime = PromptLayout::button(tr("Need more time"), this);
    moreTime->setObjectName(QStringLiteral("onNeedMoreTime"));
    moreTime->setMenu(new MoreTimeMenu(
        [this](int minutes) { m_prompt.onNeedMoreTimeOptionSelected(minutes); }, this));
    actions->addWidget(finished);
    actions->addStretch();
    actions->addWidget(moreTime);
    layout->addLayout(actions);
    connect(finished, &QPushButton::clicked, this, [this] { m_prompt.finishedPrevious(); });
}

} // namespace lullet
