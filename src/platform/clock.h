#pragma once

#include <chrono>

namespace tarvo {

/// Wall time: what is shown to a person or stored (history, alerts, log).
using WallTime = std::chrono::system_clock::time_point;
/// Monotonic time: what intervals are measured with (rates, cadences).
using SteadyTime = std::chrono::steady_clock::time_point;
using Seconds = std::chrono::duration<double>;

/// Earlier than any moment the program can meet, and still safe to subtract from one.
inline constexpr SteadyTime distantPast{std::chrono::hours{-24 * 365 * 100}};
inline constexpr WallTime distantPastDate{std::chrono::hours{-24 * 365 * 100}};

/// The only source of time; no other code asks the system for it. Callable from any thread.
class Clock {
public:
    virtual ~Clock() = default;
    virtual WallTime wallNow() const = 0;
    virtual SteadyTime steadyNow() const = 0;
};

} // namespace tarvo
