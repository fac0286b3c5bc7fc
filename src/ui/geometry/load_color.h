#pragma once

#include "ui/style/color.h"

namespace tarvo::ui {

/// How a share of capacity is coloured wherever one is shown: green below 60 %, orange from 60, red from 85.
constexpr Color loadColor(double percent) {
    if (percent >= 85) return colors::red;
    return percent >= 60 ? colors::orange : colors::green;
}

/// How a temperature is coloured, whatever the scale of its bar; degrees Celsius.
constexpr Color temperatureColor(double celsius) {
    if (celsius >= 90) return colors::red;
    if (celsius >= 75) return colors::orange;
    if (celsius >= 60) return colors::yellow;
    return celsius >= 45 ? colors::green : colors::blue;
}

} // namespace tarvo::ui
