#pragma once

#include "platform/clock.h"

#include <optional>

namespace tarvo::linux_platform {

/// Spares a device whose readings are slow: once two readings took more than 50 ms each, a reading is served
/// for 10 s before the device is asked again. For one thread.
class SlowReadCache {
public:
    /// The reading to serve now in place of asking; absent when the device is to be asked. The inner optional
    /// is what the device answered.
    std::optional<std::optional<double>> served(SteadyTime now) const {
        if (slowReadings_ < 2 || now - readAt_ >= std::chrono::seconds(10)) return std::nullopt;
        return value_;
    }

    void noteReading(SteadyTime began, SteadyTime ended, std::optional<double> value) {
        if (ended - began > std::chrono::milliseconds(50) && slowReadings_ < 2) ++slowReadings_;
        readAt_ = ended;
        value_ = value;
    }

private:
    int slowReadings_ = 0;
    SteadyTime readAt_{};
    std::optional<double> value_;
};

} // namespace tarvo::linux_platform
