#pragma once

#include "core/dates/Clock.h"

namespace lullet::test {

// A clock that stands still until the test moves it.
class FakeClock final : public Clock {
public:
    explicit FakeClock(Date start = Date(1'800'000'000))
        : m_now(start)
    {
    }
    Date now() const override { return m_now; }
    void set(Date now) { m_now = now; }
    void advance(double seconds) { m_now = Date(m_now.timeIntervalSince1970() + seconds); }

private:
    Date m_now;
};

} // namespace lullet::test
