#pragma once

#include "platform/posix/file_descriptor.h"

#include <optional>

namespace tarvo {

/// Both ends close on exec and stand above the three standard descriptors.
struct Pipe {
    FileDescriptor readEnd;
    FileDescriptor writeEnd;
};

/// Absent when the process may open no more files.
std::optional<Pipe> makePipe();
/// Makes reads and writes return at once.
void setNonBlocking(const FileDescriptor& descriptor);

} // namespace tarvo
