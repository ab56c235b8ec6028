#include "core/dates/Clock.h"

#include <chrono>

namespace lullet {

Date SystemClock::now() const
{
    using namespace std::chrono;
    const auto micros = duration_cast<microseconds>(system_clock::now().time_since_epoch());
    return Date(static_cast<double>(micros.count()) / 1e6);
}

} // namespace lullet
