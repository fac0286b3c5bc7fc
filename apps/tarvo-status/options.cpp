#include "options.h"

#include "platform/parse_double.h"

#include <fmt/format.h>

#include <array>
#include <utility>

namespace tarvo::status {
namespace {

constexpr double shortestInterval = 0.01;
constexpr double longestInterval = 86'400;

constexpr std::array formats{std::pair{std::string_view("text"), OutputFormat::text},
                             std::pair{std::string_view("json"), OutputFormat::json},
                             std::pair{std::string_view("waybar"), OutputFormat::waybar}};

using Problem = std::optional<std::string>;

Problem setInterval(Options& options, std::string_view text) {
    const auto seconds = parseDouble(text);
    if (!seconds || *seconds < shortestInterval || *seconds > longestInterval) {
        return fmt::format("--interval takes seconds from {} to {}, not '{}'", shortestInterval,
                           longestInterval, text);
    }
    options.interval = Seconds(*seconds);
    return std::nullopt;
}

Problem setFormat(Options& options, std::string_view text) {
    for (const auto& [name, format] : formats) {
        if (text != name) continue;
        options.format = format;
        return std::nullopt;
    }
    return fmt::format("--format takes text, json or waybar, not '{}'", text);
}

Problem setRoot(Options& options, std::string_view text) {
    if (text.empty()) return "--root takes a folder";
    options.root = text;
    return std::nullopt;
}

struct ValueOption {
    std::string_view name;
    Problem (*set)(Options&, std::string_view);
};
constexpr std::array valueOptions{ValueOption{"--interval", setInterval}, ValueOption{"--format", setFormat},
                                  ValueOption{"--root", setRoot}};

const ValueOption* findValueOption(std::string_view name) {
    for (const auto& option : valueOptions) {
        if (option.name == name) return &option;
    }
    return nullptr;
}

} // namespace

Arguments parseArguments(std::span<const std::string_view> arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const auto argument = arguments[i];
        if (argument == "--help" || argument == "-h") return ShowHelp{};
        if (argument == "--version") return ShowVersion{};
        if (argument == "--once" || argument == "--detail") {
            (argument == "--once" ? options.once : options.detail) = true;
            continue;
        }
        const auto equals = argument.find('=');
        const auto name = argument.substr(0, equals);
        const auto* option = findValueOption(name);
        if (!option) return UsageError{fmt::format("unknown argument '{}'", argument)};
        if (equals == std::string_view::npos && ++i == arguments.size()) {
            return UsageError{fmt::format("{} needs a value", name)};
        }
        const auto value = equals == std::string_view::npos ? arguments[i] : argument.substr(equals + 1);
        if (auto problem = option->set(options, value)) return UsageError{std::move(*problem)};
    }
    return options;
}

std::string_view helpText() {
    return "Usage: tarvo-status [OPTION]...\n"
           "Prints the readings of this machine, one line each time they are taken.\n"
           "\n"
           "  --once              print one line and end\n"
           "  --interval SECONDS  take the readings this often (0.01 to 86400; otherwise as the\n"
           "                      preferences say, 2 at first)\n"
           "  --format FORMAT     text: the line of the status bar (this is what you get without it)\n"
           "                      json: one object with all readings\n"
           "                      waybar: an object for a custom module of that bar\n"
           "  --detail            also take sensors, GPU, disk rates, addresses and processes\n"
           "  --root DIR          read DIR/proc and DIR/sys, a recorded machine, instead of this one\n"
           "  --help              print this and end\n"
           "  --version           print the version and end\n"
           "\n"
           "Which readings the text line has and the unit of temperatures follow the preferences.\n"
           "The status is 0, or 1 when the output cannot be written, or 2 for arguments that make\n"
           "no sense.\n";
}

} // namespace tarvo::status
