#include "platform/linux/newest_snapshot.h"

#include "platform/linux/folder.h"
#include "platform/local_time.h"

#include <algorithm>

namespace tarvo::linux_platform {

std::optional<WallTime> newestSnapshot(const std::string& folder, std::string_view pattern,
                                       std::size_t ignoredTail) {
    std::optional<WallTime> newest;
    for (const auto& name : folderEntries(folder)) {
        if (name.size() != pattern.size() + ignoredTail) continue;
        newest = std::max(newest, parseLocalTime(std::string_view(name).substr(0, pattern.size()), pattern));
    }
    return newest;
}

} // namespace tarvo::linux_platform
