#pragma once

#include "platform/linux/read_file.h"
#include "platform/posix/file_descriptor.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// A file of the kernel that is read again and again: it stays open and is read from offset 0 into one
/// buffer, mostly by a single call of the kernel. After a failure the next read opens it anew. For one
/// thread.
class KeptFile {
public:
    explicit KeptFile(std::string path, std::size_t limit = defaultReadLimit);

    /// The whole content, valid until the next read. Absent when the file is missing, unreadable, empty or
    /// longer than the limit.
    std::optional<std::string_view> read();

    /// The first `count` bytes, fewer when the file is shorter, by one call of the kernel. For a file of one
    /// record, such as /proc/stat, whose end is not needed. Absent as read().
    std::optional<std::string_view> readBeginning(std::size_t count);

    const std::string& path() const { return path_; }

private:
    bool isOpen();
    std::optional<std::size_t> readAt(std::size_t offset, std::size_t count);
    std::optional<std::string_view> text(std::size_t length);
    std::nullopt_t fail();

    std::string path_;
    std::size_t limit_;
    FileDescriptor file_;
    std::vector<char> buffer_;
};

} // namespace tarvo::linux_platform
