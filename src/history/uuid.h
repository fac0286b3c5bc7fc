#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo {

/// A universally unique identifier (RFC 4122).
class UUID {
public:
    /// A random one (version 4).
    static UUID random();
    /// Reads the 36-character hyphenated form in either case; absent for anything else.
    static std::optional<UUID> parse(std::string_view text);

    /// The 36-character hyphenated form, upper case.
    std::string text() const;

    bool operator==(const UUID&) const = default;

private:
    std::array<std::uint8_t, 16> bytes_{};
};

} // namespace tarvo
