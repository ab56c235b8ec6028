#include "prompts/LulletAlertViewController.h"

#include "prompts/PromptLayout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

LulletAlertViewController::LulletAlertViewController(AppDelegate& app, ReminderInfo* item,
                                                     QWidget* parent)
    : QWidget(parent)
    , m_prompt(app, item)
    , lblTODONotification(PromptLayout::message(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(PromptLayout::heading(tr("Lullet"), this));
    lblTODONotification->setText(m_prompt.text());
    layout->addWidget(lblTODONotification);
    auto* actions = new QHBoxLayout;
    QPushButton* done = PromptLayout::button(tr("Done"), this, true);
    done->setObjectName(QStringLiteral("onDone"));
    QPushButton* cancel = PromptLayout::button(tr("Not now"), this);
    cancel->setObjectName(QStringLiteral("onCancel"));
    actions->addWidget(done);
    actions->addStretch();
    actions->addWidget(cancel);
    layout->addLayout(actions);
    connect(done, &QPushButton::clicked, this, [this] { m_prompt.onDone(); });
    connect(cancel, &QPushButton::clicked, this, [this] { m_prompt.onCancel(); });
}

} // namespace lullet
