#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

namespace tarvo {

/// Contrast of two opaque colours, 1 to 21, as the Web Content Accessibility Guidelines 2.1 define it.
inline double contrast(const QColor& one, const QColor& other) {
    const auto linear = [](float channel) {
        const auto value = static_cast<double>(channel);
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [linear](const QColor& color) {
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

} // namespace tarvo
