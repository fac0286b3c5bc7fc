#pragma once

#include "platform/power_sources.h"

namespace tarvo {

/// Power sources that are what the test says.
class FixedPowerSources : public PowerSources {
public:
    std::optional<PowerSourceList> descriptions() override { return list; }

    std::optional<PowerSourceList> list;
};

} // namespace tarvo
