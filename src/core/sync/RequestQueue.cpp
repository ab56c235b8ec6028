#include "core/sync/RequestQueue.h"

#include "core/sync/HttpPort.h"

#include <utility>

namespace lullet {

namespace {

// Enough to hide the network's latency, few enough for any server.
constexpr int parallelRequests = 4;

} // namespace

RequestQueue::RequestQueue(HttpPort& port, std::function<void()> settled)
    : m_port(port)
    , m_settled(std::move(settled))
{
}

void RequestQueue::add(std::function<void()> request)
{
    m_waiting.push_back(std::move(request));
}

void RequestQueue::run(std::function<void()> then)
{
    if (then)
        m_then = std::move(then);
    while (!m_stopped && m_inFlight < parallelRequests && !m_waiting.empty()) {
        const std::function<void()> request = std::move(m_waiting.front());
        m_waiting.pop_front();
        request();
    }
    if (!m_stopped && m_inFlight == 0 && m_waiting.empty() && m_then)
        std::exchange(m_then, {})();
}

void RequestQueue::stop()
{
    if (m_stopped)
        return;
    m_stopped = true;
    m_waiting.clear();
    m_then = {};
    m_port.abortAll();
    settle();
}

void RequestQueue::settle()
{
    if (m_inFlight == 0 && m_settled)
        m_settled();
}

} // namespace lullet
