#pragma once

#include "macos/fakes/core_foundation.h"

#include <optional>
#include <vector>

namespace tarvo::fakes {

struct PowerSupply {
    bool hasSnapshot = true;
    bool hasList = true;
    std::vector<std::optional<Value>> sources; ///< absent: no description
};

PowerSupply& powerSupply();

} // namespace tarvo::fakes
