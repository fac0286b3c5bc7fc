#pragma once

#include <optional>
#include <string>

namespace tarvo::desktop {

/// Why a window system cannot be reached by the environment of this process; absent when it can. To be asked
/// before the application is made, which would end the process.
std::optional<std::string> missingDisplay();

} // namespace tarvo::desktop
