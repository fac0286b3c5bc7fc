#include "platform/linux/zram.h"

#include "platform/linux/folder.h"
#include "platform/linux/text_cursor.h"

namespace tarvo::linux_platform {

std::optional<std::uint64_t> parseZramUsage(std::string_view text) {
    TextCursor cursor(text);
    if (!cursor.number() || !cursor.number()) return std::nullopt;
    return cursor.number();
}

void ZramDevices::list() {
    files_.clear();
    for (const auto& name : folderEntries(root_.path("/sys/block"))) {
        if (name.starts_with("zram")) files_.emplace_back(root_.path("/sys/block/" + name + "/mm_stat"));
    }
}

std::uint64_t ZramDevices::usedBytes() {
    std::uint64_t total = 0;
    for (auto& file : files_) {
        const auto text = file.read();
        const auto used = text ? parseZramUsage(*text).value_or(0) : 0;
        total = used > UINT64_MAX - total ? UINT64_MAX : total + used;
    }
    return total;
}

} // namespace tarvo::linux_platform
