#include "platform/linux/hwmon_chip.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using testing::ElementsAre;

TEST(HwmonAttribute, IsTakenApart) {
    EXPECT_EQ(parseHwmonAttribute("temp12_input"),
              (HwmonInput{HwmonKind::temperature, 12, "temp12_input", "", false}));
    EXPECT_EQ(parseHwmonAttribute("fan1_input")->kind, HwmonKind::fan);
    EXPECT_EQ(parseHwmonAttribute("power1_average")->kind, HwmonKind::power);
    EXPECT_EQ(parseHwmonAttribute("in0_input")->kind, HwmonKind::voltage);
    EXPECT_EQ(parseHwmonAttribute("curr3_input")->kind, HwmonKind::current);
}

TEST(HwmonAttribute, OfAnotherFormIsNone) {
    for (const char* name :
         {"", "temp_input", "temp1", "temp1_label", "temp1_inputs", "tempx_input", "temp-1_input", "input",
          "intrusion0_alarm", "fan1_target", "temp99999_input", "power1_cap"}) {
        EXPECT_EQ(parseHwmonAttribute(name), std::nullopt) << name;
    }
}

class HwmonChips : public testing::Test {
protected:
    std::vector<HwmonChip> read() { return readHwmonChips(Root(folder.path().string())); }
    TemporaryFolder folder;
};

TEST_F(HwmonChips, OnAMachineWithoutThemAreNone) {
    EXPECT_TRUE(read().empty());
}

TEST_F(HwmonChips, AreOrderedByNameAndDeviceNotByNumber) {
    folder.write("sys/devices/b/hwmon/hwmon0/name", "coretemp\n");
    folder.write("sys/devices/a/hwmon/hwmon1/name", "coretemp\n");
    folder.write("sys/devices/c/hwmon/hwmon2/name", "acpitz\n");
    for (const char* chip : {"b/hwmon/hwmon0", "a/hwmon/hwmon1", "c/hwmon/hwmon2"}) {
        const std::string path(chip);
        folder.link("sys/devices/" + path + "/device", "../..");
        folder.link("sys/class/hwmon/" + path.substr(path.rfind('/') + 1), "../../devices/" + path);
    }
    std::vector<std::string> paths;
    for (const auto& chip : read())
        paths.push_back(chip.name + " " + chip.devicePath);
    EXPECT_THAT(paths,
                ElementsAre("acpitz /sys/devices/c", "coretemp /sys/devices/a", "coretemp /sys/devices/b"));
}

TEST_F(HwmonChips, ListTheirInputsByKindAndNumberWithLabelsAndFaults) {
    folder.write("sys/class/hwmon/hwmon0/name", "x\n");
    folder.write("sys/class/hwmon/hwmon0/temp10_input", "1\n");
    folder.write("sys/class/hwmon/hwmon0/temp2_input", "1\n");
    folder.write("sys/class/hwmon/hwmon0/temp2_label", "Core 0\n");
    folder.write("sys/class/hwmon/hwmon0/temp2_fault", "1\n");
    folder.write("sys/class/hwmon/hwmon0/temp10_fault", "0\n");
    folder.write("sys/class/hwmon/hwmon0/fan1_input", "1\n");
    const auto chips = read();
    ASSERT_EQ(chips.size(), 1U);
    EXPECT_EQ(chips[0].devicePath, "");
    EXPECT_THAT(chips[0].inputs,
                ElementsAre(HwmonInput{HwmonKind::temperature, 2, "temp2_input", "Core 0", true},
                            HwmonInput{HwmonKind::temperature, 10, "temp10_input", "", false},
                            HwmonInput{HwmonKind::fan, 1, "fan1_input", "", false}));
}

TEST_F(HwmonChips, OfOldDriversKeepTheirAttributesInTheDevice) {
    folder.write("sys/class/hwmon/hwmon0/device/name", "w83627hf\n");
    folder.write("sys/class/hwmon/hwmon0/device/temp1_input", "30000\n");
    const auto chips = read();
    ASSERT_EQ(chips.size(), 1U);
    EXPECT_EQ(chips[0].name, "w83627hf");
    EXPECT_TRUE(chips[0].folder.ends_with("/hwmon0/device"));
    EXPECT_EQ(chips[0].inputs.size(), 1U);
}

} // namespace
} // namespace tarvo::linux_platform
