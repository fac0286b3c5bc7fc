#include "command_line.h"

#include <fmt/format.h>

namespace tarvo {

CommandLine parseCommandLine(std::span<const std::string_view> arguments) {
    for (const std::string_view argument : arguments) {
        if (argument == "--help" || argument == "-h") return ShowHelp{};
        if (argument == "--version") return ShowVersion{};
        return UsageError{fmt::format("unknown argument '{}'", argument)};
    }
    return ProgramOptions{};
}

std::string_view helpText() {
    return R"(Usage: tarvo

Shows processor, memory, disk, network, temperature and battery in the status bar.

  --version    print the version and end
  --help       print this text and end
)";
}

} // namespace tarvo
