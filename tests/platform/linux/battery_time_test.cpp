#include "platform/linux/battery_time.h"

#include "support/power_supplies.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

TEST(BatteryTime, ToEmptyIsWhatIsLeftByThePower) {
    BatteryTimeEstimate estimate;
    const auto time = estimate.update({energyBattery("Discharging", 30000, 50000, 9000)});
    EXPECT_EQ(time.toEmpty, 200);
    EXPECT_EQ(time.toFull, std::nullopt);
}

TEST(BatteryTime, ToFullIsWhatLacksByThePower) {
    BatteryTimeEstimate estimate;
    const auto time = estimate.update({energyBattery("Charging", 30000, 50000, 7000)});
    EXPECT_EQ(time.toFull, 171) << "truncated";
    EXPECT_EQ(time.toEmpty, std::nullopt);
}

TEST(BatteryTime, IsUnknownWhileNothingFlows) {
    for (const char* status : {"Full", "Not charging", "Unknown", ""}) {
        BatteryTimeEstimate estimate;
        const auto time = estimate.update({energyBattery(status, 30000, 50000, 9000)});
        EXPECT_EQ(time.toEmpty, std::nullopt) << status;
        EXPECT_EQ(time.toFull, std::nullopt) << status;
    }
}

TEST(BatteryTime, IsSmoothedOverTheLastReadings) {
    BatteryTimeEstimate estimate;
    estimate.update({energyBattery("Discharging", 30000, 50000, 6000)});
    EXPECT_EQ(estimate.update({energyBattery("Discharging", 30000, 50000, 12000)}).toEmpty, 200);
}

TEST(BatteryTime, AChangeOfDirectionBeginsANewMean) {
    BatteryTimeEstimate estimate;
    estimate.update({energyBattery("Discharging", 30000, 50000, 1000)});
    EXPECT_EQ(estimate.update({energyBattery("Charging", 30000, 50000, 20000)}).toFull, 60);
    estimate.update({energyBattery("Full", 50000, 50000, 0)});
    EXPECT_EQ(estimate.update({energyBattery("Charging", 40000, 50000, 10000)}).toFull, 60);
}

TEST(BatteryTime, IsMissingWithoutRateAndBeyondBelief) {
    BatteryTimeEstimate estimate;
    EXPECT_EQ(estimate.update({energyBattery("Discharging", 30000, 50000, 0)}).toEmpty, std::nullopt);
    EXPECT_EQ(estimate.update({energyBattery("Discharging", 30000, 50000, 299)}).toEmpty, std::nullopt);
    BatteryTimeEstimate longest;
    EXPECT_EQ(longest.update({energyBattery("Discharging", 30000, 50000, 300)}).toEmpty, 6000);
    auto silent = energyBattery("Discharging", 30000, 50000, 0);
    silent.powerNow.reset();
    BatteryTimeEstimate unknown;
    EXPECT_EQ(unknown.update({silent}).toEmpty, std::nullopt);
}

TEST(BatteryTime, TheFirmwaresOwnEstimateOfASingleBatteryComesFirst) {
    auto battery = energyBattery("Discharging", 30000, 50000, 9000);
    battery.timeToEmptyNow = 5430;
    BatteryTimeEstimate one;
    EXPECT_EQ(one.update({battery}).toEmpty, 90);
    BatteryTimeEstimate two;
    EXPECT_EQ(two.update({battery, energyBattery("Unknown", 30000, 50000, 0)}).toEmpty, 400);
    battery.timeToEmptyNow = 0;
    BatteryTimeEstimate unknown;
    EXPECT_EQ(unknown.update({battery}).toEmpty, 200);
    battery.timeToEmptyNow = 360'060;
    BatteryTimeEstimate unbelievable;
    EXPECT_EQ(unbelievable.update({battery}).toEmpty, std::nullopt);
}

TEST(BatteryTime, ANegativeCurrentCountsByItsSize) {
    BatteryTimeEstimate estimate;
    EXPECT_EQ(estimate.update({chargeBattery("Discharging", 3000, 4000, -1500)}).toEmpty, 120);
}

TEST(BatteryTime, ChargeIsDividedByCurrentWhateverTheVoltages) {
    auto battery = chargeBattery("Discharging", 3000, 4000, 1500);
    battery.voltageMinDesign = 10'000'000;
    battery.voltageNow = 12'500'000;
    BatteryTimeEstimate estimate;
    EXPECT_EQ(estimate.update({battery, battery}).toEmpty, 120);
}

TEST(BatteryTime, ChargeWithPowerIsTurnedIntoEnergyFirst) {
    auto battery = chargeBattery("Discharging", 3000, 4000, 0);
    battery.currentNow.reset();
    battery.powerNow = 15'000'000;
    BatteryTimeEstimate without;
    EXPECT_EQ(without.update({battery}).toEmpty, std::nullopt) << "no voltage, no energy";
    battery.voltageMinDesign = 10'000'000;
    BatteryTimeEstimate with;
    EXPECT_EQ(with.update({battery}).toEmpty, 120);
}

TEST(BatteryTime, OfBatteriesOfTwoUnitsIsCountedInEnergy) {
    auto second = chargeBattery("Discharging", 2000, 4000, -500);
    second.voltageMinDesign = 10'000'000;
    second.voltageNow = 12'000'000;
    BatteryTimeEstimate estimate;
    // 30 + 20 Wh at 9 + 6 W.
    EXPECT_EQ(estimate.update({energyBattery("Discharging", 30000, 50000, 9000), second}).toEmpty, 200);
}

TEST(BatteryTime, OnlyBatteriesThatFlowAddToTheRate) {
    auto resting = energyBattery("Unknown", 10000, 20000, 5000);
    BatteryTimeEstimate estimate;
    EXPECT_EQ(estimate.update({energyBattery("Discharging", 20000, 50000, 10000), resting}).toEmpty, 180);
}

TEST(BatteryTime, AsLongAsOneBatteryChargesTheMachineDoesNotRunEmpty) {
    BatteryTimeEstimate estimate;
    const auto time = estimate.update(
        {energyBattery("Discharging", 20000, 50000, 10000), energyBattery("Charging", 10000, 20000, 5000)});
    EXPECT_EQ(time.toEmpty, std::nullopt);
    EXPECT_EQ(time.toFull, 480);
}

} // namespace
} // namespace tarvo::linux_platform
