#include "platform/linux/thermal_zone.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using testing::ElementsAre;

std::vector<std::string> zonesOf(const TemporaryFolder& folder) {
    std::vector<std::string> zones;
    for (const auto& zone : readThermalZones(Root(folder.path().string())))
        zones.push_back(zone.type + " " + std::to_string(zone.number));
    return zones;
}

TEST(ThermalZones, AreOrderedByTypeAndNumber) {
    const TemporaryFolder folder;
    folder.write("sys/class/thermal/thermal_zone10/type", "cpu0\n");
    folder.write("sys/class/thermal/thermal_zone2/type", "cpu0\n");
    folder.write("sys/class/thermal/thermal_zone3/type", "battery\n");
    folder.write("sys/class/thermal/cooling_device0/type", "Processor\n");
    folder.makeFolder("sys/class/thermal/thermal_zone4");
    EXPECT_THAT(zonesOf(folder), ElementsAre("battery 3", "cpu0 2", "cpu0 10"));
}

TEST(ThermalZones, ThatAreListedAsChipsAreLeftOut) {
    const TemporaryFolder folder;
    folder.write("sys/class/thermal/thermal_zone0/type", "acpitz\n");
    folder.makeFolder("sys/class/thermal/thermal_zone0/hwmon3");
    folder.write("sys/class/thermal/thermal_zone1/type", "soc\n");
    EXPECT_THAT(zonesOf(folder), ElementsAre("soc 1"));
}

TEST(ThermalZones, OnAMachineWithoutThemAreNone) {
    EXPECT_THAT(zonesOf(TemporaryFolder()), ElementsAre());
}

} // namespace
} // namespace tarvo::linux_platform
