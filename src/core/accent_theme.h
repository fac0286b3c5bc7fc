#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tarvo {

/// The colour that the status items and views are tinted with.
enum class AccentTheme { blue, purple, green, orange, pink, red, teal, graphite };

inline constexpr std::array allAccentThemes{AccentTheme::blue,   AccentTheme::purple,  AccentTheme::green,
                                            AccentTheme::orange, AccentTheme::pink,    AccentTheme::red,
                                            AccentTheme::teal,   AccentTheme::graphite};

/// The name under which a theme is stored, e.g. "blue".
std::string_view rawValue(AccentTheme theme);
/// Absent for any text that is not exactly a raw value.
std::optional<AccentTheme> accentTheme(std::string_view rawValue);

} // namespace tarvo
