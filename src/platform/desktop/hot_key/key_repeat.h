#pragma once

#include <cstdint>
#include <optional>

namespace tarvo::desktop {

/// Tells a press from those that the server makes up while a key is held: each of these comes with a release
/// of the same moment before it.
class KeyRepeat {
public:
    /// Times are the server's, in milliseconds.
    void released(std::uint8_t keyCode, std::uint32_t time) { last_ = Release{keyCode, time}; }
    bool isNewPress(std::uint8_t keyCode, std::uint32_t time) const {
        return !last_ || last_->keyCode != keyCode || last_->time != time;
    }

private:
    struct Release {
        std::uint8_t keyCode;
        std::uint32_t time;
    };
    std::optional<Release> last_;
};

} // namespace tarvo::desktop
