#pragma once

#include "platform/io_registry.h"

namespace tarvo::macos_platform {

/// The I/O Registry of the machine (IOKit). Any thread.
class MacIORegistry : public IORegistry {
public:
    /// A service whose properties cannot be read is left out; an iterator that ends early ends the list.
    std::optional<std::vector<PropertyDictionary>> services(std::string_view className) override;
    std::optional<PropertyDictionary> properties(std::string_view className,
                                                 std::span<const std::string_view> names) override;
};

} // namespace tarvo::macos_platform
