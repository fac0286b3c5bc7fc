// The table of mounts, then fstab, then utab, with a zero byte between them.

#include "platform/linux/volume_rules.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>

using namespace tarvo::linux_platform;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(data), size);
    std::array<std::string_view, 3> tables;
    for (auto& table : tables) {
        table = text.substr(0, text.find('\0'));
        text.remove_prefix(std::min(table.size() + 1, text.size()));
    }
    MountHints hints;
    addFstabHints(tables[1], hints);
    addUtabHints(tables[2], hints);
    const auto mounts = parseMountInfo(tables[0]);
    if (!rootSpace(mounts).path.starts_with('/')) std::abort();

    std::set<std::string> points;
    for (const auto& volume : userVolumes(mounts, hints)) {
        if (!volume.point.starts_with('/') || !points.insert(volume.point).second) std::abort();
        if (volume.point != "/" && hints.hidden.contains(volume.point)) std::abort();
    }
    return 0;
}
