#include "ui/shell/PromptPresenter.h"

#include "core/app/Services.h"
#include "core/monitor/Monitor.h"
#include "core/monitor/PromptQueue.h"
#include "core/settings/Settings.h"
#include "ui/desktop/PromptSound.h"
#include "ui/prompts/IdlePromptView.h"
#include "ui/prompts/ReminderPromptView.h"
#include "ui/prompts/TimeOverPromptView.h"
#include "ui/prompts/TodoPromptView.h"
#include "ui/shell/ReminderNotice.h"
#include "ui/shell/Tray.h"
#include "ui/widgets/Popover.h"

namespace lullet {

PromptPresenter::PromptPresenter(const Services& services, Tray& tray, DesktopNotifier& notifier,
                                 PromptSound* sound, std::function<bool()> promptMayBeUnseen,
                                 std::function<const Project*()> shownProject, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_tray(tray)
    , m_sound(sound)
    , m_reminderNotice(new ReminderNotice(notifier, std::move(promptMayBeUnseen), this))
    , m_shownProject(std::move(shownProject))
{
    connect(m_reminderNotice, &ReminderNotice::promptWanted, this, [this] {
        if (Popover* open = m_tray.popover())
            open->activate();
    });
    connect(&m_tray, &Tray::retiring, this, &PromptPresenter::onRetiring);
    m_services.prompts.setPort(this);
}

PromptPresenter::~PromptPresenter()
{
    m_services.prompts.setPort(nullptr);
}

QWidget* PromptPresenter::make(const PromptRequest& request)
{
    using Kind = PromptRequest::Kind;
    switch (request.kind) {
    case Kind::Reminder: {
        auto* view = new ReminderPromptView(m_services, request.item, request.previous);
        m_reminderNotice->announce(view);
        return view;
    }
    case Kind::IdleQuestion:
        return new IdlePromptView(m_services, request.since, request.askNow, m_shownProject());
    case Kind::TimeOver:
        return new TimeOverPromptView(m_services, request.item);
    case Kind::ToDo:
        return new TodoPromptView(m_services, request.item);
    }
    return nullptr;
}

void PromptPresenter::sound(const PromptRequest& request)
{
    if (!m_sound || !m_services.settings.promptSound())
        return;
    using Kind = PromptRequest::Kind;
    switch (request.kind) {
    case Kind::Reminder:
    case Kind::ToDo:
        m_sound->play(PromptSound::Kind::Reminder);
        return;
    case Kind::TimeOver:
        m_sound->play(PromptSound::Kind::TimeOver);
        return;
    case Kind::IdleQuestion:
        m_sound->play(PromptSound::Kind::Question);
        return;
    }
}

void PromptPresenter::present(const PromptRequest& request)
{
    // Held or paused, nothing is presented, so nothing sounds.
    sound(request);
    m_tray.show([this, request] {
        QWidget* content = make(request);
        if (auto* prompt = qobject_cast<PromptView*>(content))
            connect(prompt, &PromptView::answered, this, &PromptPresenter::onAnswered);
        return content;
    });
}

void PromptPresenter::extendIdleQuestion(bool askNow)
{
    const Popover* open = m_tray.popover();
    if (auto* idle = open ? qobject_cast<IdlePromptView*>(open->content()) : nullptr)
        idle->extend(askNow);
}

void PromptPresenter::withdrawIdleQuestion()
{
    m_tray.closePopover();
}

bool PromptPresenter::showsPrompt() const
{
    const Popover* open = m_tray.popover();
    return open && open->isShown() && qobject_cast<PromptView*>(open->content());
}

bool PromptPresenter::bringForward()
{
    Popover* open = m_tray.popover();
    if (!showsPrompt() || open->isActiveWindow())
        return false;
    open->activate();
    return true;
}

void PromptPresenter::dismiss()
{
    if (showsPrompt())
        qobject_cast<PromptView*>(m_tray.popover()->content())->dismiss();
}

void PromptPresenter::onAnswered(PromptOutcome outcome)
{
    switch (outcome) {
    case PromptOutcome::Stay:
        return;
    case PromptOutcome::Close:
        m_tray.closePopover();
        return;
    case PromptOutcome::CloseAndAsk:
        m_tray.closePopover();
        m_services.monitor.askWhatNow();
        return;
    case PromptOutcome::CloseAtOnceAndAsk:
        m_tray.closePopoverImmediate();
        m_services.monitor.askWhatNow();
        return;
    }
}

void PromptPresenter::onRetiring(QWidget* content)
{
    if (!qobject_cast<PromptView*>(content))
        return;
    m_reminderNotice->retire(content);
    // An idle question that goes unanswered hands its gap to the next question, before that one
    // is made.
    if (auto* idle = qobject_cast<IdlePromptView*>(content))
        idle->leaveUnanswered();
    m_services.prompts.closed();
}

} // namespace lullet
