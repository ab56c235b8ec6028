#pragma once

#include "core/dates/Date.h"

namespace lullet {

// The one source of "now" for the whole program, so that tests can move time at will.
class Clock {
public:
    virtual ~Clock() = default;
    virtual Date now() const = 0;
};

class SystemClock final : public Clock {
public:
    Date now() const override;
};

} // namespace lullet
