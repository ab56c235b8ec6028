#include "ui/prompts/TodoPromptView.h"

#include "core/app/Services.h"
#include "ui/prompts/PromptLayout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

TodoPromptView::TodoPromptView(const Services& services, Item* item, QWidget* parent)
    : PromptView(parent)
    , m_prompt(services.itemActions, item)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(PromptLayout::heading(tr("Lullet"), this));
    QLabel* message = PromptLayout::message(this);
    PromptLayout::setMessage(message, m_prompt.text());
    layout->addWidget(message);
    auto* actions = new QHBoxLayout;
    QPushButton* done = PromptLayout::button(tr("Done"), this, true);
    done->setObjectName(QStringLiteral("done"));
    QPushButton* dismiss = PromptLayout::button(tr("Not now"), this);
    dismiss->setObjectName(QStringLiteral("dismiss"));
    actions->addWidget(done);
    actions->addStretch();
    actions->addWidget(dismiss);
    layout->addLayout(actions);
    connect(done, &QPushButton::clicked, this,
            [this] { respond([this] { return m_prompt.done(); }); });
    connect(dismiss, &QPushButton::clicked, this,
            [this] { respond([] { return TodoPrompt::dismiss(); }); });
}

} // namespace lullet
