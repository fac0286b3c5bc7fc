#include "platform/desktop/bluez/bluez_objects.h"

#include "platform/desktop/bluez/bluez_names.h"

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

QVariantMap device(const char* address, const char* alias, bool paired = true, bool connected = true) {
    return {{"Address", address}, {"Alias", alias}, {"Paired", paired}, {"Connected", connected}};
}

class BluezObjectsTest : public testing::Test {
protected:
    void addAdapter(const char* path, bool powered) {
        objects.add(path, {{bluez::adapterInterface, {{"Powered", powered}}}});
    }
    void addDevice(const char* path, const QVariantMap& properties) {
        objects.add(path, {{bluez::deviceInterface, properties}});
    }

    BluezObjects objects;
};

using BluezObjectsHeld = BluezObjectsTest;

TEST_F(BluezObjectsHeld, TheRadioIsOnWhenAnyAdapterIs) {
    EXPECT_EQ(objects.state(), BluetoothState::unsupported);
    addAdapter("/org/bluez/hci0", false);
    EXPECT_EQ(objects.state(), BluetoothState::poweredOff);
    addAdapter("/org/bluez/hci1", true);
    EXPECT_EQ(objects.state(), BluetoothState::poweredOn);
    objects.change("/org/bluez/hci1", bluez::adapterInterface, {{"Powered", false}});
    EXPECT_EQ(objects.state(), BluetoothState::poweredOff);
    objects.remove("/org/bluez/hci0", {bluez::adapterInterface});
    objects.remove("/org/bluez/hci1", {bluez::adapterInterface});
    EXPECT_EQ(objects.state(), BluetoothState::unsupported);
}

TEST_F(BluezObjectsHeld, AnAdapterThatDoesNotSayIsOff) {
    objects.add("/org/bluez/hci0", {{bluez::adapterInterface, {{"Powered", "yes"}}}});
    EXPECT_EQ(objects.state(), BluetoothState::poweredOff);
}

TEST_F(BluezObjectsHeld, ADeviceIsNamedUnlessItIsCalledByItsAddress) {
    addDevice("/d1", device("00:11:22:33:44:55", "Mouse"));
    addDevice("/d2", device("00:11:22:33:44:55", "00-11-22-33-44-55"));
    addDevice("/d3", device("00:11:22:33:44:55", ""));
    EXPECT_EQ(objects.device("/d1")->name(), "Mouse");
    EXPECT_EQ(objects.device("/d2")->name(), std::nullopt);
    EXPECT_EQ(objects.device("/d3")->name(), std::nullopt);
}

TEST_F(BluezObjectsHeld, ChangesChangeOnlyWhatTheyName) {
    addDevice("/d1", device("00:11:22:33:44:55", "Mouse"));
    objects.change("/d1", bluez::deviceInterface, {{"Connected", false}, {"RSSI", 5}});
    EXPECT_FALSE(objects.device("/d1")->isConnected);
    EXPECT_TRUE(objects.device("/d1")->isPaired);
    EXPECT_EQ(objects.device("/d1")->alias, "Mouse");
    objects.change("/d2", bluez::deviceInterface, {{"Connected", true}});
    EXPECT_EQ(objects.device("/d2"), nullptr) << "not known, not made";
}

TEST_F(BluezObjectsHeld, ABatteryComesAndGoesWithItsInterface) {
    objects.add("/d1", {{bluez::batteryInterface, {{"Percentage", QVariant::fromValue<uchar>(73)}}},
                        {bluez::deviceInterface, device("00:11:22:33:44:55", "Mouse")}});
    EXPECT_EQ(objects.device("/d1")->percentage, 73);
    objects.change("/d1", bluez::batteryInterface, {{"Percentage", QVariant::fromValue<uchar>(0)}});
    EXPECT_EQ(objects.device("/d1")->percentage, 0);
    objects.remove("/d1", {bluez::batteryInterface});
    ASSERT_NE(objects.device("/d1"), nullptr);
    EXPECT_EQ(objects.device("/d1")->percentage, std::nullopt);
    objects.remove("/d1", {bluez::deviceInterface});
    EXPECT_EQ(objects.device("/d1"), nullptr);
}

TEST_F(BluezObjectsHeld, ValuesOfAnotherTypeAreIgnored) {
    addDevice("/d1", {{"Address", 5}, {"Paired", "true"}, {"Class", "x"}, {"Appearance", 70000}});
    const auto* const held = objects.device("/d1");
    EXPECT_EQ(held->address, "");
    EXPECT_FALSE(held->isPaired);
    EXPECT_EQ(held->kind.classOfDevice, 0U);
    EXPECT_EQ(held->kind.appearance, 0);
}

TEST_F(BluezObjectsHeld, PairedDevicesAreToldByObjectPathWithTheirClass) {
    auto keyboard = device("00:11:22:33:44:02", "Keyboard", true, false);
    keyboard["Class"] = 0x2540U;
    addDevice("/b", keyboard);
    addDevice("/c", device("00:11:22:33:44:03", "Stranger", false));
    auto nameless = device("", "");
    nameless["Icon"] = "phone";
    addDevice("/a", nameless);
    EXPECT_EQ(pairedDevicesOf(objects),
              (std::vector<PairedBluetoothDevice>{{std::nullopt, std::nullopt, true, 2, 0},
                                                  {"Keyboard", "00:11:22:33:44:02", false, 5, 0x10}}));
}

} // namespace
} // namespace tarvo::desktop
