#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

namespace lullet::bench {

// Runs body `rounds` times and answers the median duration of one run, in nanoseconds.
inline double medianNanos(int rounds, const std::function<void()>& body)
{
    std::vector<double> samples;
    samples.reserve(std::size_t(rounds));
    for (int i = 0; i < rounds; ++i) {
        const auto start = std::chrono::steady_clock::now();
        body();
        const auto end = std::chrono::steady_clock::now();
        samples.push_back(std::chrono::duration<double, std::nano>(end - start).count());
    }
    std::nth_element(samples.begin(), samples.begin() + rounds / 2, samples.end());
    return samples[std::size_t(rounds / 2)];
}

inline void report(const char* what, double nanos, double targetNanos)
{
    const char* unit = "ns";
    double value = nanos;
    if (nanos >= 1e6) {
        value = nanos / 1e6;
        unit = "ms";
    } else if (nanos >= 1e3) {
        value = nanos / 1e3;
        unit = "us";
    }
    std::printf("%-48s %10.3f %s   (%.0f%% of target)\n", what, value, unit,
                100.0 * nanos / targetNanos);
}

} // namespace lullet::bench
