#pragma once

#include "core/uuid.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvo {

/// Stands where a connection has no remote endpoint or no state.
inline constexpr std::string_view noConnectionValue = "—";

/// One open internet socket of one process.
struct NetworkConnection {
    UUID id; ///< fresh in every listing
    std::string process;
    std::int32_t pid = 0;
    std::string proto_;        ///< "TCP" or "UDP"
    std::string localAddress;  ///< host:port, numeric
    std::string remoteAddress; ///< host:port, or noConnectionValue
    std::string state;         ///< e.g. "ESTABLISHED", "LISTEN", or noConnectionValue
};

} // namespace tarvo
