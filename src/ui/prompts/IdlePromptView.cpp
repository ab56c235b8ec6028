#include "ui/prompts/IdlePromptView.h"

#include "core/app/Services.h"
#include "core/library/Library.h"
#include "ui/prompts/PromptLayout.h"
#include "ui/widgets/Balloon.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

IdlePromptView::IdlePromptView(const Services& services, Date since, bool askNow,
                               const Project* selected, QWidget* parent)
    : PromptView(parent)
    , m_services(services)
    , m_prompt(services.clock, services.library, services.running, since, askNow)
    , m_choices(services.library, IdlePrompt::noProjectChoice())
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    buildQuestion(layout);
    buildQuickChoices(layout);
    buildAnswerRow(layout);
    fillProjects(selected);
    showTimes();
    connect(&services.library, &Library::projectsChanged, this,
            [this] { fillProjects(m_choices.projectAt(m_projects->currentIndex())); });
}

void IdlePromptView::buildQuestion(QVBoxLayout* layout)
{
    auto* top = new QHBoxLayout;
    top->addWidget(PromptLayout::heading(tr("What have you been doing?"), this));
    top->addStretch();
    m_range = new QLabel(this);
    m_range->setForegroundRole(QPalette::PlaceholderText);
    top->addWidget(m_range);
    layout->addLayout(top);
    m_answer = new QLineEdit(this);
    m_answer->setObjectName(QStringLiteral("answerField"));
    m_answer->setAccessibleName(tr("What you have been doing"));
    m_answer->setMinimumWidth(300);
    layout->addWidget(m_answer);
    // The return key answers from the field, which leaves the item running.
    connect(m_answer, &QLineEdit::returnPressed, this, [this] { answer(false); });
}

// Quick choices: each copies its title into the field.
void IdlePromptView::buildQuickChoices(QVBoxLayout* layout)
{
    auto* grid = new QGridLayout;
    const QStringList choices = {tr("Meeting"), tr("Email"), tr("Phone call"),
                                 tr("Break"),   tr("Lunch"), tr("Reading")};
    for (int i = 0; i < choices.size(); ++i) {
        auto* button = new QPushButton(choices[i], this);
        button->setAutoDefault(false);
        button->setFocusPolicy(Qt::ClickFocus);
        grid->addWidget(button, i / 3, i % 3);
        connect(button, &QPushButton::clicked, this,
                [this, button] { chooseQuickAnswer(button->text()); });
    }
    layout->addLayout(grid);
}

void IdlePromptView::buildAnswerRow(QVBoxLayout* layout)
{
    auto* row = new QHBoxLayout;
    m_projects = new QComboBox(this);
    m_projects->setObjectName(QStringLiteral("projects"));
    row->addWidget(m_projects, 1);
    QPushButton* later = PromptLayout::button(tr("Later"), this);
    later->setObjectName(QStringLiteral("later"));
    later->setToolTip(tr("Ask again in one prompt period"));
    QPushButton* alreadyDone = PromptLayout::button(tr("Done already"), this);
    alreadyDone->setObjectName(QStringLiteral("alreadyDone"));
    QPushButton* start = PromptLayout::button(tr("Start"), this, true);
    start->setObjectName(QStringLiteral("answer"));
    row->addWidget(later);
    row->addWidget(alreadyDone);
    row->addWidget(start);
    layout->addLayout(row);
    connect(later, &QPushButton::clicked, this, &IdlePromptView::dismiss);
    connect(start, &QPushButton::clicked, this, [this] { answer(false); });
    connect(alreadyDone, &QPushButton::clicked, this, [this] { answer(true); });
}

void IdlePromptView::fillProjects(const Project* selected)
{
    m_choices = ProjectChoices(m_services.library, IdlePrompt::noProjectChoice());
    m_projects->clear();
    m_projects->addItems(m_choices.titles());
    m_projects->setCurrentIndex(m_choices.indexOf(selected));
}

void IdlePromptView::showTimes()
{
    m_range->setText(m_prompt.rangeText());
    m_answer->setPlaceholderText(m_prompt.questionText());
}

void IdlePromptView::extend(bool askNow)
{
    m_prompt.extend(askNow);
    showTimes();
}

void IdlePromptView::dismiss()
{
    respond([this] {
        m_prompt.putOff();
        return PromptOutcome::Close;
    });
}

void IdlePromptView::chooseQuickAnswer(const QString& title)
{
    m_answer->setText(title);
    m_answer->end(false);
    Balloon::dismiss(m_answer);
}

void IdlePromptView::answer(bool alreadyDone)
{
    Project* project = m_choices.projectAt(m_projects->currentIndex());
    respond([&] {
        const PromptOutcome outcome = m_prompt.answer(m_answer->text(), project, alreadyDone);
        if (outcome == PromptOutcome::Stay)
            Balloon::show(IdlePrompt::blankMessage(), m_answer);
        else
            Balloon::dismiss(m_answer);
        return outcome;
    });
}

} // namespace lullet
