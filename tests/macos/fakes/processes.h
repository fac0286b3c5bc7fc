#pragma once

#include <utility>
#include <vector>

namespace tarvo::fakes {

struct Processes {
    bool refuses = false;
    std::vector<std::pair<int, int>> signals; ///< process, signal
};

Processes& processes();

} // namespace tarvo::fakes
