#include "menubar/upper_case.h"

namespace tarvo {
namespace {

// Two-byte sequences only: U+0080 to U+07FF.
constexpr bool isTwoByteLead(unsigned char byte) {
    return byte >= 0xC2 && byte <= 0xDF;
}
constexpr bool isContinuation(unsigned char byte) {
    return (byte & 0xC0) == 0x80;
}

constexpr unsigned upperCased(unsigned code) {
    constexpr unsigned divisionSign = 0xF7;
    if (code >= 0xE0 && code <= 0xFE) return code == divisionSign ? code : code - 0x20;
    if (code == 0xFF) return 0x178;
    // In Latin Extended-A a capital stands right before its small letter: on even places, odd ones in two
    // stretches.
    const bool capitalsAreEven = (code >= 0x100 && code <= 0x12F) || (code >= 0x132 && code <= 0x137) ||
                                 (code >= 0x14A && code <= 0x177);
    const bool capitalsAreOdd = (code >= 0x139 && code <= 0x148) || (code >= 0x179 && code <= 0x17E);
    if (capitalsAreEven && code % 2 == 1) return code - 1;
    if (capitalsAreOdd && code % 2 == 0) return code - 1;
    return code;
}

} // namespace

std::string upperCased(std::string_view text) {
    std::string result(text);
    for (std::size_t i = 0; i < result.size(); ++i) {
        const auto byte = static_cast<unsigned char>(result[i]);
        if (byte >= 'a' && byte <= 'z') {
            result[i] = static_cast<char>(byte - 'a' + 'A');
        } else if (isTwoByteLead(byte) && i + 1 < result.size() &&
                   isContinuation(static_cast<unsigned char>(result[i + 1]))) {
            const unsigned code =
                upperCased((byte & 0x1Fu) << 6 | (static_cast<unsigned char>(result[i + 1]) & 0x3Fu));
            result[i] = static_cast<char>(0xC0 | code >> 6);
            result[++i] = static_cast<char>(0x80 | (code & 0x3F));
        }
    }
    return result;
}

} // namespace tarvo
