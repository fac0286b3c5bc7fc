#pragma once

#include "platform/linux/parse_number.h"

#include <dirent.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// An entry of a folder whose name is a decimal number: a process of /proc, a descriptor of /proc/PID/fd.
struct NumberedEntry {
    std::int32_t number = 0;
    std::string_view name; ///< ends with a null byte
};

/// Walks over the numbered entries of an open folder, from its beginning, by way of one buffer that is kept.
/// For one thread.
class NumberedEntries {
public:
    /// Calls `visit` with each entry in the folder's order. False when the folder cannot be read.
    template <typename Visit>
    bool forEach(int folder, Visit&& visit) {
        if (!rewind(folder)) return false;
        for (;;) {
            const auto length = fill(folder);
            if (length <= 0) return length == 0;
            visitRecords(static_cast<std::size_t>(length), visit);
        }
    }

private:
    static constexpr std::size_t bufferSize = 32768;

    static bool rewind(int folder);
    /// Fetches the next records; 0 at the end, negative on failure.
    std::ptrdiff_t fill(int folder);

    template <typename Visit>
    void visitRecords(std::size_t length, Visit& visit) {
        for (std::size_t at = 0; at < length;) {
            const char* const record = buffer_.data() + at;
            decltype(dirent64::d_reclen) recordLength = 0;
            std::memcpy(&recordLength, record + offsetof(dirent64, d_reclen), sizeof(recordLength));
            const std::string_view name(record + offsetof(dirent64, d_name));
            if (const auto number = numberOf(name); number >= 0) visit(NumberedEntry{number, name});
            at += recordLength;
        }
    }

    /// -1 where the name is no number.
    static std::int32_t numberOf(std::string_view name) {
        if (name[0] < '0' || name[0] > '9') return -1;
        return parseNumber<std::int32_t>(name).value_or(-1);
    }

    std::vector<char> buffer_;
};

} // namespace tarvo::linux_platform
