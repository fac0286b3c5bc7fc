#include "platform/macos/io_bluetooth_devices.h"

#include "platform/macos/foundation_text.h"

#import <IOBluetooth/IOBluetooth.h>

namespace tarvo::macos_platform {

std::optional<std::vector<PairedBluetoothDevice>> IOBluetoothDevices::pairedDevices() {
    @autoreleasepool {
        NSArray* const paired = [IOBluetoothDevice pairedDevices];
        if (paired == nil) return std::nullopt;
        std::vector<PairedBluetoothDevice> result;
        for (id object in paired) {
            if (![object isKindOfClass:[IOBluetoothDevice class]]) return std::nullopt;
            IOBluetoothDevice* const device = object;
            result.push_back({.name = utf8Text(device.name),
                              .address = utf8Text(device.addressString),
                              .isConnected = [device isConnected] != NO,
                              .deviceClassMajor = device.deviceClassMajor,
                              .deviceClassMinor = device.deviceClassMinor});
        }
        return result;
    }
}

} // namespace tarvo::macos_platform
