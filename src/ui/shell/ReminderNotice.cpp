#include "ui/shell/ReminderNotice.h"

#include "ui/desktop/DesktopNotifier.h"
#include "ui/prompts/ReminderPromptView.h"

#include <utility>

namespace lullet {

namespace {
const QString startKey = QStringLiteral("start");
const QString laterKey = QStringLiteral("postpone10");
} // namespace

ReminderNotice::ReminderNotice(DesktopNotifier& notifier, std::function<bool()> promptMayBeUnseen,
                               QObject* parent)
    : QObject(parent)
    , m_notifier(notifier)
    , m_promptMayBeUnseen(std::move(promptMayBeUnseen))
{
    connect(&m_notifier, &DesktopNotifier::actionInvoked, this, &ReminderNotice::onAction);
}

void ReminderNotice::announce(ReminderPromptView* prompt)
{
    if (!prompt || !prompt->prompt().due() || !m_promptMayBeUnseen())
        return;
    m_prompt = prompt;
    m_notifier.show(tr("Reminder"), prompt->prompt().reminderText(),
                    {{DesktopNotifier::defaultAction, tr("Show")},
                     {startKey, tr("Start")},
                     {laterKey, tr("In 10 min")}});
}

void ReminderNotice::retire(const QWidget* prompt)
{
    if (m_prompt && m_prompt == prompt) {
        m_prompt = nullptr;
        m_notifier.close();
    }
}

void ReminderNotice::onAction(const QString& key)
{
    if (!m_prompt)
        return;
    if (key == startKey)
        m_prompt->start();
    else if (key == laterKey)
        m_prompt->postpone10();
    else if (key == DesktopNotifier::defaultAction)
        Q_EMIT promptWanted();
}

} // namespace lullet
