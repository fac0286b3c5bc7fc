#include "platform/linux/file_identity.h"

#include <sys/stat.h>

namespace tarvo::linux_platform {

std::optional<FileIdentity> fileIdentity(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return std::nullopt;
    return FileIdentity{status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec,
                        status.st_mtim.tv_nsec};
}

} // namespace tarvo::linux_platform
