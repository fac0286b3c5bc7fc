#include "platform/posix/error_file.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

namespace tarvo {
namespace {

constexpr off_t mostKept = 1 << 20;
constexpr int firstUsable = 3; ///< above the standard descriptors

FileDescriptor makeFile() {
#if defined(__linux__)
    const FileDescriptor made(::memfd_create("tarvo-standard-error", MFD_CLOEXEC | MFD_ALLOW_SEALING));
#else
    char path[] = "/tmp/tarvo-standard-error-XXXXXX";
    const FileDescriptor made(::mkstemp(path));
    if (made) ::unlink(path);
#endif
    if (!made) return {};
    FileDescriptor file(::fcntl(made.get(), F_DUPFD_CLOEXEC, firstUsable));
    // Everybody who writes does so at the end, also after the file was made shorter.
    if (file) ::fcntl(file.get(), F_SETFL, O_RDWR | O_APPEND);
    return file;
}

off_t sizeOf(const FileDescriptor& file) {
    struct stat status {};
    return ::fstat(file.get(), &status) == 0 ? status.st_size : 0;
}

void closeToWriters(const FileDescriptor& file) {
#if defined(__linux__)
    ::fcntl(file.get(), F_ADD_SEALS, F_SEAL_GROW);
#else
    static_cast<void>(file);
#endif
}

} // namespace

ErrorFile::ErrorFile() : file_(makeFile()) {}

void ErrorFile::shrink(std::size_t tailLength) {
    if (sizeOf(file_) <= mostKept) return;
    earlier_ = tail(tailLength);
    if (::ftruncate(file_.get(), 0) != 0) earlier_.clear();
}

std::string ErrorFile::finish(std::size_t tailLength) {
    closeToWriters(file_);
    std::string text = earlier_ + tail(tailLength);
    if (text.size() > tailLength) text.erase(0, text.size() - tailLength);
    return text;
}

std::string ErrorFile::tail(std::size_t length) const {
    const off_t size = sizeOf(file_);
    const off_t from = std::max<off_t>(0, size - static_cast<off_t>(length));
    std::string text(static_cast<std::size_t>(size - from), '\0');
    const auto got = ::pread(file_.get(), text.data(), text.size(), from);
    text.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    return text;
}

} // namespace tarvo
