#include "sensors/bluetooth_battery_monitor.h"

#include "support/scripted_bluetooth.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BluetoothBatteryMonitorTest : public testing::Test {
protected:
    void turnOn(std::vector<BluetoothPeripheral> connected) {
        radio.state = BluetoothState::poweredOn;
        radio.connected = std::move(connected);
    }
    /// Makes the manager and lets it report its state, as the first refresh of a view does.
    void startRound() {
        monitor.refresh();
        radio.delegate->didUpdateState();
    }
    void answerValue(const BluetoothPeripheral& peripheral, std::vector<std::uint8_t> value) {
        radio.delegate->didUpdateValue(peripheral, "2A19", std::move(value));
    }

    const BluetoothPeripheral mouse{"id-mouse", "Mouse"};
    const BluetoothPeripheral keyboard{"id-keyboard", "Keyboard"};
    ScriptedCentralManager::Radio radio;
    BluetoothBatteryMonitor monitor{radio.factory()};
};

using BluetoothBatteryMonitorRound = BluetoothBatteryMonitorTest;

TEST_F(BluetoothBatteryMonitorRound, TheManagerIsMadeByTheFirstRefreshOnly) {
    EXPECT_EQ(radio.managersMade, 0);
    turnOn({mouse});
    monitor.refresh();
    EXPECT_EQ(radio.managersMade, 1);
    EXPECT_THAT(radio.calls, IsEmpty()) << "the first refresh waits for the state";
    monitor.refresh();
    EXPECT_EQ(radio.managersMade, 1);
}

TEST_F(BluetoothBatteryMonitorRound, BeginsWhenTheRadioSaysItIsOn) {
    turnOn({mouse, keyboard});
    startRound();
    EXPECT_THAT(radio.calls, ElementsAre("connected 180F", "connect id-mouse", "connect id-keyboard"));
}

TEST_F(BluetoothBatteryMonitorRound, NothingHappensUnlessTheRadioIsOn) {
    monitor.refresh();
    for (const auto state : {BluetoothState::unknown, BluetoothState::resetting, BluetoothState::unsupported,
                             BluetoothState::unauthorized, BluetoothState::poweredOff}) {
        radio.state = state;
        radio.delegate->didUpdateState();
        monitor.refresh();
    }
    EXPECT_THAT(radio.calls, IsEmpty());
}

TEST_F(BluetoothBatteryMonitorRound, WalksFromConnectionToValueAndLetsGo) {
    turnOn({mouse});
    startRound();
    radio.calls.clear();
    radio.delegate->didConnect(mouse);
    radio.delegate->didDiscoverServices(mouse, {"180A", "180F"});
    radio.delegate->didDiscoverCharacteristics(mouse, "180F", {"2A1A", "2A19"});
    answerValue(mouse, {73});
    EXPECT_THAT(radio.calls, ElementsAre("services id-mouse 180F", "characteristics id-mouse 180F 2A19",
                                         "read id-mouse 2A19", "cancel id-mouse"));
    EXPECT_THAT(monitor.devices(), ElementsAre(BluetoothAccessoryBattery{"Mouse", 73}));
}

TEST_F(BluetoothBatteryMonitorRound, APeripheralWithoutServiceOrCharacteristicContributesNothing) {
    turnOn({mouse});
    startRound();
    radio.calls.clear();
    radio.delegate->didDiscoverServices(mouse, {"180A"});
    radio.delegate->didDiscoverCharacteristics(mouse, "180F", {"2A1A"});
    radio.delegate->didFailToConnect(mouse);
    EXPECT_THAT(radio.calls, IsEmpty());
    EXPECT_THAT(monitor.devices(), IsEmpty());
}

TEST_F(BluetoothBatteryMonitorRound, GrowsWithEachAnswerSortedByName) {
    turnOn({mouse, keyboard});
    startRound();
    answerValue(mouse, {73});
    EXPECT_THAT(monitor.devices(), ElementsAre(BluetoothAccessoryBattery{"Mouse", 73}));
    answerValue(keyboard, {12});
    EXPECT_THAT(monitor.devices(), ElementsAre(BluetoothAccessoryBattery{"Keyboard", 12},
                                               BluetoothAccessoryBattery{"Mouse", 73}));
}

TEST_F(BluetoothBatteryMonitorRound, ANamelessPeripheralIsCalledBluetooth) {
    const BluetoothPeripheral nameless{"id", std::nullopt};
    turnOn({nameless});
    startRound();
    answerValue(nameless, {255});
    EXPECT_THAT(monitor.devices(), ElementsAre(BluetoothAccessoryBattery{"Bluetooth", 255}));
}

TEST_F(BluetoothBatteryMonitorRound, AnEmptyOrFailedValueChangesNothingButLetsGo) {
    turnOn({mouse});
    startRound();
    answerValue(mouse, {50});
    radio.calls.clear();
    answerValue(mouse, {});
    radio.delegate->didUpdateValue(mouse, "2A19", std::nullopt);
    radio.delegate->didUpdateValue(mouse, "2A1A", std::vector<std::uint8_t>{99});
    EXPECT_THAT(monitor.devices(), ElementsAre(BluetoothAccessoryBattery{"Mouse", 50}));
    EXPECT_THAT(radio.calls, ElementsAre("cancel id-mouse", "cancel id-mouse", "cancel id-mouse"));
}

TEST_F(BluetoothBatteryMonitorRound, TwoAccessoriesOfOneNameAreBothListed) {
    const BluetoothPeripheral left{"id-1", "Buds"};
    const BluetoothPeripheral right{"id-2", "Buds"};
    turnOn({left, right});
    startRound();
    answerValue(right, {40});
    answerValue(left, {60});
    answerValue(right, {39});
    EXPECT_THAT(monitor.devices(),
                ElementsAre(BluetoothAccessoryBattery{"Buds", 60}, BluetoothAccessoryBattery{"Buds", 39}));
}

TEST_F(BluetoothBatteryMonitorRound, ANewRoundForgetsTheOldReadingsWithTheFirstAnswer) {
    turnOn({mouse, keyboard});
    startRound();
    answerValue(mouse, {73});
    answerValue(keyboard, {12});
    monitor.refresh();
    EXPECT_EQ(monitor.devices().size(), 2U) << "a round that is not answered leaves what was shown";
    answerValue(keyboard, {11});
    EXPECT_THAT(monitor.devices(), ElementsAre(BluetoothAccessoryBattery{"Keyboard", 11}));
}

TEST_F(BluetoothBatteryMonitorRound, WithNothingConnectedTheListEmpties) {
    turnOn({mouse});
    startRound();
    answerValue(mouse, {73});
    radio.connected.clear();
    monitor.refresh();
    EXPECT_THAT(monitor.devices(), IsEmpty());
}

TEST_F(BluetoothBatteryMonitorRound, ARadioThatGoesOffLeavesTheList) {
    turnOn({mouse});
    startRound();
    answerValue(mouse, {73});
    radio.state = BluetoothState::poweredOff;
    radio.delegate->didUpdateState();
    monitor.refresh();
    EXPECT_THAT(monitor.devices(), ElementsAre(BluetoothAccessoryBattery{"Mouse", 73}));
}

TEST_F(BluetoothBatteryMonitorRound, ObserversHearOfEveryChange) {
    int announced = 0;
    const auto subscription = monitor.publishedDevices().observeWillChange([&announced] { ++announced; });
    turnOn({mouse});
    startRound();
    answerValue(mouse, {73});
    answerValue(mouse, {72});
    radio.connected.clear();
    monitor.refresh();
    EXPECT_EQ(announced, 3);
}

} // namespace
} // namespace tarvo
