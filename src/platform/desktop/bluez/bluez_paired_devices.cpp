#include "platform/desktop/bluez/bluez_paired_devices.h"

#include "platform/desktop/bluez/bluez_names.h"
#include "platform/desktop/bluez/bluez_objects.h"

namespace tarvo::desktop {

std::optional<std::vector<PairedBluetoothDevice>> BluezPairedDevices::pairedDevices() {
    const auto bus = connect_();
    const auto ask = [&bus](const QDBusMessage& call) {
        return bus.call(call, QDBus::Block, bluez::timeoutMilliseconds);
    };
    if (!bus.isConnected() || !saysYes(ask(nameHasOwnerCall(bluez::service)))) return std::nullopt;
    const auto objects = parseBluezObjects(ask(managedObjectsCall(bluez::service, bluez::root)));
    return objects ? std::optional(pairedDevicesOf(*objects)) : std::nullopt;
}

} // namespace tarvo::desktop
