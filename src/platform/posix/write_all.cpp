#include "platform/posix/write_all.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <sys/uio.h>

namespace tarvo {
namespace {

void skip(std::span<iovec>& pieces, std::size_t written) {
    while (!pieces.empty() && written >= pieces.front().iov_len) {
        written -= pieces.front().iov_len;
        pieces = pieces.subspan(1);
    }
    if (written == 0) return;
    pieces.front().iov_base = static_cast<char*>(pieces.front().iov_base) + written;
    pieces.front().iov_len -= written;
}

} // namespace

bool writeAll(int descriptor, std::span<iovec> pieces) {
    skip(pieces, 0); // those that are empty
    while (!pieces.empty()) {
        const ssize_t written = ::writev(descriptor, pieces.data(), static_cast<int>(pieces.size()));
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        skip(pieces, static_cast<std::size_t>(written));
    }
    return true;
}

} // namespace tarvo
