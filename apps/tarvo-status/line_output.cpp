#include "line_output.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>

namespace tarvo::status {

LineOutput::Result LineOutput::write(std::string_view text) {
    while (!text.empty()) {
        const auto count = ::write(descriptor_, text.data(), text.size());
        if (count >= 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno == EAGAIN || errno == EWOULDBLOCK) {
            pollfd waiting{descriptor_, POLLOUT, 0};
            ::poll(&waiting, 1, -1);
        } else if (errno != EINTR) {
            return errno == EPIPE ? Result::readerGone : Result::failed;
        }
    }
    return Result::written;
}

} // namespace tarvo::status
