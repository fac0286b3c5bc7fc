#pragma once

#include "platform/linux/parse_number.h"

#include <cstddef>
#include <optional>
#include <string>

namespace tarvo::linux_platform {

/// More than any file of the kernel that is read whole holds on today's machines.
inline constexpr std::size_t defaultReadLimit = 1U << 20U;

/// Whole content of a small file of the kernel. Absent when it is missing, unreadable, empty or longer than
/// the limit. Never waits: a pipe or a terminal in its place counts as missing.
std::optional<std::string> readFile(const std::string& path, std::size_t limit = defaultReadLimit);

/// The same into a buffer that is used again and again; false, and the buffer empty, where readFile is
/// absent.
bool readFileInto(const std::string& path, std::string& buffer, std::size_t limit = defaultReadLimit);

/// The same for a name relative to an open folder.
bool readFileAt(int folder, const char* name, std::string& buffer, std::size_t limit = defaultReadLimit);

/// Content of a one-line attribute without the line feed at its end; absent as readFile, and when nothing is
/// left.
std::optional<std::string> readAttribute(const std::string& path);

/// Number in a one-line attribute that holds nothing else.
template <typename Number>
std::optional<Number> readNumber(const std::string& path) {
    const auto text = readAttribute(path);
    return text ? parseNumber<Number>(*text) : std::nullopt;
}

} // namespace tarvo::linux_platform
