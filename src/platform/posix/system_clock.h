#pragma once

#include "platform/clock.h"

namespace tarvo {

/// The machine's clocks. Steady time stands still while the machine sleeps.
class SystemClock : public Clock {
public:
    WallTime wallNow() const override { return std::chrono::system_clock::now(); }
    SteadyTime steadyNow() const override { return std::chrono::steady_clock::now(); }
};

} // namespace tarvo
