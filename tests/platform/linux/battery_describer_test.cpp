#include "platform/linux/battery_describer.h"

#include "support/power_supplies.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using Supplies = std::vector<PowerSupply>;

PropertyDictionary sourceOf(const Supplies& supplies) {
    return BatteryDescriber().describe(supplies).value().source;
}
PropertyDictionary entryOf(const Supplies& supplies) {
    return BatteryDescriber().describe(supplies).value().registryEntry;
}

TEST(BatteryDescriber, WithoutABatteryThereIsNoSource) {
    EXPECT_FALSE(BatteryDescriber().describe({}).has_value());
    EXPECT_FALSE(BatteryDescriber().describe({charger("Mains", 1)}).has_value());
    auto mouse = plainBattery("Discharging", 70);
    mouse.scope = "Device";
    auto removed = plainBattery("Unknown", 70);
    removed.present = 0;
    auto ups = plainBattery("Full", 70);
    ups.type = "UPS";
    EXPECT_FALSE(BatteryDescriber().describe({mouse, removed, ups}).has_value());
}

TEST(BatteryDescriber, ABatteryThatTellsNothingIsNoSource) {
    PowerSupply silent;
    silent.type = "Battery";
    EXPECT_FALSE(BatteryDescriber().describe({silent}).has_value());
    EXPECT_TRUE(isFirmwareBusy({silent}));
    EXPECT_FALSE(isFirmwareBusy({plainBattery("Full", 1)}));
    EXPECT_FALSE(isFirmwareBusy({charger("Mains", 1)}));
}

TEST(BatteryDescriber, CapacitiesAreRoundedToThousandths) {
    auto battery = energyBattery("Full", 0, 0, 0);
    battery.energyNow = 30'000'499;
    battery.energyFull = 50'000'500;
    const auto source = sourceOf({battery});
    EXPECT_EQ(source.integer("Current Capacity"), 30000);
    EXPECT_EQ(source.integer("Max Capacity"), 50001);
}

TEST(BatteryDescriber, APercentageAloneIsOfAHundred) {
    for (const auto& battery : {plainBattery("Full", 64), [] {
                                    auto empty = energyBattery("Full", 0, 0, 0);
                                    empty.capacity = 64;
                                    return empty;
                                }()}) {
        EXPECT_EQ(sourceOf({battery}).integer("Current Capacity"), 64);
        EXPECT_EQ(sourceOf({battery}).integer("Max Capacity"), 100);
    }
}

TEST(BatteryDescriber, ABatteryChargesWhenAnyDoes) {
    EXPECT_EQ(sourceOf({plainBattery("Full", 100), plainBattery("Charging", 50)}).boolean("Is Charging"),
              true);
    for (const char* status : {"Discharging", "Not charging", "Full", "Unknown", ""})
        EXPECT_EQ(sourceOf({plainBattery(status, 50)}).boolean("Is Charging"), false) << status;
}

TEST(BatteryDescriber, ItIsChargedWhenAllAreFull) {
    EXPECT_EQ(sourceOf({plainBattery("Full", 90), plainBattery("Full", 95)}).boolean("Is Charged"), true);
    EXPECT_EQ(sourceOf({plainBattery("Full", 90), plainBattery("Unknown", 95)}).boolean("Is Charged"), false);
}

TEST(BatteryDescriber, ItIsChargedWhenItRestsNearlyFullOnACharger) {
    const auto resting = energyBattery("Not charging", 49500, 50000, 0);
    EXPECT_EQ(sourceOf({resting, charger("Mains", 1)}).boolean("Is Charged"), true);
    EXPECT_EQ(sourceOf({resting, charger("Mains", 0)}).boolean("Is Charged"), false);
    EXPECT_EQ(sourceOf({resting}).boolean("Is Charged"), false);
    EXPECT_EQ(
        sourceOf({energyBattery("Not charging", 49499, 50000, 0), charger("Mains", 1)}).boolean("Is Charged"),
        false);
    EXPECT_EQ(
        sourceOf({energyBattery("Charging", 49900, 50000, 0), charger("Mains", 1)}).boolean("Is Charged"),
        false);
    EXPECT_EQ(
        sourceOf({energyBattery("Discharging", 49900, 50000, 0), charger("Mains", 1)}).boolean("Is Charged"),
        false);
}

TEST(BatteryDescriber, AChargeLimitThatIsReachedIsNotFull) {
    const auto source = sourceOf({energyBattery("Not charging", 40000, 50000, 0), charger("Mains", 1)});
    EXPECT_EQ(source.string("Power Source State"), "AC Power");
    EXPECT_EQ(source.boolean("Is Charging"), false);
    EXPECT_EQ(source.boolean("Is Charged"), false);
}

struct Powered {
    const char* status;
    Supplies chargers;
    const char* state;
};

class PowerSourceStateOf : public testing::TestWithParam<Powered> {};

TEST_P(PowerSourceStateOf, IsTheMainsFirstThenCablesThenTheBattery) {
    auto supplies = GetParam().chargers;
    supplies.push_back(plainBattery(GetParam().status, 50));
    EXPECT_EQ(sourceOf(supplies).string("Power Source State"), GetParam().state);
}
INSTANTIATE_TEST_SUITE_P(
    BatteryDescriber, PowerSourceStateOf,
    testing::Values(Powered{"Charging", {charger("Mains", 1)}, "AC Power"},
                    Powered{"Discharging", {charger("Mains", 1)}, "AC Power"},
                    Powered{"Discharging", {charger("Mains", 0)}, "Battery Power"},
                    Powered{"Charging", {charger("Mains", 0), charger("USB", 1)}, "Battery Power"},
                    Powered{"Charging", {charger("Mains", 0), charger("Mains", 1)}, "AC Power"},
                    Powered{"Charging", {charger("USB", 1)}, "AC Power"},
                    Powered{"Charging", {charger("USB", 2)}, "AC Power"},
                    Powered{"Charging", {charger("USB", 0)}, "Battery Power"},
                    Powered{"Discharging", {charger("USB", 1)}, "Battery Power"},
                    Powered{"Full", {charger("Wireless", 1)}, "AC Power"}, Powered{"Full", {}, "AC Power"},
                    Powered{"Unknown", {}, "AC Power"}, Powered{"Discharging", {}, "Battery Power"}));

TEST(BatteryDescriber, TimesAreToldWhenKnown) {
    const auto discharging = sourceOf({energyBattery("Discharging", 30000, 50000, 9000)});
    EXPECT_EQ(discharging.integer("Time to Empty"), 200);
    EXPECT_EQ(discharging.integer("Time to Full Charge"), std::nullopt);
    const auto charging = sourceOf({energyBattery("Charging", 30000, 50000, 10000)});
    EXPECT_EQ(charging.integer("Time to Full Charge"), 120);
    EXPECT_EQ(charging.integer("Time to Empty"), std::nullopt);
}

TEST(BatteryDescriber, TheLargestCycleCountIsToldAndZeroIsUnknown) {
    auto first = plainBattery("Full", 50);
    auto second = first;
    EXPECT_EQ(entryOf({first}).integer("CycleCount"), std::nullopt);
    first.cycleCount = 0;
    EXPECT_EQ(entryOf({first}).integer("CycleCount"), std::nullopt);
    first.cycleCount = 187;
    second.cycleCount = 412;
    EXPECT_EQ(entryOf({first, second}).integer("CycleCount"), 412);
}

TEST(BatteryDescriber, WearIsToldInOneUnit) {
    auto battery = energyBattery("Full", 30000, 51300, 0);
    EXPECT_EQ(entryOf({battery}).integer("DesignCapacity"), std::nullopt);
    EXPECT_EQ(entryOf({battery}).integer("AppleRawMaxCapacity"), std::nullopt);
    battery.energyFullDesign = 57'000'000;
    EXPECT_EQ(entryOf({battery}).integer("DesignCapacity"), 57000);
    EXPECT_EQ(entryOf({battery}).integer("AppleRawMaxCapacity"), 51300);
}

} // namespace
} // namespace tarvo::linux_platform
