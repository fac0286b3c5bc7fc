#include "ui/elements/sparkline.h"

#include "support/painted_widget.h"

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

constexpr QSize size{119, 40};

QImage paintedLine(std::vector<double> values) {
    Sparkline line({std::move(values), 60, colors::blue});
    line.setPalette(lightPalette());
    return painted(line, size);
}

bool columnIsBlank(const QImage& image, int x) {
    return isBlank(image.copy(x, 0, 1, image.height()));
}

} // namespace

TEST(Sparkline, DrawsNothingForOneValue) {
    EXPECT_TRUE(isBlank(paintedLine({})));
    EXPECT_TRUE(isBlank(paintedLine({50})));
}

TEST(Sparkline, StartsPartWayAcross) {
    const QImage image = paintedLine({50, 60, 70});
    EXPECT_TRUE(columnIsBlank(image, 100));
    EXPECT_FALSE(columnIsBlank(image, 117));
}

TEST(Sparkline, StaysInsideItsFrameAtBothEnds) {
    const QImage image = paintedLine(std::vector<double>(60, 250));
    EXPECT_GT(qAlpha(image.pixel(60, 0)), 128);
    const QImage low = paintedLine(std::vector<double>(60, -5));
    EXPECT_GT(qAlpha(low.pixel(60, size.height() - 1)), 128);
}

TEST(Sparkline, FadesTowardsTheBottom) {
    const QImage image = paintedLine(std::vector<double>(60, 100));
    EXPECT_GT(qAlpha(image.pixel(60, 8)), qAlpha(image.pixel(60, 35)));
}

TEST(Sparkline, ReadsItsNewestValue) {
    EXPECT_EQ(Sparkline({{1, 2, 42.4}, 60, colors::blue}).accessibleText(), "42%");
    EXPECT_TRUE(Sparkline().accessibleText().isEmpty());
}

} // namespace tarvo::ui
