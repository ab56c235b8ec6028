#pragma once

namespace lullet {

// The local zone's offset from GMT around a moment, with the span of time over which that offset
// holds. Calendar loops look at many nearby moments, so each thread keeps the last span and
// answers from it without asking ICU again.
class ZoneOffsets {
public:
    struct Span {
        // [start, end) in milliseconds since 1970; an empty span means "this moment only".
        double start = 0;
        double end = 0;
        // Milliseconds to add to GMT for local time.
        double offset = 0;

        bool contains(double utcMs) const { return utcMs >= start && utcMs < end; }
    };

    static Span spanAt(double utcMs);
};

} // namespace lullet
