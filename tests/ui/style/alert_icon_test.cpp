#include "ui/style/alert_icon.h"

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(AlertIcon, OfTheProcessor) {
    EXPECT_EQ(alertIcon("High CPU Load"), (AlertIcon{"cpu.fill", colors::orange}));
}

TEST(AlertIcon, OfTheDiskInBothLanguages) {
    const AlertIcon drive{"internaldrive.fill", colors::indigo};
    EXPECT_EQ(alertIcon("Low Disk"), drive);
    EXPECT_EQ(alertIcon("Not Enough Space"), drive);
    EXPECT_EQ(alertIcon("Málo místa"), drive);
    EXPECT_EQ(alertIcon("MÁLO MÍSTA"), drive);
}

TEST(AlertIcon, OfTheBatteryInBothLanguages) {
    const AlertIcon battery{"battery.25percent", colors::red};
    EXPECT_EQ(alertIcon("Low Battery"), battery);
    EXPECT_EQ(alertIcon("Slabá BATERIE"), battery);
}

TEST(AlertIcon, OfAnythingElseIsABell) {
    EXPECT_EQ(alertIcon("Hello"), (AlertIcon{"bell.fill", colors::gray}));
    EXPECT_EQ(alertIcon(""), (AlertIcon{"bell.fill", colors::gray}));
    EXPECT_EQ(alertIcon("mista"), (AlertIcon{"bell.fill", colors::gray}));
}

TEST(AlertIcon, TakesTheProcessorWhenATitleNamesSeveral) {
    EXPECT_EQ(alertIcon("CPU and battery").symbol, "cpu.fill");
    EXPECT_EQ(alertIcon("battery or disk").symbol, "internaldrive.fill");
}

TEST(AlertIcon, BearsBytesThatAreNoText) {
    EXPECT_EQ(alertIcon("\xC3\xFF\x80").symbol, "bell.fill");
}

} // namespace tarvo::ui
