#include "macos/mac_test.h"

#include "platform/macos/mac_io_registry.h"
#include "platform/macos/mac_power_sources.h"
#include "sensors/battery_reader.h"

namespace tarvo {
namespace {

using namespace fakes;
using testing::ElementsAre;

class MacBattery : public MacTest {
protected:
    std::optional<BatteryInfo> read() { return readBatteryInfo(sources, registry); }

    macos_platform::MacPowerSources sources;
    macos_platform::MacIORegistry registry;
};

TEST_F(MacBattery, IsReadFromItsDescriptionAndItsRegistryEntry) {
    powerSupply().sources = {dictionary({{"Current Capacity", int32(3000)},
                                         {"Max Capacity", int32(4000)},
                                         {"Is Charging", boolean(true)},
                                         {"Is Charged", boolean(false)},
                                         {"Power Source State", text("AC Power")},
                                         {"Time to Empty", int32(-1)},
                                         {"Time to Full Charge", int32(45)}})};
    ioKit().services = {{"AppleSmartBattery", dictionary({{"CycleCount", int64(312)},
                                                          {"DesignCapacity", int64(5000)},
                                                          {"AppleRawMaxCapacity", int64(4321)}})}};
    const auto battery = read();
    ASSERT_TRUE(battery.has_value());
    EXPECT_EQ(battery->percentage, 75);
    EXPECT_TRUE(battery->isCharging);
    EXPECT_FALSE(battery->isFullyCharged);
    EXPECT_TRUE(battery->isPluggedIn);
    EXPECT_EQ(battery->timeToEmptyMinutes, std::nullopt);
    EXPECT_EQ(battery->timeToFullMinutes, 45);
    EXPECT_EQ(battery->cycleCount, 312);
    EXPECT_EQ(battery->healthPercent, 86);
    EXPECT_THAT(ioKit().propertyNames, ElementsAre("CycleCount", "DesignCapacity", "AppleRawMaxCapacity"));
}

TEST_F(MacBattery, ValuesOfAnotherTypeCountAsMissing) {
    powerSupply().sources = {dictionary({{"Current Capacity", int32(60)},
                                         {"Max Capacity", text("100")},
                                         {"Is Charging", int32(1)},
                                         {"Power Source State", data()},
                                         {"Time to Empty", float64(90)}})};
    const auto battery = read();
    ASSERT_TRUE(battery.has_value());
    EXPECT_EQ(battery->percentage, 60);
    EXPECT_FALSE(battery->isCharging);
    EXPECT_FALSE(battery->isPluggedIn);
    EXPECT_EQ(battery->timeToEmptyMinutes, std::nullopt);
    EXPECT_EQ(battery->cycleCount, std::nullopt);
}

TEST_F(MacBattery, IsAbsentWithoutChargeOrDescription) {
    powerSupply().sources = {dictionary({{"Current Capacity", text("60")}})};
    EXPECT_FALSE(read().has_value());
    powerSupply().sources = {std::nullopt};
    EXPECT_FALSE(read().has_value());
    powerSupply().sources = {};
    EXPECT_FALSE(read().has_value());
}

} // namespace
} // namespace tarvo
