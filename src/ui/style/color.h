#pragma once

namespace tarvo::ui {

/// The colours of the interface by their system names; a theme turns them into light or dark shades.
/// primary is the present text colour, secondary its quieter sister.
enum class ColorName {
    blue,
    purple,
    green,
    orange,
    pink,
    red,
    teal,
    yellow,
    indigo,
    gray,
    white,
    primary,
    secondary,
    clear
};

/// A named colour at an opacity from 0 to 1.
struct Color {
    ColorName name = ColorName::primary;
    double opacity = 1;
    constexpr Color withOpacity(double value) const { return {name, value}; }
    constexpr bool operator==(const Color&) const = default;
};

namespace colors {
inline constexpr Color blue{ColorName::blue};
inline constexpr Color purple{ColorName::purple};
inline constexpr Color green{ColorName::green};
inline constexpr Color orange{ColorName::orange};
inline constexpr Color pink{ColorName::pink};
inline constexpr Color red{ColorName::red};
inline constexpr Color teal{ColorName::teal};
inline constexpr Color yellow{ColorName::yellow};
inline constexpr Color indigo{ColorName::indigo};
inline constexpr Color gray{ColorName::gray};
inline constexpr Color white{ColorName::white};
inline constexpr Color primary{ColorName::primary};
inline constexpr Color secondary{ColorName::secondary};
inline constexpr Color clear{ColorName::clear};
} // namespace colors

} // namespace tarvo::ui
