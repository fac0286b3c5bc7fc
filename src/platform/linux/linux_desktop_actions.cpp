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

using ToolLookup = LinuxDesktopActions::ToolLookup;

std::string lastLine(std::string text) {
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r'))
        text.pop_back();
    const auto end = text.rfind('\n');
    return end == std::string::npos ? text : text.substr(end + 1);
}

/// Runs tools one after the other, with their failures in words.
class Runner {
public:
    Runner(ChildProcesses& processes, const ToolLookup& lookup) : processes_(processes), lookup_(lookup) {}

    /// A failure's words, absent on success.
    std::optional<std::string> carryOut(const ActionMeans& means) {
        std::string answer;
        if (means.question) {
            if (auto failure = run(*means.question, &answer)) return failure;
        }
        const auto commands = means.commands(answer);
        if (commands.empty()) return "This desktop does not support it.";
        for (const auto& command : commands) {
            if (auto failure = run(command, nullptr)) return failure;
        }
        return std::nullopt;
    }

private:
    std::optional<std::string> run(const ToolCommand& command, std::string* output) {
        const auto executable = lookup_(command.tool);
        if (!executable) return fmt::format("{}: not installed", command.tool);
        const ChildProcessRequest request{.executable = *executable,
                                          .arguments = command.arguments,
                                          .environment = {{"LC_ALL", "C"}},
                                          .timeLimit = toolTimeLimit,
                                          .keepErrorTail = true};
        const auto result = processes_.run(request);
        if (!result) return fmt::format("{}: could not be started", command.tool);
        if (output) *output = result->output;
        if (result->exitStatus == 0) return std::nullopt;
        const auto said = lastLine(result->errorTail);
        if (!said.empty()) return said;
        if (result->exceededTimeLimit) return fmt::format("{}: did not answer in time", command.tool);
        return fmt::format("{}: ended with status {}", command.tool, result->exitStatus.value_or(-1));
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
                                                                : nullptr]() -> std::optional<std::string> {
        Runner runner(*processes, lookup);
        std::optional<std::string> failure = "This desktop does not support it.";
        for (const auto& one : means) {
            failure = runner.carryOut(one);
            if (!failure) return std::nullopt;
        }
        return means.empty() && emptyTrash ? emptyTrash() : failure;
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
