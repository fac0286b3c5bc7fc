#pragma once

#include "platform/clock.h"

namespace tarvo {

/// A clock that stands still until told. Wall and steady time move together unless set apart.
class ManualClock : public Clock {
public:
    WallTime wallNow() const override { return wall_; }
    SteadyTime steadyNow() const override { return steady_; }

    void advance(std::chrono::nanoseconds by) {
        wall_ += std::chrono::duration_cast<WallTime::duration>(by);
        steady_ += by;
    }
    void setWall(WallTime now) { wall_ = now; }

private:
    WallTime wall_{std::chrono::seconds{1'763'265'193}}; // 2025-11-16T03:53:13Z
    SteadyTime steady_{std::chrono::hours{1}};
};

} // namespace tarvo
