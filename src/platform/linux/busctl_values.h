#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo::linux_platform {

/// Walks over the values that busctl(1) prints for a call or for properties: words apart by blanks, a
/// signature first, texts in quotes with escapes, arrays with their number of entries first. The text
/// outlives this.
class BusctlValues {
public:
    explicit BusctlValues(std::string_view text) : text_(text) {}
    explicit BusctlValues(std::string&& text) = delete;

    bool atEnd();
    /// Passes the signature when it is the expected one.
    bool signature(std::string_view expected);
    std::optional<std::int64_t> integer();
    /// A text, and also an object path.
    std::optional<std::string> string();
    bool skip(int values);

private:
    void skipBlanks();
    std::optional<std::string_view> word();
    std::optional<char> escaped();

    std::string_view text_;
};

} // namespace tarvo::linux_platform
