#pragma once

#include "platform/clock.h"
#include "platform/linux/sensor_file.h"
#include "platform/linux/slow_read_cache.h"

#include <mutex>
#include <optional>
#include <string>

namespace tarvo::linux_platform {

/// One temperature or fan as it reads now. Any thread; two threads that ask for the same one wait for each
/// other.
class SensorInput {
public:
    /// A reading is the attribute's integer times `scale`. With `runtimeStatus`, a file in the same folder,
    /// the device is not read while that says that it is suspended: reading would wake it.
    SensorInput(const Clock& clock, const SensorFolder& folder, std::string attribute, double scale,
                const std::string& runtimeStatus = {});

    std::optional<double> read();

private:
    std::optional<double> readNow();
    bool isSuspended();

    const Clock& clock_;
    double scale_;
    std::mutex mutex_;
    SensorFile file_;
    std::optional<SensorFile> runtimeStatus_;
    SlowReadCache slow_;
};

} // namespace tarvo::linux_platform
