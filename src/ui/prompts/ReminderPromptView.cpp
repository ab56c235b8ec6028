#include "ui/prompts/ReminderPromptView.h"

#include "core/app/Services.h"
#include "ui/prompts/PromptLayout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

ReminderPromptView::ReminderPromptView(const Services& services, Item* due, Item* previous,
                                       QWidget* parent)
    : PromptView(parent)
    , m_prompt(services.postponing, services.running, due, previous)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    buildDueSection(layout);
    buildPreviousSection(layout);
}

void ReminderPromptView::buildDueSection(QVBoxLayout* layout)
{
    layout->addWidget(PromptLayout::heading(tr("Reminder"), this));
    QLabel* message = PromptLayout::message(this);
    PromptLayout::setMessage(message, m_prompt.reminderText());
    layout->addWidget(message);

    auto* actions = new QHBoxLayout;
    QPushButton* start = PromptLayout::button(tr("Start"), this, true);
    start->setObjectName(QStringLiteral("start"));
    QPushButton* later10 = PromptLayout::button(tr("In 10 min"), this);
    later10->setObjectName(QStringLiteral("postpone10"));
    QPushButton* later30 = PromptLayout::button(tr("In 30 min"), this);
    later30->setObjectName(QStringLiteral("postpone30"));
    actions->addWidget(start);
    actions->addStretch();
    actions->addWidget(later10);
    actions->addWidget(later30);
    layout->addLayout(actions);
    connect(start, &QPushButton::clicked, this, &ReminderPromptView::start);
    connect(later10, &QPushButton::clicked, this, &ReminderPromptView::postpone10);
    connect(later30, &QPushButton::clicked, this,
            [this] { respond([this] { return m_prompt.postpone30(); }); });
}

void ReminderPromptView::start()
{
    respond([this] { return m_prompt.start(); });
}

void ReminderPromptView::postpone10()
{
    respond([this] { return m_prompt.postpone10(); });
}

// The question on the item still running, shown only when there is one.
void ReminderPromptView::buildPreviousSection(QVBoxLayout* layout)
{
    auto* section = new QWidget(this);
    section->setObjectName(QStringLiteral("previousSection"));
    auto* inner = new QVBoxLayout(section);
    inner->setContentsMargins(0, 8, 0, 0);
    QLabel* question = PromptLayout::message(section);
    PromptLayout::setMessage(question, m_prompt.previousText());
    inner->addWidget(question);
    inner->addLayout(finishedOrMoreTime(
        section, QStringLiteral("finishPrevious"), [this] { return m_prompt.finishPrevious(); },
        [this](int minutes) { return m_prompt.moreTime(minutes); }, false));
    layout->addWidget(section);
    section->setVisible(m_prompt.previous() != nullptr);
}

} // namespace lullet
