#pragma once

#include <cstdint>
#include <optional>

namespace tarvo::desktop {

/// A key with the modifiers that are held, in the terms of these desktops.
struct KeyCombination {
    char32_t letter = 0; ///< what the key writes by itself, lower case
    std::uint8_t usualKeyCode =
        0;             ///< X11 key code of that place on a PC keyboard, for layouts without the letter
    bool logo = false; ///< Super, the key with a logo on it
    bool shift = false;
    bool alt = false;
    bool control = false;
    bool operator==(const KeyCombination&) const = default;
};

/// Translates a Carbon key code and modifier mask; command is the logo key. Absent for keys that the program
/// has no use for.
std::optional<KeyCombination> keyCombination(std::uint32_t keyCode, std::uint32_t modifiers);

} // namespace tarvo::desktop
