#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// CPU numbers of a list such as "0-3,8,10-11", as sysfs writes them. Absent when the text is not such a list
/// or names a number past 65535. Format: Documentation/admin-guide/cputopology.rst of the kernel.
std::optional<std::vector<int>> parseCPUList(std::string_view text);

} // namespace tarvo::linux_platform
