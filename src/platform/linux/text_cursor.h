#pragma once

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
        if (!rest().starts_with(expected)) return false;
        at_ += expected.size();
        return true;
    }

    /// Goes to the beginning of the next line, or to the end.
    void nextLine() {
        const auto* found =
            at_ == end_ ? nullptr : std::memchr(at_, '\n', static_cast<std::size_t>(end_ - at_));
        at_ = found == nullptr ? end_ : static_cast<const char*>(found) + 1;
    }

    /// The next field of this line; empty when there is none.
    std::string_view field() {
        skipBlanks();
        const char* const begin = at_;
        while (at_ != end_ && !isBlank(*at_) && *at_ != '\n')
            ++at_;
        return {begin, static_cast<std::size_t>(at_ - begin)};
    }

    bool skipFields(int count) {
        for (; count > 0; --count) {
            if (field().empty()) return false;
        }
        return true;
    }

    /// The next field of this line where it is an unsigned decimal number in range; else absent, and nothing
    /// is passed but blanks.
    std::optional<std::uint64_t> number() {
        skipBlanks();
        const char* digit = at_;
        std::uint64_t value = 0;
        for (; digit != end_ && isDigit(*digit); ++digit) {
            const auto unit = static_cast<std::uint64_t>(*digit - '0');
            if (digit - at_ >= surelyFits && value > (UINT64_MAX - unit) / 10) return std::nullopt;
            value = value * 10 + unit;
        }
        if (digit == at_ || (digit != end_ && !isBlank(*digit) && *digit != '\n')) return std::nullopt;
        at_ = digit;
        return value;
    }

private:
    static constexpr std::ptrdiff_t surelyFits = 19;

    static bool isBlank(char character) { return character == ' ' || character == '\t'; }
    static bool isDigit(char character) { return character >= '0' && character <= '9'; }
    void skipBlanks() {
        while (at_ != end_ && isBlank(*at_))
            ++at_;
    }

    const char* at_;
    const char* end_;
};

} // namespace tarvo::linux_platform
