#include "platform/posix/pipe.h"

#include <fcntl.h>

namespace tarvo {
namespace {

bool openEnds(int (&ends)[2]) {
#if defined(__APPLE__)
    if (::pipe(ends) != 0) return false;
    ::fcntl(ends[0], F_SETFD, FD_CLOEXEC);
    ::fcntl(ends[1], F_SETFD, FD_CLOEXEC);
    return true;
#else
    return ::pipe2(ends, O_CLOEXEC) == 0;
#endif
}

/// A program that was started with a standard descriptor closed gets its number for the next file it opens;
/// a child would then lose that file when it is given its own standard descriptors.
FileDescriptor aboveStandard(FileDescriptor descriptor) {
    if (descriptor.get() > STDERR_FILENO) return descriptor;
    return FileDescriptor(::fcntl(descriptor.get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

} // namespace

std::optional<Pipe> makePipe() {
    int ends[2];
    if (!openEnds(ends)) return std::nullopt;
    Pipe pipe{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
    pipe.readEnd = aboveStandard(std::move(pipe.readEnd));
    pipe.writeEnd = aboveStandard(std::move(pipe.writeEnd));
    if (!pipe.readEnd || !pipe.writeEnd) return std::nullopt;
    return pipe;
}

void setNonBlocking(const FileDescriptor& descriptor) {
    const int flags = ::fcntl(descriptor.get(), F_GETFL);
    ::fcntl(descriptor.get(), F_SETFL, flags | O_NONBLOCK);
}

} // namespace tarvo
