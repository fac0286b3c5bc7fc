#pragma once

#include <cstdlib>
#include <functional>
#include <optional>
#include <string>

namespace tarvo {

/// Looks up an environment variable; absent when it is not set.
using Environment = std::function<std::optional<std::string>(const std::string& name)>;

/// The variables of this process.
inline std::optional<std::string> processEnvironment(const std::string& name) {
    const char* value = std::getenv(name.c_str());
    return value ? std::optional<std::string>(value) : std::nullopt;
}

} // namespace tarvo
