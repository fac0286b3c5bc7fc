#pragma once

#include <string>

namespace tarvo {

/// One row of the full temperature list.
struct SensorReading {
    std::string key;    ///< four characters, identifies the row
    double celsius = 0; ///< between 0 and 130, both excluded
    bool operator==(const SensorReading&) const = default;
};

} // namespace tarvo
