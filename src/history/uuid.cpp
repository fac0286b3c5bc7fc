#include "history/uuid.h"

#include <cstddef>
#include <random>

namespace tarvo {
namespace {

constexpr std::size_t textLength = 36;

/// A hyphen stands before these bytes.
constexpr bool startsGroup(std::size_t byte) {
    return byte == 4 || byte == 6 || byte == 8 || byte == 10;
}

std::optional<std::uint8_t> hexValue(char digit) {
    if (digit >= '0' && digit <= '9') return static_cast<std::uint8_t>(digit - '0');
    if (digit >= 'A' && digit <= 'F') return static_cast<std::uint8_t>(digit - 'A' + 10);
    if (digit >= 'a' && digit <= 'f') return static_cast<std::uint8_t>(digit - 'a' + 10);
    return std::nullopt;
}

} // namespace

UUID UUID::random() {
    std::random_device source;
    UUID uuid;
    for (auto& byte : uuid.bytes_)
        byte = static_cast<std::uint8_t>(source());
    uuid.bytes_[6] = static_cast<std::uint8_t>((uuid.bytes_[6] & 0x0F) | 0x40); // version 4
    uuid.bytes_[8] = static_cast<std::uint8_t>((uuid.bytes_[8] & 0x3F) | 0x80); // the variant of RFC 4122
    return uuid;
}

std::optional<UUID> UUID::parse(std::string_view text) {
    if (text.size() != textLength) return std::nullopt;
    UUID uuid;
    std::size_t position = 0;
    for (std::size_t i = 0; i < uuid.bytes_.size(); ++i) {
        if (startsGroup(i) && text[position++] != '-') return std::nullopt;
        const auto high = hexValue(text[position++]);
        const auto low = hexValue(text[position++]);
        if (!high || !low) return std::nullopt;
        uuid.bytes_[i] = static_cast<std::uint8_t>(*high << 4 | *low);
    }
    return uuid;
}

std::string UUID::text() const {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    text.reserve(textLength);
    for (std::size_t i = 0; i < bytes_.size(); ++i) {
        if (startsGroup(i)) text += '-';
        text += digits[bytes_[i] >> 4];
        text += digits[bytes_[i] & 0x0F];
    }
    return text;
}

} // namespace tarvo
