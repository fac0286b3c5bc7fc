#pragma once

#include <cstdint>
#include <string>

namespace tarvo {

struct BluetoothAccessoryBattery {
    std::string name; ///< as advertised, "Bluetooth" when there is none
    std::int64_t percent = 0;
    bool operator==(const BluetoothAccessoryBattery&) const = default;
};

} // namespace tarvo
