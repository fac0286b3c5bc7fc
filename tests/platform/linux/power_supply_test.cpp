#include "platform/linux/power_supply.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace tarvo::linux_platform {
namespace {

using testing::ElementsAre;

PowerSupply supply(std::string type, std::string scope = {},
                   std::optional<std::int64_t> present = std::nullopt) {
    PowerSupply made;
    made.type = std::move(type);
    made.scope = std::move(scope);
    made.present = present;
    return made;
}

TEST(PowerSupplies, AreReadByNameWithWhatTheyTell) {
    const TemporaryFolder folder;
    folder.write("sys/class/power_supply/BAT0/type", "Battery\n");
    folder.write("sys/class/power_supply/BAT0/status", "Not charging\n");
    folder.write("sys/class/power_supply/BAT0/current_now", "-1200000\n");
    folder.write("sys/class/power_supply/BAT0/energy_now", "unknown\n");
    folder.write("sys/class/power_supply/AC/type", "Mains\n");
    folder.write("sys/class/power_supply/AC/online", "1\n");
    const auto supplies = readPowerSupplies(Root(folder.path().string()));
    ASSERT_EQ(supplies.size(), 2U);
    EXPECT_EQ(supplies[0].name, "AC");
    EXPECT_EQ(supplies[0].online, 1);
    EXPECT_EQ(supplies[1].status, "Not charging");
    EXPECT_EQ(supplies[1].currentNow, -1200000);
    EXPECT_EQ(supplies[1].energyNow, std::nullopt);
    EXPECT_EQ(supplies[1].scope, "");
}

TEST(PowerSupplies, NumbersOfAnotherFormAreMissing) {
    for (const char* text : {"", " 1", "+1", "1.5", "0x10", "9223372036854775808", "1\n"}) {
        const auto made = makePowerSupply("BAT0", [text](const char*) { return std::string(text); });
        EXPECT_EQ(made.energyNow, std::nullopt) << text;
    }
    const auto lowest = makePowerSupply("BAT0", [](const char*) { return "-9223372036854775808"; });
    EXPECT_EQ(lowest.currentNow, std::numeric_limits<std::int64_t>::min());
}

TEST(PowerSupplies, OnlyAnInsertedBatteryOfTheSystemCounts) {
    EXPECT_TRUE(isSystemBattery(supply("Battery")));
    EXPECT_TRUE(isSystemBattery(supply("Battery", "System", 1)));
    EXPECT_FALSE(isSystemBattery(supply("Battery", "System", 0)));
    EXPECT_FALSE(isSystemBattery(supply("Battery", "Device", 1)));
    EXPECT_FALSE(isSystemBattery(supply("UPS")));
    EXPECT_FALSE(isSystemBattery(supply("Mains")));
    EXPECT_FALSE(isSystemBattery(supply("")));
}

TEST(PowerSupplies, ChargersComeByCableOrByAir) {
    for (const char* type : {"Mains", "USB", "USB_PD", "Wireless"})
        EXPECT_TRUE(isCharger(supply(type))) << type;
    EXPECT_FALSE(isCharger(supply("USB", "Device")));
    EXPECT_FALSE(isCharger(supply("Battery")));
    EXPECT_FALSE(isCharger(supply("UPS")));
}

TEST(PowerSupplies, SystemBatteriesAreNamedWithoutAskingForTheirState) {
    const TemporaryFolder folder;
    folder.write("sys/class/power_supply/BAT1/type", "Battery\n");
    folder.write("sys/class/power_supply/BAT0/type", "Battery\n");
    folder.write("sys/class/power_supply/AC/type", "Mains\n");
    folder.write("sys/class/power_supply/hid-1-battery/type", "Battery\n");
    folder.write("sys/class/power_supply/hid-1-battery/scope", "Device\n");
    EXPECT_THAT(systemBatteryNames(Root(folder.path().string())), ElementsAre("BAT0", "BAT1"));
}

TEST(PowerSupplies, OnAMachineWithoutThemAreNone) {
    EXPECT_TRUE(readPowerSupplies(Root("/nonexistent/tarvo")).empty());
    EXPECT_TRUE(systemBatteryNames(Root("/nonexistent/tarvo")).empty());
}

} // namespace
} // namespace tarvo::linux_platform
