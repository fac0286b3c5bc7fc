#include "platform/linux/sensor_group.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvo::linux_platform {
namespace {

HwmonInput temperature(int index, std::string label) {
    return {HwmonKind::temperature, index, "temp" + std::to_string(index) + "_input", std::move(label),
            false};
}

struct Labelled {
    const char* chip;
    int index;
    const char* label;
    const char* prefix;
};

class GroupOf : public testing::TestWithParam<Labelled> {};

TEST_P(GroupOf, FollowsTheChipAndItsLabel) {
    const auto& row = GetParam();
    const HwmonChip chip{row.chip, "", "", {temperature(row.index, row.label)}};
    EXPECT_EQ(keyPrefix(temperatureGroup(chip, chip.inputs[0])), row.prefix) << row.chip << " " << row.label;
}
INSTANTIATE_TEST_SUITE_P(
    SensorGroup, GroupOf,
    testing::Values(
        Labelled{"coretemp", 2, "Core 0", "Tp"}, Labelled{"coretemp", 1, "Package id 0", "TC"},
        Labelled{"coretemp", 1, "", "TC"}, Labelled{"via_cputemp", 1, "Core 0", "Tp"},
        Labelled{"cpu_thermal", 1, "", "Tp"}, Labelled{"soc_thermal", 1, "", "Tp"},
        Labelled{"scpi_sensors", 1, "little_cluster", "Te"}, Labelled{"scpi_sensors", 1, "pmic", "Tp"},
        Labelled{"macsmc_hwmon", 1, "CPU P-Core 1", "Tp"}, Labelled{"macsmc_hwmon", 1, "CPU E-Core 1", "Te"},
        Labelled{"macsmc_hwmon", 1, "CPU Efficiency Cluster", "Te"},
        Labelled{"macsmc_hwmon", 1, "Battery Hotspot", "TX"}, Labelled{"amdgpu", 1, "edge", "Tg"},
        Labelled{"amdgpu", 1, "", "Tg"}, Labelled{"amdgpu", 2, "junction", "TG"},
        Labelled{"amdgpu", 3, "mem", "TG"}, Labelled{"nouveau", 1, "", "Tg"}, Labelled{"xe", 2, "pkg", "Tg"},
        Labelled{"xe", 3, "vram", "TG"}, Labelled{"i915", 1, "", "Tg"},
        Labelled{"nvme", 1, "Composite", "TN"}, Labelled{"drivetemp", 1, "", "TN"},
        Labelled{"jc42", 1, "", "TM"}, Labelled{"spd5118", 1, "", "TM"}, Labelled{"iwlwifi_1", 1, "", "TW"},
        Labelled{"mt7921_phy0", 1, "", "TW"}, Labelled{"mt7615_phy0", 1, "", "TW"},
        Labelled{"ath11k_hwmon", 1, "", "TW"}, Labelled{"acpitz", 1, "", "TA"}, Labelled{"BAT0", 1, "", "TB"},
        Labelled{"nct6798", 1, "SYSTIN", "TV"}, Labelled{"it8620", 1, "", "TV"},
        Labelled{"it87", 1, "", "TV"}, Labelled{"f71882fg", 1, "", "TV"}, Labelled{"w83627ehf", 1, "", "TV"},
        Labelled{"asus_wmi_sensors", 1, "CPU", "TV"}, Labelled{"dell_smm", 1, "CPU", "TV"},
        Labelled{"thinkpad", 1, "CPU", "TV"}, Labelled{"pch_cannonlake", 1, "", "TX"},
        Labelled{"", 1, "", "TX"}));

TEST(SensorGroup, TheDiesOfAnAMDProcessorComeBeforeItsControlValue) {
    const HwmonChip chip{
        "k10temp", "", "", {temperature(1, "Tctl"), temperature(2, "Tdie"), temperature(3, "Tccd1")}};
    EXPECT_EQ(temperatureGroup(chip, chip.inputs[0]), SensorGroup::package);
    EXPECT_EQ(temperatureGroup(chip, chip.inputs[1]), SensorGroup::package);
    EXPECT_EQ(temperatureGroup(chip, chip.inputs[2]), SensorGroup::performanceCore);
}

TEST(SensorGroup, WithoutDiesTheTrueValueComesBeforeTheControlValue) {
    const HwmonChip both{"zenpower", "", "", {temperature(1, "Tctl"), temperature(2, "Tdie")}};
    EXPECT_EQ(temperatureGroup(both, both.inputs[0]), SensorGroup::package);
    EXPECT_EQ(temperatureGroup(both, both.inputs[1]), SensorGroup::performanceCore);
    const HwmonChip control{"k10temp", "", "", {temperature(1, "Tctl")}};
    EXPECT_EQ(temperatureGroup(control, control.inputs[0]), SensorGroup::performanceCore);
    const HwmonChip bare{"k10temp", "", "", {temperature(1, "")}};
    EXPECT_EQ(temperatureGroup(bare, bare.inputs[0]), SensorGroup::performanceCore);
}

TEST(SensorGroup, AZoneThatIsListedAsChipGoesByItsType) {
    const HwmonChip zone{
        "littlecore_thermal", "/sys/devices/virtual/thermal/thermal_zone2", "", {temperature(1, "")}};
    EXPECT_EQ(temperatureGroup(zone, zone.inputs[0]), SensorGroup::efficiencyCore);
}

struct Typed {
    const char* type;
    const char* prefix;
};

class ZoneGroupOf : public testing::TestWithParam<Typed> {};

TEST_P(ZoneGroupOf, FollowsItsType) {
    EXPECT_EQ(keyPrefix(zoneGroup(GetParam().type)), GetParam().prefix) << GetParam().type;
}
INSTANTIATE_TEST_SUITE_P(SensorGroup, ZoneGroupOf,
                         testing::Values(Typed{"gpu-thermal", "Tg"}, Typed{"gpu0-cpu-thermal", "Tg"},
                                         Typed{"littlecore-thermal", "Te"}, Typed{"cpu-efficiency", "Te"},
                                         Typed{"bigcore0-thermal", "Tp"}, Typed{"cpu0-thermal", "Tp"},
                                         Typed{"cluster1", "Tp"}, Typed{"core-0", "Tp"}, Typed{"TCPU", "TX"},
                                         Typed{"INT3400 Thermal", "TX"}, Typed{"battery", "TX"},
                                         Typed{"", "TX"}));

} // namespace
} // namespace tarvo::linux_platform
