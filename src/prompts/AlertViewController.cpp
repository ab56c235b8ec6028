#include "prompts/AlertViewController.h"

#include "core/app/AppDelegate.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "monitor/IdlePrompt.h"
#include "prompts/PromptLayout.h"
#include "shell/ErrorBalloon.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

AlertViewController::AlertViewController(AppDelegate& app, Date since, bool autoPromptMode,
                                         QWidget* parent)
    : QWidget(parent)
    , txtTaskName(new QLineEdit(this))
    , m_app(app)
    , m_prompt(std::make_unique<IdlePrompt>(app, since, autoPromptMode))
    , lblTimeRange(new QLabel(this))
    , popupBtnProjects(new QComboBox(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* top = new QHBoxLayout;
    top->addWidget(PromptLayout::heading(tr("What have you been doing?"), this));
    top->addStretch();
    lblTimeRange->setForegroundRole(QPalette::PlaceholderText);
    top->addWidget(lblTimeRange);
    layout->addLayout(top);

    txtTaskName->setObjectName(QStringLiteral("txtTaskName"));
    txtTaskName->setMinimumWidth(300);
    layout->addWidget(txtTaskName);

    // Quick choices: each copies its title into the field.
    auto* quick = new QGridLayout;
    const QStringList choices = {tr("Meeting"), tr("Email"), tr("Phone call"),
                                 tr("Break"),   tr("Lunch"), tr("Reading")};
    for (int i = 0; i < choices.size(); ++i) {
        auto* b = new QPushButton(choices[i], this);
        b->setFlat(true);
        b->setAutoDefault(false);
        quick->addWidget(b, i / 3, i % 3);
        connect(b, &QPushButton::clicked, this, [this, b] { onSelectDefaultTask(b->text()); });
    }
    layout->addLayout(quick);

    auto* bottom = new QHBoxLayout;
    popupBtnProjects->setObjectName(QStringLiteral("popupBtnProjects"));
    bottom->addWidget(popupBtnProjects, 1);
    QPushButton* alreadyDone = PromptLayout::button(tr("Done already"), this);
    alreadyDone->setObjectName(QStringLiteral("onDoneAlready"));
    QPushButton* running = PromptLayout::button(tr("Start"), this, true);
    running->setObjectName(QStringLiteral("onDone"));
    bottom->addWidget(alreadyDone);
    bottom->addWidget(running);
    layout->addLayout(bottom);

    connect(running, &QPushButton::clicked, this, [this] { onDone(false); });
    connect(alreadyDone, &QPushButton::clicked, this, [this] { onDone(true); });
    // The return key answers from the field, which leaves the item running.
    connect(txtTaskName, &QLineEdit::returnPressed, this, [this] { onDone(false); });

    setProjectsChoice();
    NotificationCenter& center = m_app.notifCenter();
    center.addObserver(this, notification::onIdleTimeExtended, [this](const QVariant& object) {
        if (object.canConvert<bool>())
            m_prompt->onIdleTimeExtended(object.toBool());
        setDisplaysForIdleTime();
    });
    center.addObserver(this, notification::onProjectAddedOrRemoved,
                       [this](const QVariant&) { setProjectsChoice(); });
    setDisplaysForIdleTime();
}

AlertViewController::~AlertViewController() = default;

void AlertViewController::setProjectsChoice()
{
    const QString current = popupBtnProjects->currentText();
    popupBtnProjects->clear();
    popupBtnProjects->addItems(m_prompt->projectChoices());
    const int previous = popupBtnProjects->findText(current);
    popupBtnProjects->setCurrentIndex(
        current.isEmpty() || previous < 0 ? m_prompt->selectedProjectIndex() : previous);
}

void AlertViewController::setDisplaysForIdleTime()
{
    lblTimeRange->setText(m_prompt->rangeText());
    txtTaskName->setPlaceholderText(m_prompt->questionText());
}

void AlertViewController::onSelectDefaultTask(const QString& title)
{
    txtTaskName->setText(title);
    txtTaskName->end(false);
    txtTaskName->setFocus();
}

void AlertViewController::onDone(bool alreadyDone)
{
    const IdlePrompt::Result result =
        m_prompt->onDone(txtTaskName->text(), popupBtnProjects->currentText(), alreadyDone);
    if (result == IdlePrompt::Result::Blank)
        ErrorBalloon::showErrorMessage(IdlePrompt::blankMessage(), txtTaskName);
}

} // namespace lullet
