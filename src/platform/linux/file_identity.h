#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tarvo::linux_platform {

/// What tells one version of a file from another without reading it.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    std::int64_t modifiedSeconds = 0;
    std::int64_t modifiedNanoseconds = 0;
    bool operator==(const FileIdentity&) const = default;
};

/// Absent when there is no such file. Links are followed.
std::optional<FileIdentity> fileIdentity(const std::string& path);

} // namespace tarvo::linux_platform
