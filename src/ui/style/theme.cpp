#include "ui/style/theme.h"

#include <QLinearGradient>

#include <array>
#include <cmath>

namespace tarvo::ui {
namespace {

struct Shade {
    QRgb light;
    QRgb dark;
};

constexpr std::size_t shadeCount = 11;

// In the order of ColorName. The light shades stand on white cards as text, the dark ones on nearly black
// cards.
constexpr std::array<Shade, shadeCount> shades{{{0xFF0A6FDB, 0xFF4A9FFF},
                                                {0xFF8A45C6, 0xFFC07CF7},
                                                {0xFF1C9444, 0xFF38CB6A},
                                                {0xFFD96A00, 0xFFFF9F33},
                                                {0xFFD92E66, 0xFFFF6690},
                                                {0xFFD6302B, 0xFFFF6259},
                                                {0xFF0F869B, 0xFF52C6D8},
                                                {0xFFC99400, 0xFFFFD53D},
                                                {0xFF5352C7, 0xFF8D8BFA},
                                                {0xFF77777E, 0xFF9D9DA5},
                                                {0xFFFFFFFF, 0xFFFFFFFF}}};

QColor mixed(const QColor& base, const QColor& over, double share) {
    const auto channel = [share](float from, float to) {
        return static_cast<float>(static_cast<double>(from) * (1 - share) + static_cast<double>(to) * share);
    };
    return QColor::fromRgbF(channel(base.redF(), over.redF()), channel(base.greenF(), over.greenF()),
                            channel(base.blueF(), over.blueF()));
}

double luminance(const QColor& color) {
    const auto linear = [](float channel) {
        const double value = static_cast<double>(channel);
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QBrush softGradient(const QColor& base, const QRectF& area) {
    QColor top = mixed(base, Qt::white, 0.16);
    top.setAlphaF(base.alphaF());
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, base);
    return gradient;
}

} // namespace

Theme::Theme(const QPalette& palette)
    : dark_(palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness()),
      window_(palette.color(QPalette::Window)), text_(palette.color(QPalette::WindowText)),
      card_(mixed(window_, Qt::white, dark_ ? 0.07 : 0.8)), secondary_(mixed(card_, text_, 0.66)) {}

QColor Theme::color(Color color) const {
    QColor shade = Qt::transparent;
    if (color.name == ColorName::primary) shade = text_;
    if (color.name == ColorName::secondary) shade = secondary_;
    const auto index = static_cast<std::size_t>(color.name);
    if (index < shadeCount) shade = QColor::fromRgba(dark_ ? shades[index].dark : shades[index].light);
    shade.setAlphaF(static_cast<float>(static_cast<double>(shade.alphaF()) * color.opacity));
    return shade;
}

QBrush Theme::gradient(Color color, const QRectF& area) const {
    return softGradient(this->color(color), area);
}

QColor Theme::ground(Color color) const {
    const auto index = static_cast<std::size_t>(color.name);
    if (index >= shadeCount) return this->color(color);
    QColor shade = QColor::fromRgba(shades[index].light);
    shade.setAlphaF(static_cast<float>(color.opacity));
    return shade;
}

QBrush Theme::groundGradient(Color color, const QRectF& area) const {
    return softGradient(ground(color), area);
}

double contrastRatio(const QColor& first, const QColor& second) {
    const double one = luminance(first) + 0.05;
    const double two = luminance(second) + 0.05;
    return one > two ? one / two : two / one;
}

} // namespace tarvo::ui
