#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo::linux_platform {

/// One queue of work of a GPU.
struct GPUQueue {
    std::uint64_t timestamp = 0; ///< when it was read, nanoseconds
    std::uint64_t runtime = 0;   ///< busy so far, nanoseconds
    bool operator==(const GPUQueue&) const = default;
};
using GPUQueues = std::map<std::string, GPUQueue, std::less<>>;

/// The rows "queue timestamp jobs runtime" of a gpu_stats file; others, such as its header, are left out.
/// Format: the kernel's sysfs-driver-v3d document.
GPUQueues parseGPUQueues(std::string_view text);

/// Busy share of the busiest queue between two readings, percent 0 to 100; absent when no queue is in both.
std::optional<double> busiestQueue(const GPUQueues& before, const GPUQueues& now);

} // namespace tarvo::linux_platform
