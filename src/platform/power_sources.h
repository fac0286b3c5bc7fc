#pragma once

#include "platform/property_dictionary.h"

#include <optional>
#include <vector>

namespace tarvo {

/// One entry a source, absent where the source has no description.
using PowerSourceList = std::vector<std::optional<PropertyDictionary>>;

/// Description dictionaries of the internal power sources ("Current Capacity", "Is Charging", ...).
class PowerSources {
public:
    virtual ~PowerSources() = default;
    /// Absent when the system gives no list. Returns at once. Main thread.
    virtual std::optional<PowerSourceList> descriptions() = 0;
};

} // namespace tarvo
