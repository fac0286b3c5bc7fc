#include "ui/style/accent.h"

namespace tarvo::ui {
namespace {

constexpr std::array<Color, 2> faded(Color color) {
    return {color, color.withOpacity(0.6)};
}

} // namespace

std::array<Color, 2> gradientColors(AccentTheme theme) {
    switch (theme) {
    case AccentTheme::blue:
        return {colors::blue, colors::purple};
    case AccentTheme::purple:
        return {colors::purple, colors::blue};
    case AccentTheme::green:
        return faded(colors::green);
    case AccentTheme::orange:
        return faded(colors::orange);
    case AccentTheme::pink:
        return faded(colors::pink);
    case AccentTheme::red:
        return faded(colors::red);
    case AccentTheme::teal:
        return faded(colors::teal);
    case AccentTheme::graphite:
        return faded(colors::gray);
    }
    return {colors::blue, colors::purple};
}

} // namespace tarvo::ui
