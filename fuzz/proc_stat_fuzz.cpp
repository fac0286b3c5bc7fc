// Two readings of /proc/stat one after the other, with a zero byte between them.

#include "platform/linux/proc_stat.h"
#include "platform/linux/virtual_ticks.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace tarvo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto between = std::min(text.find('\0'), size);
    std::vector<linux_platform::RawCoreTicks> raw;
    std::vector<CoreTicks> cores;
    linux_platform::VirtualTicks ticks;
    for (const auto reading : {text.substr(0, between), text.substr(std::min(between + 1, size))}) {
        linux_platform::parseCoreTicks(reading, raw);
        ticks.advance(raw, cores);
        if (cores.size() != raw.size()) std::abort();
        for (const auto& core : cores) {
            if (core.user < 0 || core.system < 0 || core.idle < 0 || core.nice < 0) std::abort();
        }
    }
    return 0;
}
