#pragma once

#include <string>

namespace tarvo::macos_platform {

/// Has the system open an address with whatever it is meant for: a page of the settings, a web page. Nothing
/// happens when it is no address. Main thread only.
void openAddress(const std::string& address);

} // namespace tarvo::macos_platform
