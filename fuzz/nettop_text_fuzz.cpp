#include "processes/nettop_text.h"

#include "processes/network_processes.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto all = tarvo::parseNetworkStatisticsText(text);
    for (const auto& process : all) {
        if (process.name.find_first_of(",\n") != std::string::npos) std::abort();
    }
    const auto heaviest = tarvo::heaviestNetworkProcesses(all, 5);
    if (heaviest.size() > 5) std::abort();
    for (const auto& process : heaviest) {
        if (process.bytesIn == 0 && process.bytesOut == 0) std::abort();
    }
    return 0;
}
