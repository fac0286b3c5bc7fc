#pragma once

#include "platform/posix/file_descriptor.h"

#include <string>

namespace tarvo::linux_platform {

/// Keeps other instances of the program from writing in a folder while this one does. Waits two seconds at
/// most: where the lock cannot be had, or the file system knows none, work goes on without it.
class FolderLock {
public:
    explicit FolderLock(const std::string& folder);

    bool isHeld() const { return held_; }

private:
    FileDescriptor folder_;
    bool held_ = false;
};

} // namespace tarvo::linux_platform
