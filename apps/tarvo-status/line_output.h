#pragma once

#include <string_view>

namespace tarvo::status {

/// Writes to a file descriptor that somebody reads, or no longer does.
class LineOutput {
public:
    enum class Result { written, readerGone, failed };

    /// The descriptor stays open as long as the output is used.
    explicit LineOutput(int descriptor) : descriptor_(descriptor) {}

    /// Writes everything, waiting where the reader is slow. SIGPIPE must be ignored.
    Result write(std::string_view text);

private:
    int descriptor_;
};

} // namespace tarvo::status
