#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tarvo::linux_platform {

/// Eight characters of a text looked at with one load and a few steps of whole words, the first in the lowest
/// byte.
class EightCharacters {
public:
    static constexpr std::ptrdiff_t length = 8;

    /// Eight characters must follow.
    explicit EightCharacters(const char* at) {
        std::memcpy(&bytes_, at, sizeof(bytes_));
        if constexpr (std::endian::native == std::endian::big) bytes_ = __builtin_bswap64(bytes_);
    }

    /// How many digits stand at the beginning.
    std::ptrdiff_t digits() const {
        const auto units = bytes_ ^ everyByte('0');
        // Adding carries a byte above 9 into its highest bit; a carry into later bytes comes after the first
        // found.
        return bytesBefore(units | (units + everyByte(0x76)));
    }

    /// How many characters above the blank stand at the beginning.
    std::ptrdiff_t aboveBlank() const { return bytesBefore((bytes_ - everyByte(' ' + 1)) & ~bytes_); }

    /// The highest bit of each byte that holds a character above the blank.
    std::uint64_t fieldMarks() const { return marksAbove(' '); }

    /// Whether a character below the blank is among them: a line feed, a tab or another control character.
    bool holdsControl() const { return marksAbove(' ' - 1) != everyByte(0x80); }

    /// Value of the first `count` characters, 1 to 8 digits: neighbours are joined to pairs, then fours, then
    /// all.
    std::uint64_t value(std::ptrdiff_t count) const {
        const auto unused = static_cast<unsigned>(length - count) * 8U;
        const auto units = (bytes_ ^ everyByte('0')) << unused;
        const auto pairs = units * 10 + (units >> 8U);
        const auto first = (pairs & secondBytes) * (1'000'000 * shifted + 100);
        const auto second = ((pairs >> 16U) & secondBytes) * (10'000 * shifted + 1);
        return (first + second) >> 32U;
    }

private:
    static constexpr std::uint64_t shifted = std::uint64_t{1} << 32U;
    static constexpr std::uint64_t secondBytes = 0x0000'00FF'0000'00FF;

    static constexpr std::uint64_t everyByte(std::uint64_t byte) { return byte * 0x0101'0101'0101'0101; }

    // Without a carry from one byte to the next.
    std::uint64_t marksAbove(std::uint64_t limit) const {
        const auto low = (bytes_ & everyByte(0x7F)) + everyByte(0x7F - limit);
        return (low | bytes_) & everyByte(0x80);
    }

    // Bytes before the first whose highest bit is set.
    static std::ptrdiff_t bytesBefore(std::uint64_t marks) {
        return std::countr_zero(marks & everyByte(0x80)) / 8;
    }

    std::uint64_t bytes_;
};

} // namespace tarvo::linux_platform
