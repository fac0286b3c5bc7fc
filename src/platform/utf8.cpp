#include "platform/utf8.h"

#include <array>
#include <cstddef>

namespace tarvo {
namespace {

/// One row of RFC 3629's grammar: a range of first bytes, the range of the second, and how many follow the
/// first.
struct Form {
    unsigned char firstFrom, firstTo;
    unsigned char secondFrom, secondTo;
    std::size_t following;
};

constexpr std::array<Form, 9> forms{{
    {0x00, 0x7F, 0x00, 0x00, 0},
    {0xC2, 0xDF, 0x80, 0xBF, 1},
    {0xE0, 0xE0, 0xA0, 0xBF, 2},
    {0xE1, 0xEC, 0x80, 0xBF, 2},
    {0xED, 0xED, 0x80, 0x9F, 2},
    {0xEE, 0xEF, 0x80, 0xBF, 2},
    {0xF0, 0xF0, 0x90, 0xBF, 3},
    {0xF1, 0xF3, 0x80, 0xBF, 3},
    {0xF4, 0xF4, 0x80, 0x8F, 3},
}};

unsigned char byteAt(std::string_view text, std::size_t position) {
    return static_cast<unsigned char>(text[position]);
}

bool isWithin(unsigned char byte, unsigned char from, unsigned char to) {
    return byte >= from && byte <= to;
}

bool fits(const Form& form, std::string_view text) {
    if (!isWithin(byteAt(text, 0), form.firstFrom, form.firstTo) || text.size() <= form.following)
        return false;
    if (form.following > 0 && !isWithin(byteAt(text, 1), form.secondFrom, form.secondTo)) return false;
    for (std::size_t i = 2; i <= form.following; ++i) {
        if (!isWithin(byteAt(text, i), 0x80, 0xBF)) return false;
    }
    return true;
}

/// Bytes of the character that the text begins with; 0 when it begins with none.
std::size_t characterLength(std::string_view text) {
    for (const auto& form : forms) {
        if (fits(form, text)) return form.following + 1;
    }
    return 0;
}

} // namespace

bool isValidUTF8(std::string_view text) {
    while (!text.empty()) {
        const auto length = characterLength(text);
        if (length == 0) return false;
        text.remove_prefix(length);
    }
    return true;
}

} // namespace tarvo
