// Two readings of a descriptor's fdinfo with a zero byte between them, or of gpu_stats when the first byte is
// odd.

#include "platform/linux/drm_fdinfo.h"
#include "platform/linux/drm_usage.h"
#include "platform/linux/gpu_queue_stats.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace tarvo;
using namespace tarvo::linux_platform;

namespace {

void expectPercent(std::optional<double> value) {
    if (value && !(*value >= 0 && *value <= 100)) std::abort();
}

std::vector<DRMClient> clients(std::string_view text) {
    const auto client = parseDRMFdinfo(text);
    return client ? std::vector<DRMClient>{*client} : std::vector<DRMClient>{};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    const auto first = text.substr(0, text.find('\0'));
    const auto second = text.substr(std::min(first.size() + 1, text.size()));
    if (data[0] % 2 != 0) {
        expectPercent(busiestQueue(parseGPUQueues(first), parseGPUQueues(second)));
        return 0;
    }
    DRMUsage usage;
    const SteadyTime start{std::chrono::hours{1}};
    expectPercent(usage.sample(clients(first), start));
    expectPercent(usage.sample(clients(second), start + std::chrono::seconds{2}));
    return 0;
}
