#pragma once

#include "platform/stored_file.h"

#include <optional>
#include <string>

namespace tarvo {

/// A file that lives as long as the test and counts what is done with it.
class MemoryFile : public StoredFile {
public:
    MemoryFile() = default;
    explicit MemoryFile(std::string initial) : content(std::move(initial)) {}

    std::optional<std::string> read(std::size_t limit) override {
        return content && content->size() <= limit ? content : std::nullopt;
    }
    bool replace(std::string_view replacement) override {
        ++wholeWrites;
        return put(std::string(replacement));
    }
    bool replaceKeeping(std::string_view head, ContentRange kept, std::string_view tail) override {
        if (!written || content != written) return false;
        ++keepingWrites;
        bytesHandedOver = head.size() + tail.size();
        return put(std::string(head) + written->substr(kept.offset, kept.length) + std::string(tail));
    }

    std::optional<std::string> content;
    bool writable = true;
    int wholeWrites = 0;
    int keepingWrites = 0;
    std::size_t bytesHandedOver = 0; ///< by the last write that kept a range

private:
    bool put(std::string replacement) {
        if (!writable) return false;
        content = written = std::move(replacement);
        return true;
    }

    std::optional<std::string> written;
};

} // namespace tarvo
