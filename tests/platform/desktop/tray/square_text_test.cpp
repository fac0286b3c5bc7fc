#include "platform/desktop/tray/square_text.h"

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

SquareText of(const std::string& text) {
    return squareText({{{text, std::nullopt, std::nullopt}}, false, std::nullopt});
}

TEST(SquareText, TwoPartsShowTheirValuesOneOverTheOther) {
    EXPECT_EQ(of("CPU 23% · RAM 48%"), (SquareText{"23%", "48%"}));
    EXPECT_EQ(of("CPU 23% · RAM 48% · 🔋85%"), (SquareText{"23%", "48%"}));
}

TEST(SquareText, ASinglePartShowsItsWordOverItsValue) {
    EXPECT_EQ(of("CPU 23%"), (SquareText{"CPU", "23%"}));
    EXPECT_EQ(of("Disk 412GB"), (SquareText{"Disk", "412G"}));
    EXPECT_EQ(of("↓1.5 KB/s"), (SquareText{"↓", "1.5K"}));
}

TEST(SquareText, AValueOrAWordAloneStandsAlone) {
    EXPECT_EQ(of("48%"), (SquareText{"48%", ""}));
    EXPECT_EQ(of("Tarvo"), (SquareText{"Tarvo", ""}));
    EXPECT_EQ(of(""), (SquareText{"", ""}));
}

TEST(SquareText, TwoLinesStayTwoLines) {
    EXPECT_EQ(of("PAMĚŤ\n48%"), (SquareText{"PAMĚŤ", "48%"}));
}

TEST(SquareText, AValueLosesWhatTheEyeCanDoWithout) {
    EXPECT_EQ(compactValue("0.0 B/s"), "0.0");
    EXPECT_EQ(compactValue("1.5 KB/s"), "1.5K");
    EXPECT_EQ(compactValue("999.9 MB/s"), "999M");
    EXPECT_EQ(compactValue("412GB"), "412G");
    EXPECT_EQ(compactValue("45 °C"), "45°");
    EXPECT_EQ(compactValue("113 °F"), "113°");
    EXPECT_EQ(compactValue("48%"), "48%");
}

} // namespace
} // namespace tarvo::desktop
