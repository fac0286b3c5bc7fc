#include "platform/linux/busctl_values.h"

#include "platform/linux/parse_number.h"

#include <array>
#include <charconv>

namespace tarvo::linux_platform {

namespace {

struct Escape {
    char letter;
    char means;
};
constexpr std::array<Escape, 10> escapes{{{'a', '\a'},
                                          {'b', '\b'},
                                          {'f', '\f'},
                                          {'n', '\n'},
                                          {'r', '\r'},
                                          {'t', '\t'},
                                          {'v', '\v'},
                                          {'\\', '\\'},
                                          {'"', '"'},
                                          {'\'', '\''}}};

std::optional<char> byteOf(std::string_view digits, std::size_t count, int base) {
    if (digits.size() < count) return std::nullopt;
    unsigned char value = 0;
    const auto* const end = digits.data() + count;
    const auto [stop, failure] = std::from_chars(digits.data(), end, value, base);
    return failure == std::errc() && stop == end ? std::optional(static_cast<char>(value)) : std::nullopt;
}

} // namespace

bool BusctlValues::atEnd() {
    skipBlanks();
    return text_.empty();
}

bool BusctlValues::signature(std::string_view expected) {
    const auto before = text_;
    if (word() == expected) return true;
    text_ = before;
    return false;
}

std::optional<std::int64_t> BusctlValues::integer() {
    const auto digits = word();
    return digits ? parseNumber<std::int64_t>(*digits) : std::nullopt;
}

std::optional<std::string> BusctlValues::string() {
    skipBlanks();
    if (!text_.starts_with('"')) return std::nullopt;
    text_.remove_prefix(1);
    std::string value;
    while (!text_.empty() && text_.front() != '"') {
        const auto character = escaped();
        if (!character) return std::nullopt;
        value += *character;
    }
    if (text_.empty()) return std::nullopt;
    text_.remove_prefix(1);
    return value;
}

bool BusctlValues::skip(int values) {
    for (; values > 0; --values) {
        skipBlanks();
        const bool passed = text_.starts_with('"') ? string().has_value() : word().has_value();
        if (!passed) return false;
    }
    return true;
}

void BusctlValues::skipBlanks() {
    const auto first = text_.find_first_not_of(" \n");
    text_.remove_prefix(first == std::string_view::npos ? text_.size() : first);
}

std::optional<std::string_view> BusctlValues::word() {
    skipBlanks();
    if (text_.empty()) return std::nullopt;
    const auto length = std::min(text_.find_first_of(" \n"), text_.size());
    const auto found = text_.substr(0, length);
    text_.remove_prefix(length);
    return found;
}

/// One character of a text, with its escape taken away; absent for an escape that is none.
std::optional<char> BusctlValues::escaped() {
    const auto take = [this](std::size_t count) { text_.remove_prefix(count); };
    const char first = text_.front();
    take(1);
    if (first != '\\') return first;
    if (text_.empty()) return std::nullopt;
    const char letter = text_.front();
    for (const auto& escape : escapes) {
        if (escape.letter != letter) continue;
        take(1);
        return escape.means;
    }
    const bool isHexadecimal = letter == 'x';
    if (isHexadecimal) take(1);
    const std::size_t digits = isHexadecimal ? 2 : 3;
    const auto byte = byteOf(text_, digits, isHexadecimal ? 16 : 8);
    if (byte) take(digits);
    return byte;
}

} // namespace tarvo::linux_platform
