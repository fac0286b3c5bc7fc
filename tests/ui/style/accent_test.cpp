#include "ui/style/accent.h"

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(GradientColors, OfBlueAndPurpleAreEachOthersMirror) {
    const auto blue = gradientColors(AccentTheme::blue);
    const auto purple = gradientColors(AccentTheme::purple);
    EXPECT_EQ(blue[0], colors::blue);
    EXPECT_EQ(blue[1], colors::purple);
    EXPECT_EQ(purple[0], blue[1]);
    EXPECT_EQ(purple[1], blue[0]);
}

TEST(GradientColors, OfEveryOtherThemeFadeItsOwnColour) {
    const std::pair<AccentTheme, Color> themes[] = {
        {AccentTheme::green, colors::green}, {AccentTheme::orange, colors::orange},
        {AccentTheme::pink, colors::pink},   {AccentTheme::red, colors::red},
        {AccentTheme::teal, colors::teal},   {AccentTheme::graphite, colors::gray}};
    for (const auto& [theme, color] : themes) {
        EXPECT_EQ(gradientColors(theme)[0], color);
        EXPECT_EQ(gradientColors(theme)[1], color.withOpacity(0.6));
    }
}

} // namespace tarvo::ui
