#include "platform/posix/atomic_file.h"

#include "platform/posix/file_descriptor.h"
#include "platform/posix/file_mapping.h"
#include "platform/posix/write_all.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <system_error>
#include <unistd.h>

namespace tarvo {
namespace {

/// What a parser may read behind the end of the text without touching foreign memory.
constexpr std::size_t readAhead = 64;

iovec pieceOf(std::string_view text) {
    // writev promises not to write through the pointer.
    return {const_cast<char*>(text.data()), text.size()};
}

void createFolder(const std::filesystem::path& folder) {
    std::error_code ignored;
    std::filesystem::create_directories(folder.parent_path(), ignored);
    ::mkdir(folder.c_str(), 0700);
}

/// False when another process is writing the same file. File systems without locks count as locked.
bool lock(const FileDescriptor& file) {
    return ::flock(file.get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool isAt(const FileDescriptor& file, const char* path) {
    struct stat opened = {};
    struct stat present = {};
    return ::fstat(file.get(), &opened) == 0 && ::lstat(path, &present) == 0 && S_ISREG(opened.st_mode) &&
           opened.st_dev == present.st_dev && opened.st_ino == present.st_ino;
}

/// An empty file to write to, held against a second instance of the program. One that was left over by a
/// killed process is taken again, so that they cannot pile up; one that cannot be opened is removed first.
FileDescriptor openTemporary(const char* path) {
    constexpr int flags = O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    FileDescriptor file(::open(path, flags, 0600));
    if (!file && ::unlink(path) == 0) file = FileDescriptor(::open(path, flags, 0600));
    if (!file || !lock(file) || !isAt(file, path) || ::ftruncate(file.get(), 0) != 0) return {};
    return file;
}

void startWriteBack([[maybe_unused]] const FileDescriptor& file) {
#if defined(__linux__)
    ::sync_file_range(file.get(), 0, 0, SYNC_FILE_RANGE_WRITE);
#endif
}

/// Brings the content on its way to the disk, or all the way.
bool settle(const FileDescriptor& file, AtomicFile::Durability durability) {
    if (durability == AtomicFile::Durability::afterPowerCut) return ::fsync(file.get()) == 0;
    startWriteBack(file);
    return true;
}

std::int64_t modifiedNanoseconds(const struct stat& status) {
#if defined(__APPLE__)
    const timespec& time = status.st_mtimespec;
#else
    const timespec& time = status.st_mtim;
#endif
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

} // namespace

AtomicFile::AtomicFile(std::filesystem::path path, Durability durability)
    : path_(std::move(path)), temporaryPath_(path_), durability_(durability) {
    if (path_.empty()) return;
    temporaryPath_ += ".new";
    createFolder(path_.parent_path());
}

std::optional<std::string> AtomicFile::read(std::size_t limit) {
    // A pipe in the file's place must not make the program wait for a writer.
    const FileDescriptor file(::open(path_.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status = {};
    if (!file || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    if (status.st_size < 0 || static_cast<std::uint64_t>(status.st_size) > limit) return std::nullopt;

    std::string content;
    content.reserve(static_cast<std::size_t>(status.st_size) + readAhead);
    content.resize(static_cast<std::size_t>(status.st_size));
    std::size_t filled = 0;
    while (filled < content.size()) {
        const ssize_t count = ::read(file.get(), content.data() + filled, content.size() - filled);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
    }
    content.resize(filled);
    return content;
}

bool AtomicFile::replace(std::string_view content) {
    iovec pieces[] = {pieceOf(content)};
    return replaceWith(pieces);
}

bool AtomicFile::replaceKeeping(std::string_view head, ContentRange kept, std::string_view tail) {
    const FileDescriptor file(::open(path_.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
    if (!file || !written_ || identify(file.get()) != written_) return false;
    const auto size = static_cast<std::size_t>(written_->size);
    if (kept.offset > size || kept.length > size - kept.offset) return false;

    // The mapping is handed to the kernel and never read here: should the file shrink now, the write fails.
    const FileMapping mapping(file.get(), size);
    if (!mapping) return false;
    iovec pieces[] = {pieceOf(head), pieceOf(mapping.content().substr(kept.offset, kept.length)),
                      pieceOf(tail)};
    return replaceWith(pieces);
}

bool AtomicFile::replaceWith(std::span<iovec> pieces) {
    if (path_.empty()) return false;
    const FileDescriptor file = openTemporary(temporaryPath_.c_str());
    if (!file) return false;
    if (!writeAll(file.get(), pieces)) {
        ::unlink(temporaryPath_.c_str());
        return false;
    }
    if (!settle(file, durability_) || ::rename(temporaryPath_.c_str(), path_.c_str()) != 0) {
        ::unlink(temporaryPath_.c_str());
        return false;
    }
    written_ = identify(file.get());
    return true;
}

std::optional<AtomicFile::Identity> AtomicFile::identify(int descriptor) {
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0) return std::nullopt;
    return Identity{static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino),
                    std::int64_t{status.st_size}, modifiedNanoseconds(status)};
}

} // namespace tarvo
