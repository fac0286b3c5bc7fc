// Bluetooth as the desktop program wires it, over BlueZ on a bus of the test's own.

#include "linux/bluez.h"

#include "platform/desktop/qt_dispatcher.h"
#include "support/mock_bluez.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <future>

namespace tarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Battery = BluetoothAccessoryBattery;
using Info = BluetoothDeviceInfo;

class BluetoothOfTheProgram : public testing::Test {
protected:
    void startBluez() {
        if (!MockBluez::isInstalled()) GTEST_SKIP() << "python3-dbusmock is not installed";
        ASSERT_TRUE(bluez.start());
        bluez.addAdapter("hci0");
    }
    bool showsBatteries() {
        return waitUntil([this] { return !bluetooth.batteryMonitor().devices().empty(); });
    }

    TemporaryFolder machine;
    TestBus bus;
    MockBluez bluez{bus};
    desktop::QtDispatcher dispatcher;
    std::atomic<int> connections = 0;
    Bluetooth bluetooth{bluezSources(
        [this, connection = bus.connect()] {
            ++connections;
            return connection;
        },
        machine.path().string(), dispatcher)};
};

TEST_F(BluetoothOfTheProgram, AsksNothingBeforeAViewDoes) {
    runPostedEvents();
    EXPECT_EQ(connections, 0);
    EXPECT_EQ(&BluetoothBatteryMonitor::shared(), &bluetooth.batteryMonitor());
}

TEST_F(BluetoothOfTheProgram, ShowsTheChargesOfAccessories) {
    startBluez();
    if (IsSkipped()) return;
    bluez.addBattery(bluez.addDevice("hci0", "00:11:22:33:44:01", "Mouse"), 73);
    BluetoothBatteryMonitor::shared().refresh();
    ASSERT_TRUE(showsBatteries());
    EXPECT_THAT(bluetooth.batteryMonitor().devices(), ElementsAre(Battery{"Mouse", 73}));
}

TEST_F(BluetoothOfTheProgram, ShowsAChargeThatOnlyTheKernelKnows) {
    const std::string supply = "sys/class/power_supply/hid-00:11:22:33:44:02-battery/";
    machine.write(supply + "type", "Battery\n");
    machine.write(supply + "scope", "Device\n");
    machine.write(supply + "capacity", "55\n");
    startBluez();
    if (IsSkipped()) return;
    bluez.addDevice("hci0", "00:11:22:33:44:02", "Keyboard");
    bluetooth.batteryMonitor().refresh();
    ASSERT_TRUE(showsBatteries());
    EXPECT_THAT(bluetooth.batteryMonitor().devices(), ElementsAre(Battery{"Keyboard", 55}));
}

TEST_F(BluetoothOfTheProgram, ListsThePairedDevicesConnectedOnesFirst) {
    startBluez();
    if (IsSkipped()) return;
    const auto keyboard = bluez.addDevice("hci0", "00:11:22:33:44:01", "Keyboard");
    bluez.setDevice(keyboard, {{"Class", 0x2540U}, {"Connected", false}});
    bluez.setDevice(bluez.addDevice("hci0", "00:11:22:33:44:02", "Phone"), {{"Class", 0x5A020CU}});
    const auto list = bluetooth.pairedDevices();
    EXPECT_THAT(list(), ElementsAre(Info{"Phone", "00:11:22:33:44:02", true, "iphone"},
                                    Info{"Keyboard", "00:11:22:33:44:01", false, "keyboard.fill"}));
}

TEST_F(BluetoothOfTheProgram, ShowsNothingWithoutBluez) {
    bluetooth.batteryMonitor().refresh();
    ASSERT_TRUE(waitUntil([this] { return connections == 1; }));
    ASSERT_TRUE(dispatcher.finish(std::chrono::seconds(20)));
    runPostedEvents();
    bluetooth.batteryMonitor().refresh();
    EXPECT_THAT(bluetooth.batteryMonitor().devices(), IsEmpty());
    EXPECT_THAT(bluetooth.pairedDevices()(), IsEmpty());
}

TEST_F(BluetoothOfTheProgram, LeavesTheMainThreadFreeWhileTheBusHangs) {
    std::promise<void> answer;
    Bluetooth hanging{bluezSources(
        [&answer] {
            answer.get_future().wait();
            return QDBusConnection(QStringLiteral("none"));
        },
        machine.path().string(), dispatcher)};
    hanging.batteryMonitor().refresh();
    bool turned = false;
    dispatcher.async([&turned] { turned = true; });
    EXPECT_TRUE(waitUntil([&turned] { return turned; }));
    EXPECT_THAT(hanging.batteryMonitor().devices(), IsEmpty());
    answer.set_value();
    EXPECT_TRUE(dispatcher.finish(std::chrono::seconds(20)));
}

TEST(BluetoothBus, OfARecordedMachineIsNone) {
    EXPECT_FALSE(bluetoothBus("/recorded")().isConnected());
}

} // namespace
} // namespace tarvo
