#include "ui/cards/battery_texts.h"

#include "support/memory_preference_store.h"

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

BatteryInfo charge(std::int64_t percent) {
    BatteryInfo battery;
    battery.percentage = percent;
    return battery;
}

struct BatteryTexts : ::testing::Test {
    MemoryPreferenceStore store;
    LocalizationManager loc{store, "en"};
};

} // namespace

TEST_F(BatteryTexts, TheSymbolFollowsTheLevel) {
    EXPECT_EQ(batterySymbol(charge(3)), "battery.25percent");
    EXPECT_EQ(batterySymbol(charge(50)), "battery.50percent");
    EXPECT_EQ(batterySymbol(charge(75)), "battery.75percent");
    EXPECT_EQ(batterySymbol(charge(100)), "battery.100percent");
    BatteryInfo charging = charge(10);
    charging.isCharging = true;
    EXPECT_EQ(batterySymbol(charging), "battery.100percent.bolt");
}

TEST_F(BatteryTexts, TheStateNamesWhatCountsMost) {
    BatteryInfo battery = charge(80);
    EXPECT_EQ(batteryState(battery, loc), "on battery");
    battery.isPluggedIn = true;
    EXPECT_EQ(batteryState(battery, loc), "plugged in");
    battery.isCharging = true;
    EXPECT_EQ(batteryState(battery, loc), "charging");
    battery.isFullyCharged = true;
    EXPECT_EQ(batteryState(battery, loc), "charged");
    loc.setLanguage(AppLanguage::cs);
    EXPECT_EQ(batteryState(battery, loc), "nabito");
    EXPECT_EQ(batteryState(charge(80), loc), "na baterii");
}

TEST_F(BatteryTexts, TheTimeIsToEmptyOrToFull) {
    BatteryInfo battery = charge(80);
    EXPECT_EQ(batteryTime(battery, loc), "");
    battery.timeToEmptyMinutes = 135;
    EXPECT_EQ(batteryTime(battery, loc), "2:15 remaining");
    battery.isPluggedIn = true;
    EXPECT_EQ(batteryTime(battery, loc), "");
    battery.isCharging = true;
    battery.timeToFullMinutes = 45;
    EXPECT_EQ(batteryTime(battery, loc), "45 min to full");
    loc.setLanguage(AppLanguage::cs);
    EXPECT_EQ(batteryTime(battery, loc), "do plna 45 min");
}

TEST_F(BatteryTexts, WhatIsNotKnownOfTheWearIsLeftOut) {
    BatteryInfo battery = charge(80);
    EXPECT_EQ(batteryWear(battery, loc), "");
    battery.healthPercent = 91;
    EXPECT_EQ(batteryWear(battery, loc), "health: 91%");
    battery.cycleCount = 312;
    EXPECT_EQ(batteryWear(battery, loc), "cycles: 312 · health: 91%");
}

} // namespace tarvo::ui
