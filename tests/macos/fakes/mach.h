#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tarvo::fakes {

/// Page counts as the kernel tells them.
struct Pages {
    std::uint32_t free = 0;
    std::uint32_t active = 0;
    std::uint32_t inactive = 0;
    std::uint32_t wired = 0;
    std::uint32_t compressor = 0;
};

struct Mach {
    bool processorInfoFails = false;
    std::vector<std::array<std::int32_t, 4>> cores; ///< user, system, idle, nice
    std::optional<std::uint32_t> wordCount;         ///< in place of four a core
    std::optional<Pages> pages;                     ///< absent: the query fails
    bool isOlderSystem = false;                     ///< knows only the first 38 words of the statistics
    std::map<std::string, std::vector<unsigned char>> systemValues;
    std::array<double, 3> loads{};
    int loadCount = 3;

    // What was asked.
    std::vector<std::uint32_t> statisticsCounts;
};

Mach& mach();
/// Forgets all arrays and rights that are held.
void forgetMappings();
std::uint64_t kernelPageSize();

} // namespace tarvo::fakes
