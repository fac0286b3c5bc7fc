#pragma once

#include "platform/posix/file_descriptor.h"

#include <cstddef>
#include <string>

namespace tarvo {

/// A nameless file in memory for the standard error of a program that may outlive our interest in it: unlike
/// a pipe it needs nobody who reads, so that the program is never stopped by a reader that has gone.
class ErrorFile {
public:
    ErrorFile();

    explicit operator bool() const { return static_cast<bool>(file_); }
    const FileDescriptor& descriptor() const { return file_; }

    /// Keeps the end of what was written and forgets the rest, however much is written.
    void shrink(std::size_t tailLength);
    /// The last bytes that were written. From now on nothing more is kept: writers get an error.
    std::string finish(std::size_t tailLength);

private:
    std::string tail(std::size_t length) const;

    FileDescriptor file_;
    std::string earlier_;
};

} // namespace tarvo
