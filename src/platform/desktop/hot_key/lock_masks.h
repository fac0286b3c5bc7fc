#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace tarvo::desktop {

/// The modifier bit of the keys, by the server's table: eight rows of `keysPerModifier` key codes, 0 for
/// none. 0 when none of the keys is a modifier. (X Window System Protocol, GetModifierMapping)
std::uint16_t modifierOfKeys(std::span<const std::uint8_t> table, std::size_t keysPerModifier,
                             std::span<const std::uint8_t> keyCodes);

/// Every state of Caps Lock and Num Lock: a key has to be grabbed once for each. Without a Num Lock two of
/// them are repeated.
std::array<std::uint16_t, 4> lockMasks(std::uint16_t numLock);

} // namespace tarvo::desktop
