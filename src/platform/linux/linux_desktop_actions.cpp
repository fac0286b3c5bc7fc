#include "platform/linux/linux_desktop_actions.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tarvo::linux_platform {
namespace {

constexpr std::chrono::seconds toolTimeLimit{10};
/// How long a program that stays may take to fail.
constexpr std::chrono::seconds startTimeLimit{3};

using ToolLookup = LinuxDesktopActions::ToolLookup;

std::string lastLine(std::string text) {
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r'))
        text.pop_back();
    const auto end = text.rfind('\n');
    return end == std::string::npos ? text : text.substr(end + 1);
}

FailureText unsupported() {
    return {"Toto prostředí to nepodporuje.", "This desktop does not support it."};
}

/// What a tool that did not do its work is reported with.
std::optional<FailureText> failureOf(const std::string& tool, const ChildProcessResult& result) {
    if (result.exitStatus == 0) return std::nullopt;
    if (auto said = lastLine(result.errorTail); !said.empty()) return said;
    if (result.exceededTimeLimit) {
        return FailureText(tool + ": neodpovědělo včas", tool + ": did not answer in time");
    }
    const int status = result.exitStatus.value_or(-1);
    return FailureText(fmt::format("{}: skončilo se stavem {}", tool, status),
                       fmt::format("{}: ended with status {}", tool, status));
}

/// Tools are to speak in a way that can be read by programs; a window is to speak the user's language.
ChildProcessRequest requestFor(const std::string& executable, const ToolCommand& command) {
    if (command.staysOpen) {
        return {.executable = executable,
                .arguments = command.arguments,
                .timeLimit = startTimeLimit,
                .mayGoOn = true};
    }
    return {.executable = executable,
            .arguments = command.arguments,
            .environment = {{"LC_ALL", "C"}},
            .timeLimit = toolTimeLimit,
            .keepErrorTail = true};
}

/// Runs tools one after the other, with their failures in words.
class Runner {
public:
    Runner(ChildProcesses& processes, const ToolLookup& lookup) : processes_(processes), lookup_(lookup) {}

    std::optional<FailureText> carryOut(const ActionMeans& means) {
        std::string answer;
        if (means.question) {
            if (auto failure = run(*means.question, &answer)) return failure;
        }
        const auto commands = means.commands(answer);
        if (commands.empty()) return unsupported();
        for (const auto& command : commands) {
            if (auto failure = run(command, nullptr)) return failure;
        }
        return std::nullopt;
    }

private:
    std::optional<FailureText> run(const ToolCommand& command, std::string* output) {
        const auto& tool = command.tool;
        const auto executable = lookup_(tool);
        if (!executable) return FailureText(tool + ": není nainstalováno", tool + ": not installed");
        const auto result = processes_.run(requestFor(*executable, command));
        if (!result) return FailureText(tool + ": nelze spustit", tool + ": could not be started");
        if (output) *output = result->output;
        // One that is still there is the window that was asked for.
        if (command.staysOpen && result->exceededTimeLimit) return std::nullopt;
        return failureOf(tool, *result);
    }

    ChildProcesses& processes_;
    const ToolLookup& lookup_;
};

} // namespace

LinuxDesktopActions::LinuxDesktopActions(DesktopEnvironment environment,
                                         std::shared_ptr<ChildProcesses> processes, Dispatcher& dispatcher,
                                         ToolLookup lookup, EmptyTrash emptyTrash)
    : environment_(std::move(environment)), processes_(std::move(processes)), dispatcher_(dispatcher),
      lookup_(std::move(lookup)), emptyTrash_(std::move(emptyTrash)) {}

bool LinuxDesktopActions::canDo(QuickAction action) const {
    return action == QuickAction::emptyTrash || !available(action).empty();
}

void LinuxDesktopActions::perform(QuickAction action, Done done) {
    auto work = [means = available(action), processes = processes_, lookup = lookup_,
                 emptyTrash = action == QuickAction::emptyTrash ? emptyTrash_
                                                                : nullptr]() -> std::optional<FailureText> {
        Runner runner(*processes, lookup);
        std::optional<FailureText> failure = unsupported();
        for (const auto& one : means) {
            failure = runner.carryOut(one);
            if (!failure) return std::nullopt;
        }
        if (!emptyTrash) return failure;
        const auto words = emptyTrash();
        return words ? std::optional<FailureText>(*words) : std::nullopt;
    };
    dispatcher_.global(QualityOfService::userInitiated,
                       [work = std::move(work), done = std::move(done), &dispatcher = dispatcher_] {
                           dispatcher.async([done, failure = work()] { done(failure); });
                       });
}

std::vector<ActionMeans> LinuxDesktopActions::available(QuickAction action) const {
    const auto isInstalled = [this](const std::string& tool) { return lookup_(tool).has_value(); };
    std::vector<ActionMeans> found;
    for (auto& means : meansFor(action, environment_)) {
        const bool hasAll = std::all_of(means.needs.begin(), means.needs.end(), isInstalled);
        const bool hasOne = means.needsOneOf.empty() ||
                            std::any_of(means.needsOneOf.begin(), means.needsOneOf.end(), isInstalled);
        if (hasAll && hasOne) found.push_back(std::move(means));
    }
    return found;
}

std::optional<std::string> toolInPath(std::string_view tool, std::string_view path) {
    while (!path.empty()) {
        const auto end = std::min(path.find(':'), path.size());
        const auto candidate = fmt::format("{}/{}", path.substr(0, end), tool);
        struct stat entry {};
        const bool isFile =
            candidate.starts_with('/') && ::stat(candidate.c_str(), &entry) == 0 && S_ISREG(entry.st_mode);
        if (isFile && ::access(candidate.c_str(), X_OK) == 0) return candidate;
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return std::nullopt;
}

} // namespace tarvo::linux_platform
