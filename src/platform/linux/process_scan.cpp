#include "platform/linux/process_scan.h"

#include <algorithm>

namespace tarvo::linux_platform {

const ScannedProcess* ProcessScan::find(std::int32_t pid) const {
    const auto position = std::lower_bound(
        processes.begin(), processes.end(), pid,
        [](const ScannedProcess& process, std::int32_t wanted) { return process.pid < wanted; });
    return position != processes.end() && position->pid == pid ? &*position : nullptr;
}

} // namespace tarvo::linux_platform
