#include "bluetooth.h"

#include <utility>

namespace tarvo {

Bluetooth::Bluetooth(BluetoothSources sources)
    : pairedDevices_(std::move(sources.pairedDevices)), monitor_(std::move(sources.centralManagers)),
      sharedMonitor_(monitor_) {}

Bluetooth::PairedLister Bluetooth::pairedDevices() const {
    return [devices = pairedDevices_] { return BluetoothDevicesFetcher::paired(*devices); };
}

} // namespace tarvo
