#include "platform/linux/folder_lock.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>

#include <cerrno>

namespace tarvo::linux_platform {
namespace {

constexpr int attempts = 2000; // a millisecond apart: a write takes a few, on a busy disk many

} // namespace

FolderLock::FolderLock(const std::string& folder)
    : folder_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (!folder_) return;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        held_ = ::flock(folder_.get(), LOCK_EX | LOCK_NB) == 0;
        if (held_ || (errno != EWOULDBLOCK && errno != EINTR)) return;
        ::poll(nullptr, 0, 1);
    }
}

} // namespace tarvo::linux_platform
