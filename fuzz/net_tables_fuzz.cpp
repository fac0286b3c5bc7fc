// /proc/net/dev, or /proc/net/route when the first byte is odd.

#include "platform/linux/net_route.h"
#include "platform/linux/proc_net_dev.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace tarvo::linux_platform;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    if (data[0] % 2 != 0) {
        for (const auto& route : parseDefaultRoutes(text)) {
            if (route.interfaceName.empty()) std::abort();
        }
        return 0;
    }
    std::vector<InterfaceCounters> interfaces;
    parseNetDev(text, interfaces);
    for (const auto& interface : interfaces) {
        if (interface.name.empty() || interface.name.find('/') != std::string_view::npos) std::abort();
        if (interface.name.data() < text.data()) std::abort();
    }
    return 0;
}
