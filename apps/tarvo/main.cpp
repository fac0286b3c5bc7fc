#include "command_line.h"
#include "core/application_identifier.h"
#include "platform/build_options.h"
#include "platform/desktop/display_check.h"
#include "platform/desktop/paint_log.h"
#include "platform/desktop/session_service.h"
#include "platform/posix/freed_memory.h"
#include "program.h"
#include "ui/elements/element.h"

#include <QDBusConnection>

#include <fmt/format.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <variant>
#include <vector>

namespace {

using namespace tarvo;

constexpr int usageStatus = 2;
constexpr int displayStatus = 1;
constexpr int busyStatus = 1;

int openRunningOne(desktop::SessionService& session) {
    if (session.callOwner(QString::fromLatin1(openPopoverMethod))) return 0;
    fmt::print(stderr, "tarvo: already running, but it does not answer\n");
    return busyStatus;
}

int runProgram(int argumentCount, char** arguments, const ProgramOptions& options) {
    shareOneHeap();
    if (const auto missing = desktop::missingDisplay()) {
        fmt::print(stderr, "tarvo: {}\n", *missing);
        return displayStatus;
    }
    desktop::QtApplication application(argumentCount, arguments, build_options::version,
                                       applicationIdentifier);
    desktop::SessionService session(QDBusConnection::sessionBus(),
                                    QString::fromLatin1(applicationIdentifier));
    if (session.claim() == desktop::SessionService::Claim::taken) return openRunningOne(session);
    ui::installElementAccessibility();
    desktop::logPaintsIfAsked();
    Program program(application, session, options);
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
