// Small files and names of the kernel and of udev; the first byte says which one.

#include "platform/linux/diskstats.h"
#include "platform/linux/load_average.h"
#include "platform/linux/volume_facts.h"
#include "platform/linux/zram.h"
#include "platform/utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace tarvo::linux_platform;

namespace {

void readDisks(std::string_view text) {
    for (const auto& disk : parseDiskstats(text)) {
        if (disk.name.empty() || disk.bytesRead % 512 != 0 || disk.bytesWritten % 512 != 0) std::abort();
    }
}

void readLoads(std::string_view text) {
    const auto loads = parseLoadAverages(text);
    if (!loads) return;
    for (const double load : *loads) {
        if (!(load >= 0)) std::abort();
    }
}

void trim(std::string_view text) {
    if (!tarvo::isUTF8(text)) return;
    const auto trimmed = tarvo::trimmedWhiteSpace(text);
    if (!tarvo::isUTF8(trimmed) || tarvo::trimmedWhiteSpace(trimmed) != trimmed) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    switch (data[0] % 5) {
    case 0:
        readDisks(text);
        break;
    case 1:
        readLoads(text);
        break;
    case 2:
        parseZramUsage(text);
        break;
    case 3:
        if (decodeUdevText(text).size() > text.size()) std::abort();
        break;
    default:
        trim(text);
        break;
    }
    return 0;
}
