#include "platform/linux/diskstats.h"

#include "platform/linux/text_cursor.h"

#include <fmt/format.h>

#include <optional>

namespace tarvo::linux_platform {

namespace {

constexpr std::uint64_t sectorSize = 512;

std::optional<std::uint64_t> sectorsToBytes(std::optional<std::uint64_t> sectors) {
    if (!sectors || *sectors > UINT64_MAX / sectorSize) return std::nullopt;
    return *sectors * sectorSize;
}

// major minor name reads merged SECTORS ms writes merged SECTORS ...
std::optional<DiskCounters> parseDisk(TextCursor cursor) {
    const auto major = cursor.number();
    const auto minor = cursor.number();
    if (!major || !minor) return std::nullopt;
    const auto name = cursor.field();
    cursor.skipFields(2);
    const auto read = sectorsToBytes(cursor.number());
    cursor.skipFields(3);
    const auto written = sectorsToBytes(cursor.number());
    if (name.empty() || !read || !written) return std::nullopt;
    return DiskCounters{std::string(name), fmt::format("{}:{}", *major, *minor), *read, *written};
}

} // namespace

std::vector<DiskCounters> parseDiskstats(std::string_view text) {
    std::vector<DiskCounters> disks;
    for (TextCursor cursor(text); !cursor.atEnd(); cursor.nextLine()) {
        if (auto disk = parseDisk(cursor)) disks.push_back(std::move(*disk));
    }
    return disks;
}

} // namespace tarvo::linux_platform
