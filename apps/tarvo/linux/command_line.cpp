#include "command_line.h"

#include "platform/linux/root.h"

#include <fmt/format.h>

namespace tarvo {

CommandLine parseCommandLine(std::span<const std::string_view> arguments) {
    ProgramOptions options;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string_view argument = arguments[index];
        if (argument == "--help" || argument == "-h") return ShowHelp{};
        if (argument == "--version") return ShowVersion{};
        if (argument != "--root") return UsageError{fmt::format("unknown argument '{}'", argument)};
        if (++index == arguments.size()) return UsageError{"--root needs a folder"};
        if (arguments[index].empty()) return UsageError{"--root needs a folder"};
        options.root = arguments[index];
        if (linux_platform::Root(options.root).isLive()) options.root.clear();
    }
    return options;
}

std::string_view helpText() {
    return R"(Usage: tarvo [--root DIR]

Shows processor, memory, disk, network, temperature and battery in the status bar.

  --root DIR   read DIR/proc and DIR/sys of a recorded machine instead of this one
  --version    print the version and end
  --help       print this text and end

Environment:
  TARVO_STATUS_BAR=tray|bar   where the items stand: the desktop's tray or Tarvo's own bar
)";
}

} // namespace tarvo
