#include "sensors/bluetooth_devices_fetcher.h"

#include "core/uuid.h"

#include <algorithm>
#include <array>

namespace tarvo::BluetoothDevicesFetcher {
namespace {

struct ClassSymbol {
    std::uint32_t majorClass;
    std::uint32_t minorBit; ///< 0: any minor class
    std::string_view symbol;
};

constexpr std::uint32_t keyboardBit = 0x10;
constexpr std::uint32_t pointerBit = 0x20;

/// The first row that fits wins.
constexpr std::array<ClassSymbol, 8> symbols{{
    {1, 0, "desktopcomputer"},
    {2, 0, "iphone"},
    {4, 0, "headphones"},
    {5, keyboardBit, "keyboard.fill"},
    {5, pointerBit, "computermouse.fill"},
    {5, 0, "gamecontroller.fill"},
    {6, 0, "printer.fill"},
    {7, 0, "applewatch"},
}};

BluetoothDeviceInfo describe(const PairedBluetoothDevice& device) {
    const auto nameOrAddress = device.name ? device.name : device.address;
    return {nameOrAddress.value_or("Bluetooth"), device.address ? *device.address : UUID::random().text(),
            device.isConnected, std::string(symbol(device.deviceClassMajor, device.deviceClassMinor))};
}

} // namespace

std::vector<BluetoothDeviceInfo> paired(PairedBluetoothDevices& devices) {
    const auto list = devices.pairedDevices();
    if (!list) return {};
    std::vector<BluetoothDeviceInfo> described;
    described.reserve(list->size());
    for (const auto& device : *list)
        described.push_back(describe(device));
    std::stable_partition(described.begin(), described.end(),
                          [](const auto& device) { return device.isConnected; });
    return described;
}

std::string_view symbol(std::uint32_t majorClass, std::uint32_t minorClass) {
    for (const auto& row : symbols) {
        if (row.majorClass == majorClass && (row.minorBit == 0 || (minorClass & row.minorBit) != 0))
            return row.symbol;
    }
    return "dot.radiowaves.left.and.right";
}

} // namespace tarvo::BluetoothDevicesFetcher
