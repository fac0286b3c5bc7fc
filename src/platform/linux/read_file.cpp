#include "platform/linux/read_file.h"

#include "platform/posix/file_descriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace tarvo::linux_platform {

namespace {

constexpr std::size_t firstRead = 4096;
constexpr std::size_t longestAttribute = 1U << 16U;

ssize_t readSome(int file, char* to, std::size_t room) {
    for (;;) {
        const auto count = ::read(file, to, room);
        if (count >= 0 || errno != EINTR) return count;
    }
}

// Sizes that the kernel states for its files are not their lengths, so the end is where a read gives nothing.
bool readToEnd(int file, std::string& buffer, std::size_t limit) {
    std::size_t length = 0;
    buffer.resize(firstRead);
    for (;;) {
        const auto count = readSome(file, buffer.data() + length, buffer.size() - length);
        if (count < 0) return false;
        if (count == 0) break;
        length += static_cast<std::size_t>(count);
        if (length > limit) return false;
        if (length == buffer.size()) buffer.resize(buffer.size() * 2);
    }
    buffer.resize(length);
    return length > 0;
}

} // namespace

bool readFileAt(int folder, const char* name, std::string& buffer, std::size_t limit) {
    // O_NONBLOCK: opening a pipe must not wait for its writer, and reading one gives nothing or an error at
    // once.
    const FileDescriptor file(::openat(folder, name, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (file && readToEnd(file.get(), buffer, limit)) return true;
    buffer.clear();
    return false;
}

bool readFileInto(const std::string& path, std::string& buffer, std::size_t limit) {
    return readFileAt(AT_FDCWD, path.c_str(), buffer, limit);
}

std::optional<std::string> readFile(const std::string& path, std::size_t limit) {
    std::string text;
    if (!readFileInto(path, text, limit)) return std::nullopt;
    return text;
}

std::optional<std::string> readAttribute(const std::string& path) {
    auto text = readFile(path, longestAttribute);
    if (!text) return std::nullopt;
    if (text->back() == '\n') text->pop_back();
    if (text->empty()) return std::nullopt;
    return text;
}

} // namespace tarvo::linux_platform
