#pragma once

#include "platform/property_dictionary.h"

#include <optional>
#include <string_view>
#include <vector>

namespace tarvo {

/// Property dictionaries of the machine's services by class name: "IOAccelerator" (GPUs),
/// "IOBlockStorageDriver" (disks), "AppleSmartBattery". Which entry means what is the readers' business.
class IORegistry {
public:
    virtual ~IORegistry() = default;
    /// In the registry's order. Absent when the enumeration fails; empty when there is no such service.
    virtual std::optional<std::vector<PropertyDictionary>> services(std::string_view className) = 0;
};

} // namespace tarvo
