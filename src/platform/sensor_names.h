#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvo {

/// What the system calls the source of a sensor key.
struct SensorName {
    std::string chip;  ///< driver or zone, e.g. "coretemp"
    std::string label; ///< e.g. "Core 4"; empty when the chip gives none
    bool operator==(const SensorName&) const = default;
};

class SensorNames {
public:
    virtual ~SensorNames() = default;
    /// Absent for a key that the controller does not hold. Callable from any thread while the controller is
    /// open.
    virtual std::optional<SensorName> sensorName(std::string_view key) const = 0;
};

} // namespace tarvo
