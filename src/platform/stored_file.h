#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo {

/// A stretch of a file's content, bytes.
struct ContentRange {
    std::size_t offset = 0;
    std::size_t length = 0;
};

/// One file of the program's own that is only ever replaced as a whole: whoever reads it, at whatever moment
/// the program or the machine stops, finds the old content or the new one. Failures are answers, never
/// exceptions. One thread at a time.
class StoredFile {
public:
    virtual ~StoredFile() = default;

    /// The whole content. Absent when the file is missing or unreadable, is no regular file, or holds more
    /// than `limit` bytes.
    virtual std::optional<std::string> read(std::size_t limit) = 0;

    /// Puts this content in the place of the present one. False when that failed; the old content then
    /// stands.
    virtual bool replace(std::string_view content) = 0;

    /// The same for the content `head` + the range `kept` of what this object wrote last + `tail`: the kept
    /// bytes need not be held in memory. False also when somebody else has changed the file since.
    virtual bool replaceKeeping(std::string_view head, ContentRange kept, std::string_view tail) = 0;
};

} // namespace tarvo
