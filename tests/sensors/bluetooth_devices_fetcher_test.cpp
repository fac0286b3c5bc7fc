#include "sensors/bluetooth_devices_fetcher.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

class FixedPairedDevices : public PairedBluetoothDevices {
public:
    std::optional<std::vector<PairedBluetoothDevice>> pairedDevices() override { return list; }
    std::optional<std::vector<PairedBluetoothDevice>> list;
};

struct ClassOfDevice {
    std::uint32_t majorClass;
    std::uint32_t minorClass;
    const char* symbol;
};

class SymbolOf : public testing::TestWithParam<ClassOfDevice> {};

TEST_P(SymbolOf, FollowsTheClassOfDevice) {
    EXPECT_EQ(BluetoothDevicesFetcher::symbol(GetParam().majorClass, GetParam().minorClass),
              GetParam().symbol);
}
INSTANTIATE_TEST_SUITE_P(
    BluetoothDevicesFetcher, SymbolOf,
    testing::Values(ClassOfDevice{0, 0, "dot.radiowaves.left.and.right"},
                    ClassOfDevice{1, 3, "desktopcomputer"}, ClassOfDevice{2, 3, "iphone"},
                    ClassOfDevice{3, 0, "dot.radiowaves.left.and.right"}, ClassOfDevice{4, 1, "headphones"},
                    ClassOfDevice{5, 0x10, "keyboard.fill"}, ClassOfDevice{5, 0x20, "computermouse.fill"},
                    ClassOfDevice{5, 0x30, "keyboard.fill"}, ClassOfDevice{5, 0x02, "gamecontroller.fill"},
                    ClassOfDevice{6, 0x20, "printer.fill"}, ClassOfDevice{7, 1, "applewatch"},
                    ClassOfDevice{8, 0, "dot.radiowaves.left.and.right"},
                    ClassOfDevice{31, 0, "dot.radiowaves.left.and.right"}));

TEST(BluetoothDevicesFetcher, WithoutAListThereAreNoDevices) {
    FixedPairedDevices devices;
    EXPECT_TRUE(BluetoothDevicesFetcher::paired(devices).empty());
}

TEST(BluetoothDevicesFetcher, ConnectedDevicesComeFirstAndOtherwiseTheOrderIsKept) {
    FixedPairedDevices devices;
    devices.list = std::vector<PairedBluetoothDevice>({{"Zebra", "AA:00:00:00:00:01", false, 4, 1},
                                                       {"Yak", "AA:00:00:00:00:02", true, 5, 0x20},
                                                       {"Ant", "AA:00:00:00:00:03", false, 0, 0},
                                                       {"Bee", "AA:00:00:00:00:04", true, 2, 3}});
    using Info = BluetoothDeviceInfo;
    EXPECT_THAT(
        BluetoothDevicesFetcher::paired(devices),
        testing::ElementsAre(Info{"Yak", "AA:00:00:00:00:02", true, "computermouse.fill"},
                             Info{"Bee", "AA:00:00:00:00:04", true, "iphone"},
                             Info{"Zebra", "AA:00:00:00:00:01", false, "headphones"},
                             Info{"Ant", "AA:00:00:00:00:03", false, "dot.radiowaves.left.and.right"}));
}

TEST(BluetoothDevicesFetcher, ANamelessDeviceIsCalledByItsAddress) {
    FixedPairedDevices devices;
    devices.list = std::vector({PairedBluetoothDevice{std::nullopt, "AA:00:00:00:00:01", false, 0, 0},
                                PairedBluetoothDevice{std::nullopt, std::nullopt, false, 0, 0}});
    const auto described = BluetoothDevicesFetcher::paired(devices);
    EXPECT_EQ(described[0].name, "AA:00:00:00:00:01");
    EXPECT_EQ(described[1].name, "Bluetooth");
}

TEST(BluetoothDevicesFetcher, ADeviceWithoutAddressGetsAFreshIdentifierEveryTime) {
    FixedPairedDevices devices;
    devices.list = std::vector({PairedBluetoothDevice{"Pen", std::nullopt, false, 0, 0}});
    const auto first = BluetoothDevicesFetcher::paired(devices)[0].address;
    const auto second = BluetoothDevicesFetcher::paired(devices)[0].address;
    EXPECT_NE(first, second);
    EXPECT_THAT(first,
                testing::MatchesRegex("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}"));
}

} // namespace
} // namespace tarvo
