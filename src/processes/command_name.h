#pragma once

#include <string_view>

namespace tarvo {

/// What follows the last slash of a path; a text without a slash as it is.
inline std::string_view lastPathComponent(std::string_view path) {
    return path.substr(path.rfind('/') + 1); // npos + 1 is 0
}

} // namespace tarvo
