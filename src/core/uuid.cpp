#include "core/uuid.h"

#include <cstring>
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

std::mt19937_64 seededGenerator() {
    std::random_device device;
    std::seed_seq seeds{device(), device(), device(), device(), device(), device(), device(), device()};
    return std::mt19937_64(seeds);
}

} // namespace

UUID UUID::random() {
    // One generator a thread: a list of connections takes thousands at once, and asking the kernel for each
    // would cost more than the list.
    thread_local auto generator = seededGenerator();
    const std::array<std::uint64_t, 2> words{generator(), generator()};
    UUID result;
    static_assert(sizeof(words) == sizeof(result.bytes));
    std::memcpy(result.bytes.data(), words.data(), sizeof(words));
    result.bytes[6] = static_cast<std::uint8_t>((result.bytes[6] & 0x0FU) | 0x40U);
    result.bytes[8] = static_cast<std::uint8_t>((result.bytes[8] & 0x3FU) | 0x80U);
    return result;
}

std::optional<UUID> UUID::parse(std::string_view text) {
    if (text.size() != textLength) return std::nullopt;
    UUID uuid;
    std::size_t position = 0;
    for (std::size_t i = 0; i < uuid.bytes.size(); ++i) {
        if (startsGroup(i) && text[position++] != '-') return std::nullopt;
        const auto high = hexValue(text[position++]);
        const auto low = hexValue(text[position++]);
        if (!high || !low) return std::nullopt;
        uuid.bytes[i] = static_cast<std::uint8_t>(*high << 4 | *low);
    }
    return uuid;
}

std::string UUID::text() const {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    text.reserve(textLength);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (startsGroup(i)) text += '-';
        text += digits[bytes[i] >> 4];
        text += digits[bytes[i] & 0x0F];
    }
    return text;
}

} // namespace tarvo
