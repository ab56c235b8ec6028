#include "ui/shell/PauseActions.h"

#include "core/monitor/ReminderPause.h"

#include <QMenu>

#include <functional>
#include <utility>

namespace lullet {

PauseActions::PauseActions(ReminderPause& pause, QObject* parent)
    : QObject(parent)
    , m_pause(pause)
{
    connect(&m_pause, &ReminderPause::changed, this, &PauseActions::update);
}

void PauseActions::addTo(QMenu* menu, QAction* before)
{
    auto* lengths = new QMenu(tr("Pause Reminders"), menu);
    lengths->setObjectName(QStringLiteral("pauseReminders"));
    ReminderPause& pause = m_pause;
    const std::pair<QString, std::function<void()>> choices[] = {
        {tr("For 30 Minutes"), [&pause] { pause.pauseFor(30); }},
        {tr("For 1 Hour"), [&pause] { pause.pauseFor(60); }},
        {tr("For 2 Hours"), [&pause] { pause.pauseFor(120); }},
        {tr("Until Tomorrow"), [&pause] { pause.pauseUntilTomorrow(); }},
        {tr("Until I Resume"), [&pause] { pause.pauseUntilResumed(); }},
    };
    for (const auto& [text, act] : choices)
        connect(lengths->addAction(text), &QAction::triggered, this, act);
    auto* resume = new QAction(tr("Resume Reminders"), menu);
    resume->setObjectName(QStringLiteral("resumeReminders"));
    connect(resume, &QAction::triggered, &pause, &ReminderPause::resume);
    menu->insertMenu(before, lengths);
    menu->insertAction(before, resume);
    menu->insertSeparator(before);
    m_resumes.push_back(resume);
    update();
}

void PauseActions::update()
{
    const bool paused = m_pause.isPaused();
    for (QAction* resume : m_resumes)
        resume->setVisible(paused);
}

} // namespace lullet
