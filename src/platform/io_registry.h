#pragma once

#include "platform/property_dictionary.h"

#include <optional>
#include <span>
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
    /// Of the first service of the class, at least those of the named properties that it has. Absent when
    /// there is no such service.
    virtual std::optional<PropertyDictionary> properties(std::string_view className,
                                                         std::span<const std::string_view> names) = 0;
};

} // namespace tarvo
