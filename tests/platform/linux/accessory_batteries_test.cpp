#include "platform/linux/accessory_batteries.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

TEST(AccessoryAddress, IsPartOfTheSuppliesName) {
    EXPECT_EQ(accessoryAddress("hid-00:11:22:aa:bb:cc-battery"), "00:11:22:AA:BB:CC");
    EXPECT_EQ(accessoryAddress("hid-00:11:22:AA:BB:CC-battery"), "00:11:22:AA:BB:CC");
    for (const char* name :
         {"", "hid--battery", "BAT0", "hid-0005:046D:B351.0001-battery", "hid-00:11:22:aa:bb:cg-battery",
          "hid-00:11:22:aa:bb-cc-battery", "hid-00:11:22:aa:bb:cc", "hidpp_battery_0"})
        EXPECT_EQ(accessoryAddress(name), std::nullopt) << name;
}

TEST(AccessoryBatteries, AreThoseOfDevicesThatTellTheirCharge) {
    const TemporaryFolder folder;
    const auto set = [&folder](const char* supply, const char* scope, const char* capacity) {
        const auto path = std::string("sys/class/power_supply/") + supply;
        folder.write(path + "/type", "Battery\n");
        folder.write(path + "/scope", scope);
        folder.write(path + "/capacity", capacity);
    };
    set("hid-00:11:22:33:44:01-battery", "Device\n", "73\n");
    set("hid-00:11:22:33:44:02-battery", "System\n", "73\n");
    set("hid-00:11:22:33:44:03-battery", "Device\n", "101\n");
    set("hid-00:11:22:33:44:04-battery", "Device\n", "");
    set("hid-00:11:22:33:44:05-battery", "Device\n", "0\n");
    set("wacom_battery_0", "Device\n", "50\n");
    EXPECT_THAT(readAccessoryBatteries(Root(folder.path().string())),
                testing::ElementsAre(AccessoryPower{"00:11:22:33:44:01", 73},
                                     AccessoryPower{"00:11:22:33:44:05", 0}));
}

TEST(AccessoryBatteries, OfARecordedLaptop) {
    EXPECT_THAT(readAccessoryBatteries(Root(TARVO_TEST_DATA "/laptop-intel-hybrid")),
                testing::ElementsAre(AccessoryPower{"00:11:22:33:44:55", 73}));
}

} // namespace
} // namespace tarvo::linux_platform
