#include "platform/desktop/hot_key/lock_masks.h"

#include <xcb/xcb.h>

#include <algorithm>

namespace tarvo::desktop {

std::uint16_t modifierOfKeys(std::span<const std::uint8_t> table, std::size_t keysPerModifier,
                             std::span<const std::uint8_t> keyCodes) {
    for (std::size_t index = 0; index < table.size(); ++index) {
        const std::uint8_t code = table[index];
        if (code == 0 || std::find(keyCodes.begin(), keyCodes.end(), code) == keyCodes.end()) continue;
        return static_cast<std::uint16_t>(1U << (index / keysPerModifier));
    }
    return 0;
}

std::array<std::uint16_t, 4> lockMasks(std::uint16_t numLock) {
    constexpr std::uint16_t capsLock = XCB_MOD_MASK_LOCK;
    return {0, capsLock, numLock, static_cast<std::uint16_t>(capsLock | numLock)};
}

} // namespace tarvo::desktop
