#include "platform/linux/kept_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace tarvo::linux_platform {

namespace {

constexpr std::size_t firstRoom = 256;

// The kernel hands out a file of many records in pieces: as many whole records as fit a page of at least 4096
// bytes. A read that stopped so far from the page's end stopped because no record is left.
constexpr std::size_t surelyOnePiece = 3072;

} // namespace

KeptFile::KeptFile(std::string path, std::size_t limit) : path_(std::move(path)), limit_(limit) {}

std::optional<std::string_view> KeptFile::read() {
    if (!isOpen()) return std::nullopt;
    std::size_t length = 0;
    for (;;) {
        if (length == buffer_.size()) buffer_.resize(std::max(firstRoom, buffer_.size() * 2));
        const auto room = buffer_.size() - length;
        const auto count = readAt(length, room);
        if (!count) return fail();
        length += *count;
        if (length > limit_) return fail();
        if (*count == 0 || (*count < room && length < surelyOnePiece)) return text(length);
    }
}

std::optional<std::string_view> KeptFile::readBeginning(std::size_t count) {
    if (!isOpen()) return std::nullopt;
    if (buffer_.size() < count) buffer_.resize(count);
    const auto length = readAt(0, count);
    return length ? text(*length) : fail();
}

bool KeptFile::isOpen() {
    if (!file_) file_ = FileDescriptor(::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    return static_cast<bool>(file_);
}

std::optional<std::size_t> KeptFile::readAt(std::size_t offset, std::size_t count) {
    for (;;) {
        const auto result = ::pread(file_.get(), buffer_.data() + offset, count, static_cast<off_t>(offset));
        if (result >= 0) return static_cast<std::size_t>(result);
        if (errno != EINTR) return std::nullopt;
    }
}

std::optional<std::string_view> KeptFile::text(std::size_t length) {
    if (length == 0) return fail();
    return std::string_view(buffer_.data(), length);
}

std::nullopt_t KeptFile::fail() {
    file_.reset();
    return std::nullopt;
}

} // namespace tarvo::linux_platform
