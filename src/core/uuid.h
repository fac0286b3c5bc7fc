#pragma once

#include <array>
#include <cstdint>

namespace tarvo {

/// A random identifier (RFC 9562, version 4) of a row that has no identity of its own.
struct UUID {
    std::array<std::uint8_t, 16> bytes{};

    /// A fresh one; any thread.
    static UUID random();
    auto operator<=>(const UUID&) const = default;
};

} // namespace tarvo
