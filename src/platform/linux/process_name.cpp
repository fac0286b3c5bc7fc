#include "platform/linux/process_name.h"

#include "platform/linux/read_file.h"

#include <fmt/format.h>

namespace tarvo::linux_platform {

std::string processName(const Root& root, std::uint32_t pid) {
    return readAttribute(root.path(fmt::format("/proc/{}/comm", pid))).value_or(std::string());
}

} // namespace tarvo::linux_platform
