#include "platform/linux/numbered_entries.h"

#include <unistd.h>

#include <cerrno>

namespace tarvo::linux_platform {

bool NumberedEntries::rewind(int folder) {
    return ::lseek(folder, 0, SEEK_SET) == 0;
}

std::ptrdiff_t NumberedEntries::fill(int folder) {
    if (buffer_.empty()) buffer_.resize(bufferSize);
    for (;;) {
        const auto length = ::getdents64(folder, buffer_.data(), buffer_.size());
        if (length >= 0 || errno != EINTR) return length;
    }
}

} // namespace tarvo::linux_platform
