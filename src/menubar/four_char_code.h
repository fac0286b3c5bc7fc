#pragma once

#include <cstdint>
#include <string_view>

namespace tarvo {

/// The bytes of the text in one number, the first in the most significant place: 'A' is 0x41. Of a longer
/// text the last four bytes stay; 0 for an empty one.
constexpr std::uint32_t fourCharCode(std::string_view text) {
    std::uint32_t code = 0;
    for (const char byte : text)
        code = (code << 8U) + static_cast<unsigned char>(byte);
    return code;
}

} // namespace tarvo
