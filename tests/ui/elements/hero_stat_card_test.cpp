#include "ui/elements/hero_stat_card.h"

#include "support/painted_widget.h"

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

constexpr QSize size{240, 168};

QImage paintedCard(std::vector<double> history) {
    HeroStatCard card(
        {"cpu.fill", "CPU", "42%", "8 cores", {colors::blue, colors::purple}, std::move(history)});
    card.setPalette(lightPalette());
    return painted(card, size);
}

} // namespace

TEST(HeroStatCard, Is168High) {
    EXPECT_EQ(HeroStatCard().sizeHint().height(), 168);
}

TEST(HeroStatCard, LeavesItsBottomClearWithoutHistory) {
    EXPECT_EQ(paintedCard({}), paintedCard({50}));
    EXPECT_NE(paintedCard({}), paintedCard({50, 60}));
}

TEST(HeroStatCard, StretchesItsHistoryOverTheWholeWidth) {
    const QImage plain = paintedCard({});
    const QImage withHistory = paintedCard({100, 100});
    EXPECT_NE(plain.pixel(30, 150), withHistory.pixel(30, 150));
    EXPECT_NE(plain.pixel(210, 150), withHistory.pixel(210, 150));
    EXPECT_EQ(plain.pixel(120, 120), withHistory.pixel(120, 120));
}

TEST(HeroStatCard, StaysInsideItsRoundedCorners) {
    const QImage image = paintedCard({100, 100});
    EXPECT_EQ(qAlpha(image.pixel(0, size.height() - 1)), 0);
    EXPECT_EQ(qAlpha(image.pixel(1, size.height() - 2)), 0);
}

TEST(HeroStatCard, BearsMissingColours) {
    HeroStatCard card({"cpu.fill", "CPU", "42%", "", {}, {}});
    EXPECT_FALSE(isBlank(painted(card, size)));
    EXPECT_EQ(card.accessibleText(), "CPU 42%");
}

} // namespace tarvo::ui
