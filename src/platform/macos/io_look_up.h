#pragma once

#include <IOKit/IOKitLib.h>

#include <optional>
#include <string_view>

namespace tarvo::macos_platform {

/// The first service of the class, which its receiver has to release; 0 when there is none.
io_service_t firstService(std::string_view className);

/// An iterator over the services of the class, which its receiver has to release. Absent when the look-up
/// fails.
std::optional<io_iterator_t> allServices(std::string_view className);

} // namespace tarvo::macos_platform
