#pragma once

#include "platform/linux/process_scan.h"

#include <cstdint>
#include <vector>

namespace tarvo::linux_platform {

/// Replaces the list by the clock ticks that each process of the later scan used since the earlier one. A
/// process that has started since counts with all its ticks, a counter that went back with none, and so does
/// a process that the earlier scan missed although it ran by then.
void measureGrowth(const ProcessScan& earlier, const ProcessScan& later, std::vector<std::uint64_t>& growth);

} // namespace tarvo::linux_platform
