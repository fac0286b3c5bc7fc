#pragma once

#include "platform/clock.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace tarvo::status {

enum class OutputFormat { text, json, waybar };

struct Options {
    bool once = false;
    bool detail = false;
    std::optional<Seconds> interval = std::nullopt; ///< absent: the user's preference
    OutputFormat format = OutputFormat::text;
    std::string root = {}; ///< empty: this machine
    bool operator==(const Options&) const = default;
};

struct ShowHelp {
    bool operator==(const ShowHelp&) const = default;
};
struct ShowVersion {
    bool operator==(const ShowVersion&) const = default;
};
/// A sentence that says what is wrong with the arguments.
struct UsageError {
    std::string message;
    bool operator==(const UsageError&) const = default;
};

using Arguments = std::variant<Options, ShowHelp, ShowVersion, UsageError>;

/// The command line without the program's name. The first of --help, --version and an error decides; of an
/// option that is given twice the last one holds.
Arguments parseArguments(std::span<const std::string_view> arguments);

/// What --help prints.
std::string_view helpText();

} // namespace tarvo::status
