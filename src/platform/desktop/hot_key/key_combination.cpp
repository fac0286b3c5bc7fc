#include "platform/desktop/hot_key/key_combination.h"

#include <algorithm>
#include <array>

namespace tarvo::desktop {
namespace {

struct Key {
    std::uint32_t carbonCode;
    char32_t letter;
    std::uint8_t usualKeyCode;
};
// Carbon names places of keys, as evdev does; X11 counts evdev's codes from 8.
constexpr std::array keys{Key{46, U'm', 50 + 8}};

enum CarbonModifier : std::uint32_t {
    command = 1U << 8U,
    shift = 1U << 9U,
    option = 1U << 11U,
    control = 1U << 12U
};

} // namespace

std::optional<KeyCombination> keyCombination(std::uint32_t keyCode, std::uint32_t modifiers) {
    const auto key =
        std::find_if(keys.begin(), keys.end(), [&](const Key& row) { return row.carbonCode == keyCode; });
    if (key == keys.end()) return std::nullopt;
    const auto held = [&](CarbonModifier modifier) { return (modifiers & modifier) != 0; };
    return KeyCombination{.letter = key->letter,
                          .usualKeyCode = key->usualKeyCode,
                          .logo = held(command),
                          .shift = held(shift),
                          .alt = held(option),
                          .control = held(control)};
}

} // namespace tarvo::desktop
