#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo {

/// A universally unique identifier (RFC 9562) of a row that has no identity of its own.
struct UUID {
    std::array<std::uint8_t, 16> bytes{};

    /// A fresh random one (version 4); any thread.
    static UUID random();
    /// Reads the 36-character hyphenated form in either case; absent for anything else.
    static std::optional<UUID> parse(std::string_view text);

    /// The 36-character hyphenated form, upper case.
    std::string text() const;

    auto operator<=>(const UUID&) const = default;
};

} // namespace tarvo
