#pragma once

#include <optional>
#include <string>

namespace tarvo::macos_platform {

/// The language part of the user's locale, "cs" for a Czech one; absent where it has none. Any thread.
std::optional<std::string> systemLanguageCode();

} // namespace tarvo::macos_platform
