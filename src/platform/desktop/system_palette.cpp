#include "platform/desktop/system_palette.h"

#include <array>

namespace tarvo::desktop {

namespace {

struct Shades {
    SystemColor color;
    QRgb onLight;
    QRgb onDark;
};

// Each has a contrast of at least 4.5 on the usual window colours.
constexpr std::array shades{
    Shades{SystemColor::red, 0xffc9252d, 0xffff6961},    Shades{SystemColor::orange, 0xffa85400, 0xffffa133},
    Shades{SystemColor::green, 0xff1b7a33, 0xff3ddc66},  Shades{SystemColor::blue, 0xff0a62d0, 0xff5aa9ff},
    Shades{SystemColor::purple, 0xff8e3fc4, 0xffcf8bff},
};

QColor between(const QColor& from, const QColor& to, double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return QColor(mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue()));
}

} // namespace

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Active, QPalette::Window).lightness() < 128;
}

QColor systemColor(SystemColor color, const QPalette& palette) {
    const QColor label = palette.color(QPalette::Active, QPalette::WindowText);
    if (color == SystemColor::label) return label;
    if (color == SystemColor::secondaryLabel) {
        return between(label, palette.color(QPalette::Active, QPalette::Window), 0.35);
    }
    for (const Shades& each : shades) {
        if (each.color == color) return QColor(isDark(palette) ? each.onDark : each.onLight);
    }
    return label;
}

} // namespace tarvo::desktop
