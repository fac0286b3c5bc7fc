#include "sensors/battery_reader.h"

#include "support/fixed_power_sources.h"
#include "support/scripted_io_registry.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace tarvo {
namespace {

class BatteryReader : public testing::Test {
protected:
    void set(const char* key, PropertyValue value) { description.set(key, std::move(value)); }
    void setEntry(const char* key, PropertyValue value) { entry.set(key, std::move(value)); }
    std::optional<BatteryInfo> read() {
        sources.list = PowerSourceList{description};
        registry.classes["AppleSmartBattery"] = std::vector{entry};
        return readBatteryInfo(sources, registry);
    }

    FixedPowerSources sources;
    ScriptedIORegistry registry;
    PropertyDictionary description;
    PropertyDictionary entry;
};

BatteryInfo onlyCharge(std::int64_t percentage) {
    BatteryInfo info;
    info.percentage = percentage;
    return info;
}

PropertyValue integer(std::int64_t value) {
    return value;
}

TEST_F(BatteryReader, AMachineWithoutPowerSourcesHasNoBattery) {
    EXPECT_EQ(readBatteryInfo(sources, registry), std::nullopt);
    sources.list.emplace();
    EXPECT_EQ(readBatteryInfo(sources, registry), std::nullopt);
    EXPECT_TRUE(registry.lookUps.empty());
}

TEST_F(BatteryReader, AFirstSourceWithoutDescriptionIsNoBattery) {
    PropertyDictionary second;
    second.set("Current Capacity", integer(50));
    sources.list = PowerSourceList{std::nullopt, second};
    EXPECT_EQ(readBatteryInfo(sources, registry), std::nullopt);
}

TEST_F(BatteryReader, OnlyTheFirstSourceCounts) {
    PropertyDictionary first;
    first.set("Current Capacity", integer(50));
    PropertyDictionary second;
    second.set("Current Capacity", integer(90));
    sources.list = PowerSourceList{first, second};
    EXPECT_EQ(readBatteryInfo(sources, registry)->percentage, 50);
}

TEST_F(BatteryReader, WithoutAnIntegerChargeThereIsNoBattery) {
    EXPECT_EQ(read(), std::nullopt);
    set("Current Capacity", 87.0);
    EXPECT_EQ(read(), std::nullopt);
    set("Current Capacity", std::string("87"));
    EXPECT_EQ(read(), std::nullopt);
}

struct Charge {
    std::int64_t current;
    std::optional<std::int64_t> full;
    std::int64_t percentage;
};

class ChargeOf : public BatteryReader, public testing::WithParamInterface<Charge> {};

TEST_P(ChargeOf, IsTheRoundedShareOfTheFullCharge) {
    set("Current Capacity", integer(GetParam().current));
    if (GetParam().full) set("Max Capacity", integer(*GetParam().full));
    EXPECT_EQ(read()->percentage, GetParam().percentage);
}
INSTANTIATE_TEST_SUITE_P(BatteryReader, ChargeOf,
                         testing::Values(Charge{87, 100, 87}, Charge{87, 0, 87}, Charge{3000, 4000, 75},
                                         Charge{87, std::nullopt, 87}, Charge{4100, -1, 4100},
                                         Charge{1, 200, 1}, Charge{1, 201, 0}, Charge{110, 100, 110},
                                         Charge{-1, 200, -1}));

TEST_F(BatteryReader, EverythingThatIsNotSaidIsFalseOrAbsent) {
    set("Current Capacity", integer(40));
    registry.classes.clear();
    sources.list = PowerSourceList{description};
    EXPECT_EQ(readBatteryInfo(sources, registry), onlyCharge(40));
    registry.fails = true;
    EXPECT_EQ(readBatteryInfo(sources, registry), onlyCharge(40));
}

TEST_F(BatteryReader, TellsWhatThePowerSourceSays) {
    set("Current Capacity", integer(40));
    set("Is Charging", true);
    set("Is Charged", true);
    set("Power Source State", std::string("AC Power"));
    const auto info = read();
    EXPECT_TRUE(info->isCharging);
    EXPECT_TRUE(info->isFullyCharged);
    EXPECT_TRUE(info->isPluggedIn);
    set("Power Source State", std::string("Battery Power"));
    EXPECT_FALSE(read()->isPluggedIn);
}

TEST_F(BatteryReader, AKeyOfAnotherTypeCountsAsMissing) {
    set("Current Capacity", integer(40));
    set("Is Charging", integer(1));
    set("Power Source State", true);
    set("Time to Empty", std::string("60"));
    set("Max Capacity", 50.0);
    EXPECT_EQ(read(), onlyCharge(40));
}

TEST_F(BatteryReader, OnlyPositiveTimesAreKnown) {
    set("Current Capacity", integer(40));
    for (const std::int64_t unknown : {-1, 0}) {
        set("Time to Empty", integer(unknown));
        set("Time to Full Charge", integer(unknown));
        EXPECT_EQ(read()->timeToEmptyMinutes, std::nullopt);
        EXPECT_EQ(read()->timeToFullMinutes, std::nullopt);
    }
    set("Time to Empty", integer(1));
    set("Time to Full Charge", integer(135));
    EXPECT_EQ(read()->timeToEmptyMinutes, 1);
    EXPECT_EQ(read()->timeToFullMinutes, 135);
}

TEST_F(BatteryReader, HealthIsCappedAndNeedsBothCapacities) {
    set("Current Capacity", integer(40));
    setEntry("CycleCount", integer(0));
    setEntry("DesignCapacity", integer(5000));
    EXPECT_EQ(read()->cycleCount, 0);
    EXPECT_EQ(read()->healthPercent, std::nullopt);
    setEntry("AppleRawMaxCapacity", integer(5200));
    EXPECT_EQ(read()->healthPercent, 100);
    setEntry("AppleRawMaxCapacity", integer(4321));
    EXPECT_EQ(read()->healthPercent, 86);
    setEntry("DesignCapacity", integer(0));
    EXPECT_EQ(read()->healthPercent, std::nullopt);
}

TEST_F(BatteryReader, ReadsTheRegistryOnceAndNamesThePropertiesOfWear) {
    set("Current Capacity", integer(40));
    read();
    EXPECT_EQ(registry.lookUps, std::vector<std::string>{"AppleSmartBattery"});
    EXPECT_EQ(registry.named,
              (std::vector<std::string>{"CycleCount", "DesignCapacity", "AppleRawMaxCapacity"}));
}

} // namespace
} // namespace tarvo
