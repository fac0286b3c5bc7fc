#include "platform/linux/system_power.h"

#include "support/manual_clock.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fmt/format.h>

namespace tarvo::linux_platform {
namespace {

class SystemPowerTest : public testing::Test {
protected:
    void setBattery(const char* name, const char* attribute, std::string_view text) {
        folder.write(fmt::format("sys/class/power_supply/{}/type", name), "Battery\n");
        folder.write(fmt::format("sys/class/power_supply/{}/{}", name, attribute), text);
    }
    void setChip(const char* attribute, std::string_view text) {
        folder.write(fmt::format("sys/class/hwmon/hwmon0/{}", attribute), text);
    }
    void setDomain(const char* domain, const char* attribute, std::string_view text) {
        folder.write(fmt::format("sys/class/powercap/{}/{}", domain, attribute), text);
    }
    SystemPower power() {
        const Root root(folder.path().string());
        return {root, clock, readHwmonChips(root)};
    }

    TemporaryFolder folder;
    ManualClock clock;
};

using SystemPowerSource = SystemPowerTest;

TEST_F(SystemPowerSource, OnAMachineWithoutAnyIsNone) {
    const Root root(folder.path().string());
    SystemPower none(root, clock, {});
    EXPECT_FALSE(none.exists());
    EXPECT_EQ(none.read(), std::nullopt);
}

TEST_F(SystemPowerSource, BatteriesAnswerWhileTheyDischarge) {
    setBattery("BAT0", "status", "Discharging\n");
    setBattery("BAT0", "power_now", "9120000\n");
    const Root root(folder.path().string());
    SystemPower power(root, clock, {});
    EXPECT_TRUE(power.exists());
    EXPECT_DOUBLE_EQ(power.read().value(), 9.12);
    for (const char* status : {"Charging\n", "Full\n", "Not charging\n", "Unknown\n"}) {
        setBattery("BAT0", "status", status);
        EXPECT_EQ(power.read(), std::nullopt) << status;
    }
    setBattery("BAT0", "status", "Discharging\n");
    setBattery("BAT0", "power_now", "0\n");
    EXPECT_EQ(power.read(), std::nullopt) << "0 is what the firmware says when it does not know";
}

TEST_F(SystemPowerSource, BatteriesAreSummedAndCurrentTimesVoltageWillDo) {
    setBattery("BAT0", "status", "Discharging\n");
    setBattery("BAT0", "power_now", "5000000\n");
    setBattery("BAT1", "status", "Discharging\n");
    setBattery("BAT1", "current_now", "-500000\n");
    setBattery("BAT1", "voltage_now", "12000000\n");
    setBattery("BAT2", "status", "Full\n");
    setBattery("BAT2", "power_now", "3000000\n");
    const Root root(folder.path().string());
    EXPECT_DOUBLE_EQ(SystemPower(root, clock, {}).read().value(), 11);
}

TEST_F(SystemPowerSource, ABatteryThatTellsNoPowerIsNone) {
    setBattery("BAT0", "status", "Discharging\n");
    setBattery("BAT0", "current_now", "500000\n");
    const Root root(folder.path().string());
    EXPECT_FALSE(SystemPower(root, clock, {}).exists());
}

TEST_F(SystemPowerSource, AReplacedBatteryAnswersAgain) {
    setBattery("BAT0", "status", "Discharging\n");
    setBattery("BAT0", "power_now", "9000000\n");
    const Root root(folder.path().string());
    SystemPower power(root, clock, {});
    EXPECT_TRUE(power.read().has_value());
    // A file of a device that is gone reads as an error; an empty one stands for it here.
    setBattery("BAT0", "power_now", "");
    EXPECT_EQ(power.read(), std::nullopt);
    setBattery("BAT0", "status", "");
    EXPECT_EQ(power.read(), std::nullopt);
    folder.remove("sys/class/power_supply/BAT0");
    EXPECT_EQ(power.read(), std::nullopt);
    setBattery("BAT0", "status", "Discharging\n");
    setBattery("BAT0", "power_now", "7000000\n");
    EXPECT_DOUBLE_EQ(power.read().value(), 7);
}

TEST_F(SystemPowerSource, TheMachinesPowerMeterAnswersByItsAverage) {
    setChip("name", "power_meter\n");
    setChip("power1_average", "312500000\n");
    setChip("power1_input", "1000000\n");
    EXPECT_DOUBLE_EQ(power().read().value(), 312.5);
}

TEST_F(SystemPowerSource, AChipIsTakenByTheLabelOfItsWholeSystem) {
    setChip("name", "macsmc_hwmon\n");
    setChip("power1_input", "1000000\n");
    setChip("power1_label", "Heatpipe Power\n");
    setChip("power2_input", "8000000\n");
    setChip("power2_label", "Total System Power\n");
    EXPECT_DOUBLE_EQ(power().read().value(), 8);
}

TEST_F(SystemPowerSource, ACurrentMonitorIsReadAsVoltageTimesCurrentWhereItTellsNoPower) {
    setChip("name", "ina3221\n");
    setChip("in1_input", "19000\n");
    setChip("in1_label", "VDD_IN\n");
    setChip("curr1_input", "500\n");
    setChip("in2_input", "5000\n");
    setChip("in2_label", "VDD_CPU\n");
    setChip("curr2_input", "100\n");
    EXPECT_DOUBLE_EQ(power().read().value(), 9.5);
}

TEST_F(SystemPowerSource, PartsOfTheMachineAreNotTheMachine) {
    setChip("name", "amdgpu\n");
    setChip("power1_average", "31000000\n");
    setChip("power1_label", "PPT\n");
    setDomain("intel-rapl:0", "name", "package-0\n");
    setDomain("intel-rapl:0", "energy_uj", "1000\n");
    EXPECT_FALSE(power().exists());
}

TEST_F(SystemPowerSource, ThePlatformDomainAnswersFromItsSecondReadingOn) {
    setDomain("intel-rapl:1", "name", "psys\n");
    setDomain("intel-rapl:1", "energy_uj", "1000000\n");
    setDomain("intel-rapl:1", "max_energy_range_uj", "50000000\n");
    const Root root(folder.path().string());
    SystemPower power(root, clock, {});
    EXPECT_TRUE(power.exists());
    EXPECT_EQ(power.read(), std::nullopt);
    setDomain("intel-rapl:1", "energy_uj", "41000000\n");
    clock.advance(std::chrono::seconds(2));
    EXPECT_DOUBLE_EQ(power.read().value(), 20);
    setDomain("intel-rapl:1", "energy_uj", "1000000\n");
    clock.advance(std::chrono::seconds(2));
    EXPECT_DOUBLE_EQ(power.read().value(), 5);
}

TEST_F(SystemPowerSource, ADomainThatMayNotBeReadIsNone) {
    setDomain("intel-rapl:1", "name", "psys\n");
    EXPECT_FALSE(power().exists());
}

TEST_F(SystemPowerSource, BatteriesComeBeforeMeters) {
    setBattery("BAT0", "status", "Discharging\n");
    setBattery("BAT0", "power_now", "9000000\n");
    setChip("name", "power_meter\n");
    setChip("power1_average", "20000000\n");
    const Root root(folder.path().string());
    SystemPower both(root, clock, readHwmonChips(root));
    EXPECT_DOUBLE_EQ(both.read().value(), 9);
    setBattery("BAT0", "status", "Charging\n");
    EXPECT_DOUBLE_EQ(both.read().value(), 20);
}

} // namespace
} // namespace tarvo::linux_platform
