#pragma once

#include "platform/linux/eight_characters.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

namespace tarvo::linux_platform {

/// Walks over a text of lines and blank-separated fields without copying; for the files that are read every
/// tick. Fields end at blanks; no step except nextLine() passes a line feed.
class TextCursor {
public:
    explicit TextCursor(std::string_view text) : at_(text.data()), end_(text.data() + text.size()) {}

    bool atEnd() const { return at_ == end_; }
    std::string_view rest() const { return {at_, static_cast<std::size_t>(end_ - at_)}; }

    /// Passes the text when it stands here.
    bool skip(std::string_view expected) {
        if (rest().size() < expected.size() || std::memcmp(at_, expected.data(), expected.size()) != 0)
            return false;
        at_ += expected.size();
        return true;
    }

    /// Goes to the beginning of the next line, or to the end.
    void nextLine() {
        const auto* found =
            at_ == end_ ? nullptr : std::memchr(at_, '\n', static_cast<std::size_t>(end_ - at_));
        at_ = found == nullptr ? end_ : static_cast<const char*>(found) + 1;
    }

    /// The next field of this line; empty when there is none, and where a control character stands.
    std::string_view field() {
        skipBlanks();
        const char* const begin = at_;
        skipField();
        return {begin, static_cast<std::size_t>(at_ - begin)};
    }

    /// The next field of this line as far as its last separator, which is passed too; what follows it within
    /// the field is next. Absent, and the field passed, where it holds no separator.
    std::optional<std::string_view> fieldUpToLast(char separator) {
        const auto whole = field();
        for (const char* found = at_; found != whole.data();) {
            if (*--found != separator) continue;
            at_ = found + 1;
            return std::string_view(whole.data(), static_cast<std::size_t>(found - whole.data()));
        }
        return std::nullopt;
    }

    bool skipFields(int count) {
        if (skipInWords(count)) return true;
        for (; count > 0; --count) {
            if (field().empty()) return false;
        }
        return true;
    }

    /// The next field of this line where it is an unsigned decimal number in range; else absent, and nothing
    /// is passed but blanks.
    std::optional<std::uint64_t> number() {
        skipBlanks();
        if (end_ - at_ <= EightCharacters::length) return longNumber(at_, 0);
        const EightCharacters next(at_);
        const auto digits = next.digits();
        if (digits == EightCharacters::length) return longNumber(at_ + digits, next.value(digits));
        if (digits == 0 || isInField(at_[digits])) return std::nullopt;
        at_ += digits;
        return next.value(digits);
    }

private:
    static constexpr std::ptrdiff_t surelyFits = 19; ///< digits that every 64-bit number can hold

    static bool isBlank(char character) { return character == ' ' || character == '\t'; }
    /// One comparison a character: blanks, line feeds and control characters are all below what fields hold.
    static bool isInField(char character) { return static_cast<unsigned char>(character) > ' '; }
    /// 0 to 9 for a digit, more for anything else.
    static unsigned unitOf(char character) { return static_cast<unsigned char>(character) - unsigned{'0'}; }

    // Counts the ends of fields eight characters at a time. Passes no control character: what is left of
    // `count` then, and at the end of the text, is to be done field by field.
    bool skipInWords(int& count) {
        constexpr std::uint64_t firstByte = 0x80;
        constexpr std::uint64_t onePerByte = 0x0101'0101'0101'0101;
        std::uint64_t carry = 0; // set when the character before is in a field
        for (; count > 0 && end_ - at_ >= EightCharacters::length; at_ += EightCharacters::length) {
            const EightCharacters next(at_);
            if (next.holdsControl()) break;
            const auto marks = next.fieldMarks();
            auto ends = ~marks & ((marks << 8U) | carry);
            const int found = static_cast<int>(((ends >> 7U) * onePerByte) >> 56U);
            if (found >= count) {
                for (; count > 1; --count)
                    ends &= ends - 1;
                at_ += std::countr_zero(ends) / 8;
                return true;
            }
            count -= found;
            carry = (marks >> 63U) * firstByte;
        }
        // A field that ends just here counts.
        if (carry != 0 && (at_ == end_ || !isInField(*at_))) --count;
        return count == 0;
    }

    // A number whose digits up to `digit`, which are few enough, have the value so far.
    std::optional<std::uint64_t> longNumber(const char* digit, std::uint64_t value) {
        const char* const safe = end_ - at_ > surelyFits ? at_ + surelyFits : end_;
        for (; digit != safe && unitOf(*digit) <= 9; ++digit)
            value = value * 10 + unitOf(*digit);
        for (; digit != end_ && unitOf(*digit) <= 9; ++digit) {
            if (value > (UINT64_MAX - unitOf(*digit)) / 10) return std::nullopt;
            value = value * 10 + unitOf(*digit);
        }
        if (digit == at_ || (digit != end_ && isInField(*digit))) return std::nullopt;
        at_ = digit;
        return value;
    }

    void skipField() {
        while (end_ - at_ >= EightCharacters::length) {
            const auto count = EightCharacters(at_).aboveBlank();
            at_ += count;
            if (count < EightCharacters::length) return;
        }
        while (at_ != end_ && isInField(*at_))
            ++at_;
    }

    void skipBlanks() {
        while (at_ != end_ && isBlank(*at_))
            ++at_;
    }

    const char* at_;
    const char* end_;
};

} // namespace tarvo::linux_platform
