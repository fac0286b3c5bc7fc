#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// A route that is taken for addresses without a better one.
struct DefaultRoute {
    std::string interfaceName;
    std::uint32_t metric = 0; ///< the lowest is taken
    bool operator==(const DefaultRoute&) const = default;
};

/// The default routes of /proc/net/route that are up, in its order. Format: proc(5).
std::vector<DefaultRoute> parseDefaultRoutes(std::string_view text);

} // namespace tarvo::linux_platform
