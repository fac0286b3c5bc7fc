// A battery of a mocked device tree that changes, goes and is replaced while this program reads it as the
// machine's own. Runs under umockdev-wrapper.

#include "platform/linux/linux_io_registry.h"
#include "platform/linux/power_supply.h"
#include "platform/linux/system_battery.h"
#include "platform/linux/system_power.h"
#include "sensors/battery_reader.h"
#include "support/manual_dispatcher.h"

#include <gtest/gtest.h>
#include <umockdev.h>

#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tarvo::linux_platform {
namespace {

class MockBattery : public testing::Test {
protected:
    void SetUp() override {
        testbed.reset(umockdev_testbed_new());
        mains = add("AC", {{"type", "Mains\n"}, {"online", "1\n"}});
        ASSERT_EQ(readPowerSupplies(Root()).size(), 1U)
            << "not this machine's: run it under umockdev-wrapper";
        registry.provide("AppleSmartBattery", [this] { return battery.registryEntries(); });
    }

    using Attributes = std::vector<std::pair<std::string, std::string>>;

    std::string add(const char* name, const Attributes& attributes) {
        std::vector<char*> words;
        for (const auto& [attribute, value] : attributes) {
            words.push_back(const_cast<char*>(attribute.c_str()));
            words.push_back(const_cast<char*>(value.c_str()));
        }
        words.push_back(nullptr);
        char* none[] = {nullptr};
        const std::unique_ptr<char, decltype(&g_free)> path(
            umockdev_testbed_add_devicev(testbed.get(), "power_supply", name, nullptr, words.data(), none),
            &g_free);
        return path.get();
    }
    std::string insert(const char* status, const char* now, const char* full, const char* cycles) {
        return add("BAT0", {{"type", "Battery\n"},
                            {"present", "1\n"},
                            {"status", status},
                            {"energy_now", now},
                            {"energy_full", full},
                            {"energy_full_design", "50000000\n"},
                            {"power_now", "10000000\n"},
                            {"cycle_count", cycles}});
    }
    /// Into the same file, as the kernel has it: the testbed itself would put another in its place, which a
    /// file that is kept open does not show.
    void set(const std::string& device, const char* attribute, const char* value) {
        const std::unique_ptr<char, decltype(&g_free)> root(umockdev_testbed_get_root_dir(testbed.get()),
                                                            &g_free);
        std::ofstream file(root.get() + device + "/" + attribute, std::ios::out | std::ios::trunc);
        ASSERT_TRUE(file << value << std::flush);
    }
    void remove(const std::string& device) { umockdev_testbed_remove_device(testbed.get(), device.c_str()); }
    std::optional<BatteryInfo> read() { return readBatteryInfo(battery, registry); }

    struct Unref {
        void operator()(UMockdevTestbed* held) const { g_object_unref(held); }
    };
    std::unique_ptr<UMockdevTestbed, Unref> testbed;
    std::string mains;
    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    SystemBattery battery{Root(), clock, dispatcher};
    LinuxIORegistry registry;
};

BatteryInfo charging(std::int64_t percentage) {
    BatteryInfo info;
    info.percentage = percentage;
    info.isCharging = true;
    info.isPluggedIn = true;
    info.cycleCount = 120;
    info.healthPercent = 80;
    return info;
}

TEST_F(MockBattery, ChargesDischargesGoesAndIsReplacedWhileItIsRead) {
    EXPECT_EQ(read(), std::nullopt) << "mains power alone is no battery";

    const auto first = insert("Charging\n", "20000000\n", "40000000\n", "120\n");
    auto expected = charging(50);
    expected.timeToFullMinutes = 120;
    EXPECT_EQ(read(), expected);

    set(first, "energy_now", "30000000\n");
    expected.percentage = 75;
    expected.timeToFullMinutes = 60;
    EXPECT_EQ(read(), expected);

    set(first, "status", "Full\n");
    set(first, "energy_now", "40000000\n");
    set(first, "power_now", "0\n");
    expected = charging(100);
    expected.isCharging = false;
    expected.isFullyCharged = true;
    EXPECT_EQ(read(), expected);

    set(mains, "online", "0\n");
    set(first, "status", "Discharging\n");
    set(first, "energy_now", "30000000\n");
    set(first, "power_now", "10000000\n");
    expected = charging(75);
    expected.isCharging = false;
    expected.isPluggedIn = false;
    expected.timeToEmptyMinutes = 180;
    EXPECT_EQ(read(), expected);

    remove(first);
    EXPECT_EQ(read(), std::nullopt);

    insert("Discharging\n", "45000000\n", "50000000\n", "3\n");
    expected.percentage = 90;
    expected.timeToEmptyMinutes = 270;
    expected.cycleCount = 3;
    expected.healthPercent = 100;
    EXPECT_EQ(read(), expected);
}

TEST_F(MockBattery, ThatDischargesTellsThePowerOfTheMachine) {
    const auto device = insert("Charging\n", "20000000\n", "40000000\n", "120\n");
    SystemPower power(Root(), clock, {});
    ASSERT_TRUE(power.exists());
    EXPECT_EQ(power.read(), std::nullopt);
    set(device, "status", "Discharging\n");
    EXPECT_EQ(power.read(), 10.0);
    set(device, "power_now", "7500000\n");
    EXPECT_EQ(power.read(), 7.5);
    set(device, "status", "Full\n");
    EXPECT_EQ(power.read(), std::nullopt);
}

} // namespace
} // namespace tarvo::linux_platform
