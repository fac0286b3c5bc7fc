#include "platform/utf8.h"

#include <cstddef>
#include <optional>

namespace tarvo {

namespace {

struct CodePoint {
    char32_t value;
    std::size_t length;
};

struct Form {
    std::size_t length;
    char32_t leadBits;
    char32_t smallest;
};

std::optional<Form> formOf(unsigned char lead) {
    if (lead < 0x80) return Form{1, lead, 0};
    if (lead >= 0xC2 && lead < 0xE0) return Form{2, lead & 0x1FU, 0x80};
    if (lead >= 0xE0 && lead < 0xF0) return Form{3, lead & 0x0FU, 0x800};
    if (lead >= 0xF0 && lead < 0xF5) return Form{4, lead & 0x07U, 0x10000};
    return std::nullopt;
}

std::optional<CodePoint> firstCodePoint(std::string_view bytes) {
    const auto form = formOf(static_cast<unsigned char>(bytes.front()));
    if (!form || bytes.size() < form->length) return std::nullopt;
    char32_t value = form->leadBits;
    for (const char next : bytes.substr(1, form->length - 1)) {
        const auto byte = static_cast<unsigned char>(next);
        if ((byte & 0xC0U) != 0x80U) return std::nullopt;
        value = (value << 6U) | (byte & 0x3FU);
    }
    const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < form->smallest || isSurrogate || value > 0x10FFFF) return std::nullopt;
    return CodePoint{value, form->length};
}

bool isWhiteSpace(char32_t point) {
    return (point >= 0x09 && point <= 0x0D) || point == 0x20 || point == 0x85 || point == 0xA0 ||
           point == 0x1680 || (point >= 0x2000 && point <= 0x200A) || point == 0x2028 || point == 0x2029 ||
           point == 0x202F || point == 0x205F || point == 0x3000;
}

std::size_t lastCodePointStart(std::string_view text) {
    std::size_t start = text.size() - 1;
    while (start > 0 && (static_cast<unsigned char>(text[start]) & 0xC0U) == 0x80U)
        --start;
    return start;
}

bool beginsWithWhiteSpace(std::string_view text) {
    const auto point = firstCodePoint(text);
    return point && isWhiteSpace(point->value);
}

} // namespace

bool isUTF8(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto point = firstCodePoint(bytes);
        if (!point) return false;
        bytes.remove_prefix(point->length);
    }
    return true;
}

std::string_view trimmedWhiteSpace(std::string_view text) {
    while (!text.empty() && beginsWithWhiteSpace(text))
        text.remove_prefix(firstCodePoint(text)->length);
    while (!text.empty()) {
        const auto last = lastCodePointStart(text);
        if (!beginsWithWhiteSpace(text.substr(last))) break;
        text = text.substr(0, last);
    }
    return text;
}

std::string printableLine(std::string_view bytes) {
    std::string line;
    line.reserve(bytes.size());
    while (!bytes.empty()) {
        const auto point = firstCodePoint(bytes);
        const auto length = point ? point->length : 1;
        if (point && point->value >= 0x20 && point->value != 0x7F) {
            line.append(bytes.substr(0, length));
        } else {
            line.push_back('?');
        }
        bytes.remove_prefix(length);
    }
    return line;
}

} // namespace tarvo
