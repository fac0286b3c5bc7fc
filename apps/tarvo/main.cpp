#include "command_line.h"
#include "launch.h"
#include "platform/build_options.h"
#include "platform/desktop/paint_log.h"
#include "platform/posix/freed_memory.h"
#include "program.h"
#include "ui/elements/element.h"

#include <fmt/format.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <variant>
#include <vector>

namespace {

using namespace tarvo;

constexpr int usageStatus = 2;

int runProgram(int argumentCount, char** arguments, const ProgramOptions& options) {
    shareOneHeap();
    auto launched = launch(argumentCount, arguments);
    if (const auto* status = std::get_if<ExitStatus>(&launched)) return *status;
    ui::installElementAccessibility();
    desktop::logPaintsIfAsked();
    Program program(*std::get<std::unique_ptr<Launch>>(launched), options);
    const int status = program.run();
    if (!program.finish()) std::_Exit(status);
    return status;
}

} // namespace

int main(int argumentCount, char** arguments) {
    const std::vector<std::string_view> given(arguments + 1, arguments + argumentCount);
    const CommandLine line = parseCommandLine(given);
    if (const auto* options = std::get_if<ProgramOptions>(&line)) {
        return runProgram(argumentCount, arguments, *options);
    }
    if (const auto* error = std::get_if<UsageError>(&line)) {
        fmt::print(stderr, "tarvo: {}\nTry 'tarvo --help'.\n", error->message);
        return usageStatus;
    }
    if (std::holds_alternative<ShowVersion>(line)) {
        fmt::print("tarvo {}\n", build_options::version);
    } else {
        fmt::print("{}", helpText());
    }
    return 0;
}
