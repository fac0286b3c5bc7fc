#pragma once

#include <filesystem>
#include <string>

namespace tarvo {

/// Where tarvo-fetch stands: beside the program, or in the libexec folder of the same installation. Empty
/// when it is in neither place; then nothing is fetched.
std::string httpsHelperPath(const std::filesystem::path& programFolder);

} // namespace tarvo
