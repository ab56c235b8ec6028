#include "ui/prompts/TimeOverPromptView.h"

#include "core/app/Services.h"
#include "ui/prompts/PromptLayout.h"

#include <QLabel>
#include <QVBoxLayout>

namespace lullet {

TimeOverPromptView::TimeOverPromptView(const Services& services, Item* item, QWidget* parent)
    : PromptView(parent)
    , m_prompt(services.running, item)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(PromptLayout::heading(tr("Time is up"), this));
    QLabel* question = PromptLayout::message(this);
    PromptLayout::setMessage(question, m_prompt.question());
    question->setVisible(item != nullptr);
    layout->addWidget(question);

    layout->addLayout(finishedOrMoreTime(
        this, QStringLiteral("finish"), [this] { return m_prompt.finish(); },
        [this](int minutes) { return m_prompt.moreTime(minutes); }, true));
}

} // namespace lullet
