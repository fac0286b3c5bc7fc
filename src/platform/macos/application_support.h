#pragma once

#include <optional>
#include <string>

namespace tarvo::macos_platform {

/// The program's folder under the user's Application Support, without a slash at the end; it need not exist.
/// Absent when the system names no such place.
std::optional<std::string> applicationSupportFolder();

} // namespace tarvo::macos_platform
