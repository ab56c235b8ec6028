#pragma once

#include <deque>
#include <functional>

namespace lullet {

class HttpPort;

// The requests of one synchronisation: a few under way at once, each counted until its answer
// returns, and the first failure stopping the rest. Answers that return after a stop are
// dropped; once none is under way any more, `settled` is called.
class RequestQueue {
public:
    RequestQueue(HttpPort& port, std::function<void()> settled);

    void add(std::function<void()> request);
    // Starts what may be started; `then` runs once every request added so far has its answer.
    void run(std::function<void()> then = {});
    // Wraps the answer of a request that starts now.
    template <class F> auto answer(F f)
    {
        ++m_inFlight;
        return [this, f](auto&&... args) {
            --m_inFlight;
            if (m_stopped)
                settle();
            else
                f(args...);
        };
    }
    // Nothing more starts, and what is under way is abandoned.
    void stop();
    bool isStopped() const { return m_stopped; }
    bool isIdle() const { return m_inFlight == 0; }

private:
    void settle();

    HttpPort& m_port;
    std::function<void()> m_settled;
    std::deque<std::function<void()>> m_waiting;
    std::function<void()> m_then;
    int m_inFlight = 0;
    bool m_stopped = false;
};

} // namespace lullet
