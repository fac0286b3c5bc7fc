#pragma once

#include "core/accent_theme.h"
#include "ui/style/color.h"

#include <array>

namespace tarvo::ui {

/// Start and end of the gradient that a theme paints with.
std::array<Color, 2> gradientColors(AccentTheme theme);

} // namespace tarvo::ui
