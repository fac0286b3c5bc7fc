#include "ui/elements/capacity_bar.h"
#include "ui/elements/temp_bar.h"

#include "support/painted_widget.h"
#include "ui/style/theme.h"

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

constexpr QSize size{100, 6};

// Number of pixels in the bar's middle line that are filled rather than track.
int filledWidth(QWidget& bar) {
    bar.setPalette(lightPalette());
    const QImage image = painted(bar, size);
    int filled = 0;
    for (int x = 0; x < image.width(); ++x)
        filled += qAlpha(image.pixel(x, size.height() / 2)) > 128 ? 1 : 0;
    return filled;
}

int hueOfBar(double celsius) {
    TempBar bar({celsius, 20, 100});
    bar.setPalette(lightPalette());
    return painted(bar, size).pixelColor(2, 4).hslHue();
}

int hueOf(Color color) {
    return Theme(lightPalette()).color(color).hslHue();
}

} // namespace

TEST(CapacityBar, IsFilledByItsFraction) {
    CapacityBar bar({0.5, colors::indigo});
    EXPECT_NEAR(filledWidth(bar), 50, 1);
}

TEST(CapacityBar, IsFourPointsWideAtZero) {
    CapacityBar bar({0, colors::indigo});
    EXPECT_NEAR(filledWidth(bar), 4, 1);
}

TEST(CapacityBar, ReadsItsShare) {
    EXPECT_EQ(CapacityBar({0.256, colors::indigo}).accessibleText(), "26%");
}

TEST(TempBar, IsFourPointsWideAndBlueBelowItsScale) {
    TempBar bar({5, 20, 100});
    EXPECT_NEAR(filledWidth(bar), 4, 1);
    EXPECT_NEAR(hueOfBar(5), hueOf(colors::blue), 8);
}

TEST(TempBar, TakesTheWarmerBandAtEachBorder) {
    EXPECT_NEAR(hueOfBar(45), hueOf(colors::green), 8);
    EXPECT_NEAR(hueOfBar(60), hueOf(colors::yellow), 8);
    EXPECT_NEAR(hueOfBar(75), hueOf(colors::orange), 8);
    EXPECT_NEAR(hueOfBar(90), hueOf(colors::red), 8);
}

TEST(TempBar, IsFullAboveItsScale) {
    TempBar bar({130, 20, 100});
    EXPECT_NEAR(filledWidth(bar), 100, 1);
}

} // namespace tarvo::ui
