#pragma once

#include <string>
#include <utility>

namespace tarvo {

/// Why something that the user asked for failed, for a person to read: in Czech and in English, or the same
/// in both where the words are those of a tool.
struct FailureText {
    std::string cs;
    std::string en;

    FailureText(std::string both) : cs(both), en(std::move(both)) {}
    FailureText(const char* both) : FailureText(std::string(both)) {}
    FailureText(std::string czech, std::string english) : cs(std::move(czech)), en(std::move(english)) {}

    bool operator==(const FailureText&) const = default;
};

} // namespace tarvo
