// Rounds of the battery monitor over BlueZ, as a view starts them.

#include "platform/desktop/bluez/bluez_central_manager.h"
#include "platform/desktop/qt_dispatcher.h"
#include "sensors/bluetooth_battery_monitor.h"
#include "support/mock_bluez.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Battery = BluetoothAccessoryBattery;

class BluetoothRoundTest : public testing::Test {
protected:
    void SetUp() override {
        if (!MockBluez::isInstalled()) GTEST_SKIP() << "python3-dbusmock is not installed";
        ASSERT_TRUE(bluez.start());
        bluez.addAdapter("hci0");
    }
    bool shows(std::size_t count) {
        return waitUntil([&] { return monitor.devices().size() == count; });
    }

    TestBus bus;
    MockBluez bluez{bus};
    QtDispatcher dispatcher;
    BluetoothBatteryMonitor monitor{[this](BluetoothCentralDelegate& delegate) {
        return std::make_unique<BluezCentralManager>([connection = bus.connect()] { return connection; },
                                                     nullptr, dispatcher, delegate);
    }};
};

using BluetoothRound = BluetoothRoundTest;

TEST_F(BluetoothRound, TheFirstRefreshLeadsToTheReadings) {
    bluez.addBattery(bluez.addDevice("hci0", "00:11:22:33:44:01", "Mouse"), 73);
    bluez.addBattery(bluez.addDevice("hci0", "00:11:22:33:44:02", "Buds"), 40);
    bluez.addBattery(bluez.addDevice("hci0", "00:11:22:33:44:03", "Buds"), 60);
    bluez.addBattery(bluez.addDevice("hci0", "00:11:22:33:44:04", "00-11-22-33-44-04"), 5);
    monitor.refresh();
    ASSERT_TRUE(shows(4));
    EXPECT_THAT(monitor.devices(), testing::UnorderedElementsAre(Battery{"Bluetooth", 5}, Battery{"Buds", 40},
                                                                 Battery{"Buds", 60}, Battery{"Mouse", 73}));
    EXPECT_EQ(monitor.devices().front().name, "Bluetooth");
    EXPECT_EQ(monitor.devices().back().name, "Mouse");
}

TEST_F(BluetoothRound, ARadioThatIsTurnedOnStartsARoundByItself) {
    bluez.setPowered("hci0", false);
    bluez.addBattery(bluez.addDevice("hci0", "00:11:22:33:44:01", "Mouse"), 73);
    monitor.refresh();
    bluez.settle();
    runPostedEvents();
    EXPECT_THAT(monitor.devices(), IsEmpty());
    bluez.setPowered("hci0", true);
    EXPECT_TRUE(shows(1));
}

TEST_F(BluetoothRound, AnAdapterThatGoesLeavesTheLastReadings) {
    bluez.addBattery(bluez.addDevice("hci0", "00:11:22:33:44:01", "Mouse"), 73);
    monitor.refresh();
    ASSERT_TRUE(shows(1));
    monitor.refresh();
    bluez.removeAdapter("hci0");
    bluez.settle();
    runPostedEvents();
    EXPECT_THAT(monitor.devices(), ElementsAre(Battery{"Mouse", 73}));
}

TEST_F(BluetoothRound, ADeviceThatDisconnectsIsGoneWithTheNextRound) {
    const auto mouse = bluez.addDevice("hci0", "00:11:22:33:44:01", "Mouse");
    bluez.addBattery(mouse, 73);
    monitor.refresh();
    ASSERT_TRUE(shows(1));
    bluez.setDevice(mouse, {{"Connected", false}});
    EXPECT_TRUE(waitUntil([this] {
        monitor.refresh();
        return monitor.devices().empty();
    }));
}

} // namespace
} // namespace tarvo::desktop
