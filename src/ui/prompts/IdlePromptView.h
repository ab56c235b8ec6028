#pragma once

#include "core/monitor/IdlePrompt.h"
#include "core/presentation/ProjectChoices.h"
#include "ui/prompts/PromptView.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace lullet {

class Project;
struct Services;

// The idle question: what were you doing (or, asked now, what are you doing now)? The answer
// becomes an item that began when the gap began.
class IdlePromptView final : public PromptView {
    Q_OBJECT
public:
    // The project menu starts on `selected`, the project the main view shows, if any.
    IdlePromptView(const Services& services, Date since, bool askNow, const Project* selected,
                   QWidget* parent = nullptr);

    const IdlePrompt& prompt() const { return m_prompt; }
    QLineEdit* answerField() const { return m_answer; }

    // Another question came while this one is open: it goes on counting.
    void extend(bool askNow);
    // The question goes away unanswered; the next one takes over its gap.
    void leaveUnanswered() { m_prompt.leaveUnanswered(); }
    // Put off: it comes back after one prompt period.
    void dismiss() override;

private:
    void buildQuestion(QVBoxLayout* layout);
    void buildQuickChoices(QVBoxLayout* layout);
    void buildAnswerRow(QVBoxLayout* layout);
    void fillProjects(const Project* selected);
    void showTimes();
    void chooseQuickAnswer(const QString& title);
    void answer(bool alreadyDone);

    const Services& m_services;
    IdlePrompt m_prompt;
    ProjectChoices m_choices;
    QLabel* m_range = nullptr;
    QLineEdit* m_answer = nullptr;
    QComboBox* m_projects = nullptr;
};

} // namespace lullet
