#include "platform/linux/system_battery.h"

#include "platform/linux/linux_io_registry.h"
#include "sensors/battery_reader.h"
#include "support/manual_dispatcher.h"
#include "support/scripted_io_registry.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

/// A clock on which every look takes some time, and so every reading.
class PassingClock : public ManualClock {
public:
    SteadyTime steadyNow() const override { return ManualClock::steadyNow() + step * looks_++; }

    std::chrono::milliseconds step{0};

private:
    mutable int looks_ = 0;
};

class SystemBatteryTest : public testing::Test {
protected:
    void set(const char* attribute, std::string_view text) {
        folder.write(std::string("sys/class/power_supply/BAT0/") + attribute, text);
    }
    void insert(std::string_view capacity) {
        set("type", "Battery\n");
        set("status", "Discharging\n");
        set("capacity", capacity);
    }
    std::optional<std::int64_t> percentage() {
        const auto info = readBatteryInfo(battery, registry);
        return info ? std::optional(info->percentage) : std::nullopt;
    }

    TemporaryFolder folder;
    PassingClock clock;
    ManualDispatcher dispatcher{clock};
    SystemBattery battery{Root(folder.path().string()), clock, dispatcher};
    ScriptedIORegistry registry;
};

using SystemBatteryReading = SystemBatteryTest;

TEST_F(SystemBatteryReading, IsTakenForEachQuestionWhileItIsQuick) {
    clock.step = SystemBattery::quick;
    insert("60\n");
    EXPECT_EQ(percentage(), 60);
    insert("59\n");
    EXPECT_EQ(percentage(), 59);
    EXPECT_EQ(dispatcher.queuedBackground(), 0U);
}

TEST_F(SystemBatteryReading, IsTakenInTheBackgroundAfterOneThatTookLong) {
    clock.step = SystemBattery::quick + std::chrono::milliseconds(1);
    insert("60\n");
    EXPECT_EQ(percentage(), 60);
    insert("59\n");
    EXPECT_EQ(percentage(), 60) << "answered from what is known";
    EXPECT_EQ(dispatcher.queuedBackground(), 1U);
    EXPECT_EQ(percentage(), 60);
    EXPECT_EQ(dispatcher.queuedBackground(), 1U) << "one at a time";
    dispatcher.runAll();
    EXPECT_EQ(percentage(), 59);
    EXPECT_EQ(dispatcher.queuedBackground(), 1U) << "the one before took long too";
}

TEST_F(SystemBatteryReading, IsWaitedForAgainAfterAQuickOneInTheBackground) {
    clock.step = SystemBattery::quick * 2;
    insert("60\n");
    percentage();
    percentage();
    clock.step = {};
    dispatcher.runAll();
    insert("59\n");
    EXPECT_EQ(percentage(), 59);
    EXPECT_EQ(dispatcher.queuedBackground(), 0U);
}

TEST_F(SystemBatteryReading, WithoutABatteryIsAbsent) {
    EXPECT_EQ(percentage(), std::nullopt);
    EXPECT_TRUE(battery.descriptions()->empty());
    EXPECT_TRUE(battery.registryEntries().empty());
}

TEST_F(SystemBatteryReading, ABatteryThatIsInsertedAndRemovedIsSeen) {
    EXPECT_EQ(percentage(), std::nullopt);
    insert("60\n");
    EXPECT_EQ(percentage(), 60);
    folder.remove("sys/class/power_supply/BAT0");
    EXPECT_EQ(percentage(), std::nullopt);
}

TEST_F(SystemBatteryReading, BusyFirmwareKeepsWhatWasKnownOnce) {
    insert("60\n");
    percentage();
    folder.remove("sys/class/power_supply/BAT0/capacity");
    EXPECT_EQ(percentage(), 60);
    EXPECT_EQ(percentage(), std::nullopt);
    insert("58\n");
    EXPECT_EQ(percentage(), 58);
}

TEST_F(SystemBatteryReading, TellsItsWearAsRegistryEntry) {
    insert("60\n");
    set("cycle_count", "187\n");
    percentage();
    EXPECT_EQ(battery.registryEntries().front().integer("CycleCount"), 187);
}

TEST_F(SystemBatteryReading, MayOutliveTheBatteryThatAskedForIt) {
    insert("60\n");
    clock.step = SystemBattery::quick * 2;
    {
        SystemBattery shortLived(Root(folder.path().string()), clock, dispatcher);
        shortLived.descriptions();
        shortLived.descriptions();
    }
    EXPECT_EQ(dispatcher.queuedBackground(), 1U);
    dispatcher.runAll();
    EXPECT_EQ(dispatcher.queuedBackground(), 0U);
}

BatteryInfo info(std::int64_t percentage, bool charging, bool pluggedIn) {
    BatteryInfo made;
    made.percentage = percentage;
    made.isCharging = charging;
    made.isPluggedIn = pluggedIn;
    return made;
}

class MachineBattery : public testing::Test {
protected:
    std::optional<BatteryInfo> of(const char* machine) {
        SystemBattery battery(Root(std::string(TARVO_TEST_DATA "/") + machine), clock, dispatcher);
        LinuxIORegistry registry;
        registry.provide("AppleSmartBattery", [&battery] { return battery.registryEntries(); });
        return readBatteryInfo(battery, registry);
    }

    ManualClock clock;
    ManualDispatcher dispatcher{clock};
};

TEST_F(MachineBattery, OfALaptopOnItsBattery) {
    auto expected = info(60, false, false);
    expected.timeToEmptyMinutes = 202; // 30.78 Wh at 9.12 W
    expected.cycleCount = 187;
    expected.healthPercent = 90;
    EXPECT_EQ(of("laptop-intel-hybrid"), expected);
}

TEST_F(MachineBattery, OfALaptopWithTwoBatteriesOfDifferentUnits) {
    // 10 + 2.8 Ah x 11.4 V = 41.92 of 20 + 39.9 = 59.9 Wh; designed for 24 + 45.6; charging at 12 W.
    auto expected = info(70, true, true);
    expected.timeToFullMinutes = 89;
    expected.cycleCount = 412;
    expected.healthPercent = 86;
    EXPECT_EQ(of("laptop-amd-2bat"), expected);
}

TEST_F(MachineBattery, OfAMachineWithoutOneIsAbsent) {
    for (const char* machine : {"desktop-amd-two-gpus", "desktop-nvidia-superio", "server-2socket",
                                "raspberrypi5", "vm-empty", "container"})
        EXPECT_EQ(of(machine), std::nullopt) << machine;
}

} // namespace
} // namespace tarvo::linux_platform
