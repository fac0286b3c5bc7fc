#pragma once

#include "platform/power_sources.h"

namespace tarvo::macos_platform {

/// The machine's power sources (IOKit).
class MacPowerSources : public PowerSources {
public:
    std::optional<PowerSourceList> descriptions() override;
};

} // namespace tarvo::macos_platform
