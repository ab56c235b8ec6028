#include "core/monitor/PromptQueue.h"

#include "core/activity/RunningItem.h"
#include "core/model/Item.h"
#include "core/monitor/PromptPort.h"

#include <algorithm>

namespace lullet {

namespace {

using Kind = PromptRequest::Kind;

bool isIdle(const PromptRequest& request)
{
    return request.kind == Kind::IdleQuestion;
}

bool sameAsking(const PromptRequest& a, const PromptRequest& b)
{
    return a.kind == b.kind && a.item == b.item;
}

} // namespace

PromptQueue::PromptQueue(const RunningItem& running, QObject* parent)
    : QObject(parent)
    , m_running(running)
{
}

void PromptQueue::setPort(PromptPort* port)
{
    // A prompt on show in windows that went was never answered: it is shown again first.
    if (m_shown && port != m_port) {
        m_waiting.push_front(*m_shown);
        m_shown.reset();
    }
    m_port = port;
    showNextLater();
}

void PromptQueue::add(const PromptRequest& request)
{
    if (isIdle(request)) {
        addIdleQuestion(request);
        return;
    }
    // A to-do falls due each day, a time-over each period: asked once until answered.
    if (!request.item || !request.item->hasContext() || isWaitingOrShown(request))
        return;
    // In the order they fell due, all before the idle question.
    const auto idle = std::find_if(m_waiting.begin(), m_waiting.end(), isIdle);
    m_waiting.insert(idle, request);
    if (m_shown && isIdle(*m_shown) && !m_held && m_port) {
        // The question gives way and comes back after, over the whole gap.
        m_waiting.push_back(*m_shown);
        m_port->withdrawIdleQuestion();
    }
    Q_EMIT changed();
    showNextLater();
}

void PromptQueue::addIdleQuestion(const PromptRequest& request)
{
    if (m_shown && isIdle(*m_shown)) {
        if (m_port)
            m_port->extendIdleQuestion(request.askNow);
        return;
    }
    // One question, over the longest gap, in the latest mode.
    const auto waiting = std::find_if(m_waiting.begin(), m_waiting.end(), isIdle);
    if (waiting != m_waiting.end()) {
        waiting->askNow = request.askNow;
        return;
    }
    m_waiting.push_back(request);
    Q_EMIT changed();
    showNextLater();
}

bool PromptQueue::isWaitingOrShown(const PromptRequest& request) const
{
    if (m_shown && sameAsking(*m_shown, request))
        return true;
    return std::any_of(m_waiting.begin(), m_waiting.end(),
                       [&request](const PromptRequest& w) { return sameAsking(w, request); });
}

void PromptQueue::closed()
{
    if (!m_shown)
        return;
    m_shown.reset();
    Q_EMIT changed();
    showNextLater();
}

void PromptQueue::setHeld(bool held)
{
    if (m_held == held)
        return;
    m_held = held;
    Q_EMIT changed();
    if (!held)
        showNextLater();
}

bool PromptQueue::stillDue(PromptRequest& request) const
{
    Item* item = request.item;
    switch (request.kind) {
    case Kind::IdleQuestion:
        return !m_running.item();
    case Kind::TimeOver:
        return m_running.isRunning(item);
    case Kind::ToDo:
        return item->hasContext() && !item->isFinished();
    case Kind::Reminder:
        if (!item->hasContext() || item->isFinished() || item->isStarted())
            return false;
        // The item that ran when this one fell due may have ended since.
        if (request.previous && (!request.previous->hasContext() || !request.previous->isStarted()))
            request.previous = nullptr;
        return true;
    }
    return false;
}

void PromptQueue::showNextLater()
{
    // After the current work: a port that closes one prompt is not asked for the next one inside
    // that closing.
    if (m_showPending)
        return;
    m_showPending = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_showPending = false;
            showNext();
        },
        Qt::QueuedConnection);
}

void PromptQueue::showNext()
{
    if (m_shown || m_held || !m_port)
        return;
    while (!m_waiting.empty()) {
        PromptRequest next = m_waiting.front();
        m_waiting.pop_front();
        if (!stillDue(next))
            continue;
        m_shown = next;
        Q_EMIT changed();
        m_port->present(next);
        return;
    }
    Q_EMIT changed();
}

} // namespace lullet
