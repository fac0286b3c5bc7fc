#include "platform/desktop/bluez/bluez_central_manager.h"

#include "platform/desktop/bluez/bluez_paired_devices.h"
#include "platform/desktop/qt_dispatcher.h"
#include "support/mock_bluez.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <memory>
#include <optional>

namespace tarvo::desktop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Writes down what the manager reports.
class Delegate : public BluetoothCentralDelegate {
public:
    void didUpdateState() override { ++stateUpdates; }
    void didConnect(const BluetoothPeripheral& peripheral) override { note("connected", peripheral); }
    void didFailToConnect(const BluetoothPeripheral& peripheral) override { note("failed", peripheral); }
    void didDiscoverServices(const BluetoothPeripheral& peripheral,
                             const std::vector<std::string>& services) override {
        note("services " + services.at(0), peripheral);
    }
    void didDiscoverCharacteristics(const BluetoothPeripheral& peripheral, const std::string& service,
                                    const std::vector<std::string>& characteristics) override {
        note("characteristics " + service + " " + characteristics.at(0), peripheral);
    }
    void didUpdateValue(const BluetoothPeripheral& peripheral, const std::string& characteristic,
                        const std::optional<std::vector<std::uint8_t>>& value) override {
        note("value " + characteristic + " " + (value ? std::to_string(value->at(0)) : "none"), peripheral);
    }

    int stateUpdates = 0;
    std::vector<std::string> notes;

private:
    void note(const std::string& what, const BluetoothPeripheral& peripheral) {
        notes.push_back(what + " " + peripheral.name.value_or("nameless"));
    }
};

constexpr std::array<std::string_view, 1> batteryService{"180F"};
constexpr std::array<std::string_view, 1> batteryLevel{"2A19"};

class BluezCentralManagerTest : public testing::Test {
protected:
    void SetUp() override {
        if (!MockBluez::isInstalled()) GTEST_SKIP() << "python3-dbusmock is not installed";
    }
    void startBluez() {
        bluez.emplace(bus);
        ASSERT_TRUE(bluez->start());
        bluez->addAdapter("hci0");
    }
    std::unique_ptr<BluezCentralManager> makeManager() {
        return std::make_unique<BluezCentralManager>(connected(), readPowers, dispatcher, delegate);
    }
    /// The manager asks on another thread, where the test's bus must not be touched.
    ConnectBus connected() {
        return [connection = bus.connect()] { return connection; };
    }
    bool becomes(const BluezCentralManager& manager, BluetoothState state) {
        return waitUntil([&] { return manager.state() == state; });
    }
    std::vector<std::string> connectedNames(BluezCentralManager& manager) {
        std::vector<std::string> names;
        for (const auto& peripheral : manager.connectedPeripherals("180F"))
            names.push_back(peripheral.name.value_or("nameless"));
        return names;
    }
    bool answered(std::size_t count) {
        return waitUntil([&] { return delegate.notes.size() >= count; });
    }

    TestBus bus;
    QtDispatcher dispatcher;
    Delegate delegate;
    ReadAccessoryPower readPowers;
    std::optional<MockBluez> bluez;
};

using BlueZ = BluezCentralManagerTest;

TEST_F(BlueZ, WithoutTheServiceThereIsNoBluetoothAndNothingIsStarted) {
    const auto manager = makeManager();
    EXPECT_EQ(manager->state(), BluetoothState::unknown);
    EXPECT_TRUE(becomes(*manager, BluetoothState::unsupported));
    EXPECT_EQ(delegate.stateUpdates, 1);
    EXPECT_THAT(connectedNames(*manager), IsEmpty());
}

TEST_F(BlueZ, WithoutABusThereIsNoBluetooth) {
    bus.stop();
    const auto manager = makeManager();
    EXPECT_TRUE(becomes(*manager, BluetoothState::unsupported));
}

TEST_F(BlueZ, ARadioThatIsOffIsSeenAndFollowed) {
    startBluez();
    bluez->setPowered("hci0", false);
    const auto manager = makeManager();
    EXPECT_TRUE(becomes(*manager, BluetoothState::poweredOff));
    bluez->setPowered("hci0", true);
    EXPECT_TRUE(becomes(*manager, BluetoothState::poweredOn));
    EXPECT_EQ(delegate.stateUpdates, 2);
}

TEST_F(BlueZ, AServiceThatStartsLaterIsFound) {
    const auto manager = makeManager();
    EXPECT_TRUE(becomes(*manager, BluetoothState::unsupported));
    startBluez();
    EXPECT_TRUE(becomes(*manager, BluetoothState::poweredOn));
    bluez->stop();
    EXPECT_TRUE(becomes(*manager, BluetoothState::unsupported));
}

TEST_F(BlueZ, ConnectedDevicesWithABatteryAreOffered) {
    startBluez();
    const auto mouse = bluez->addDevice("hci0", "00:11:22:33:44:01", "Mouse");
    bluez->addBattery(mouse, 73);
    bluez->addDevice("hci0", "00:11:22:33:44:02", "Speaker");
    const auto away = bluez->addDevice("hci0", "00:11:22:33:44:03", "Away");
    bluez->addBattery(away, 20);
    bluez->setDevice(away, {{"Connected", false}});
    const auto manager = makeManager();
    ASSERT_TRUE(becomes(*manager, BluetoothState::poweredOn));
    EXPECT_THAT(connectedNames(*manager), ElementsAre("Mouse"));
    EXPECT_THAT(manager->connectedPeripherals("1812"), IsEmpty()) << "no other service is known";
}

TEST_F(BlueZ, EveryStepIsAnsweredInALaterTurn) {
    startBluez();
    bluez->addBattery(bluez->addDevice("hci0", "00:11:22:33:44:01", "Mouse"), 73);
    const auto manager = makeManager();
    ASSERT_TRUE(becomes(*manager, BluetoothState::poweredOn));
    const auto mouse = manager->connectedPeripherals("180F").at(0);
    manager->connect(mouse);
    manager->discoverServices(mouse, batteryService);
    manager->discoverCharacteristics(mouse, "180F", batteryLevel);
    manager->readValue(mouse, "2A19");
    manager->cancelConnection(mouse);
    EXPECT_THAT(delegate.notes, IsEmpty()) << "never from inside a call";
    ASSERT_TRUE(answered(4));
    EXPECT_THAT(delegate.notes, ElementsAre("connected Mouse", "services 180F Mouse",
                                            "characteristics 180F 2A19 Mouse", "value 2A19 73 Mouse"));
    EXPECT_THAT(connectedNames(*manager), ElementsAre("Mouse")) << "the user's device stays connected";
}

TEST_F(BlueZ, ChargesAndConnectionsAreFollowed) {
    startBluez();
    const auto path = bluez->addDevice("hci0", "00:11:22:33:44:01", "Mouse");
    const auto manager = makeManager();
    ASSERT_TRUE(becomes(*manager, BluetoothState::poweredOn));
    EXPECT_THAT(connectedNames(*manager), IsEmpty());
    bluez->addBattery(path, 73);
    EXPECT_TRUE(waitUntil([&] { return connectedNames(*manager).size() == 1; }));
    bluez->setBattery(path, 72);
    bluez->settle();
    const auto mouse = manager->connectedPeripherals("180F").at(0);
    EXPECT_TRUE(waitUntil([&] {
        manager->readValue(mouse, "2A19");
        runPostedEvents();
        return !delegate.notes.empty() && delegate.notes.back() == "value 2A19 72 Mouse";
    }));
    bluez->setDevice(path, {{"Connected", false}});
    EXPECT_TRUE(waitUntil([&] { return connectedNames(*manager).empty(); }));
}

TEST_F(BlueZ, AnAdapterRemovedDuringARoundEndsItQuietly) {
    startBluez();
    bluez->addBattery(bluez->addDevice("hci0", "00:11:22:33:44:01", "Mouse"), 73);
    const auto manager = makeManager();
    ASSERT_TRUE(becomes(*manager, BluetoothState::poweredOn));
    const auto mouse = manager->connectedPeripherals("180F").at(0);
    bluez->removeAdapter("hci0");
    ASSERT_TRUE(becomes(*manager, BluetoothState::unsupported));
    manager->connect(mouse);
    manager->readValue(mouse, "2A19");
    ASSERT_TRUE(answered(2));
    EXPECT_THAT(delegate.notes, ElementsAre("failed Mouse", "value 2A19 none Mouse"));
}

TEST_F(BlueZ, ADeviceWithoutANameHasNone) {
    startBluez();
    bluez->addBattery(bluez->addDevice("hci0", "00:11:22:33:44:01", "00-11-22-33-44-01"), 73);
    const auto manager = makeManager();
    ASSERT_TRUE(becomes(*manager, BluetoothState::poweredOn));
    EXPECT_EQ(manager->connectedPeripherals("180F").at(0).name, std::nullopt);
}

TEST_F(BlueZ, TwoDevicesOfOneNameAreToldApart) {
    startBluez();
    bluez->addBattery(bluez->addDevice("hci0", "00:11:22:33:44:01", "Buds"), 40);
    bluez->addBattery(bluez->addDevice("hci0", "00:11:22:33:44:02", "Buds"), 60);
    const auto manager = makeManager();
    ASSERT_TRUE(becomes(*manager, BluetoothState::poweredOn));
    const auto buds = manager->connectedPeripherals("180F");
    ASSERT_EQ(buds.size(), 2U);
    EXPECT_NE(buds[0].identifier, buds[1].identifier);
    EXPECT_EQ(manager->connectedPeripherals("180F"), buds) << "and each keeps its identifier";
}

TEST_F(BlueZ, AChargeThatOnlyTheKernelKnowsIsReadThere) {
    startBluez();
    bluez->addDevice("hci0", "00:11:22:33:44:01", "Mouse");
    bluez->addBattery(bluez->addDevice("hci0", "00:11:22:33:44:02", "Keyboard"), 12);
    std::atomic<std::uint8_t> percent = 55;
    readPowers = [&percent] {
        return std::vector<AccessoryPower>{{"00:11:22:33:44:01", percent}, {"00:11:22:33:44:02", 99}};
    };
    const auto manager = makeManager();
    ASSERT_TRUE(becomes(*manager, BluetoothState::poweredOn));
    const auto peripherals = manager->connectedPeripherals("180F");
    ASSERT_EQ(peripherals.size(), 2U);
    percent = 54;
    manager->readValue(peripherals[0], "2A19");
    ASSERT_TRUE(answered(1));
    manager->readValue(peripherals[1], "2A19");
    ASSERT_TRUE(answered(2));
    EXPECT_THAT(delegate.notes, ElementsAre("value 2A19 54 Mouse", "value 2A19 12 Keyboard"));
}

TEST_F(BlueZ, AManagerThatIsGoneIsNotAnswered) {
    startBluez();
    bluez->addBattery(bluez->addDevice("hci0", "00:11:22:33:44:01", "Mouse"), 73);
    auto manager = makeManager();
    ASSERT_TRUE(becomes(*manager, BluetoothState::poweredOn));
    manager->connect(manager->connectedPeripherals("180F").at(0));
    manager.reset();
    makeManager();
    runPostedEvents();
    EXPECT_THAT(delegate.notes, IsEmpty());
}

TEST_F(BlueZ, PairedDevicesAreListedByTheirObjects) {
    startBluez();
    const auto keyboard = bluez->addDevice("hci0", "00:11:22:33:44:02", "Keyboard");
    bluez->setDevice(keyboard, {{"Class", 0x2540U}, {"Connected", false}});
    const auto phone = bluez->addDevice("hci0", "00:11:22:33:44:01", "00-11-22-33-44-01");
    bluez->setDevice(phone, {{"Icon", "phone"}});
    const auto stranger = bluez->addDevice("hci0", "00:11:22:33:44:03", "Stranger");
    bluez->setDevice(stranger, {{"Paired", false}});
    BluezPairedDevices devices(connected());
    EXPECT_EQ(devices.pairedDevices(),
              (std::vector<PairedBluetoothDevice>{{std::nullopt, "00:11:22:33:44:01", true, 2, 0},
                                                  {"Keyboard", "00:11:22:33:44:02", false, 5, 0x10}}));
}

TEST_F(BlueZ, WithoutTheServiceThereIsNoListOfPairedDevices) {
    BluezPairedDevices devices(connected());
    EXPECT_EQ(devices.pairedDevices(), std::nullopt);
    bus.stop();
    EXPECT_EQ(devices.pairedDevices(), std::nullopt);
}

TEST(PeripheralIdentifier, IsAUUIDThatDependsOnThePathAlone) {
    const auto first = peripheralIdentifier("/org/bluez/hci0/dev_00_11_22_33_44_01");
    EXPECT_THAT(first,
                testing::MatchesRegex("[0-9A-F]{8}-[0-9A-F]{4}-5[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}"));
    EXPECT_EQ(first, peripheralIdentifier("/org/bluez/hci0/dev_00_11_22_33_44_01"));
    EXPECT_NE(first, peripheralIdentifier("/org/bluez/hci0/dev_00_11_22_33_44_02"));
}

} // namespace
} // namespace tarvo::desktop
