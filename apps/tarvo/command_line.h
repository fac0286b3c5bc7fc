#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace tarvo {

struct ProgramOptions {
    std::string root; ///< folder of a recorded machine; empty: this machine
    bool operator==(const ProgramOptions&) const = default;
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

using CommandLine = std::variant<ProgramOptions, ShowHelp, ShowVersion, UsageError>;

/// The command line without the program's name. The first of --help, --version and an error decides.
CommandLine parseCommandLine(std::span<const std::string_view> arguments);

/// What --help prints.
std::string_view helpText();

} // namespace tarvo
