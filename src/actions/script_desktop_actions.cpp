#include "actions/script_desktop_actions.h"

#include "actions/apple_script.h"

#include <utility>

namespace tarvo {
namespace {

constexpr auto emptyTrashSource = R"(tell application "Finder" to empty trash)";
constexpr auto toggleDarkModeSource =
    R"(tell application "System Events" to tell appearance preferences to set dark mode to not dark mode)";
constexpr auto newWindowSource = R"(tell application "Finder" to activate
tell application "Finder" to make new Finder window)";

constexpr auto killall = "/usr/bin/killall";
constexpr auto pmset = "/usr/bin/pmset";

constexpr auto automationSettings =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_Automation";

} // namespace

ScriptDesktopActions::ScriptDesktopActions(std::shared_ptr<AppleScripts> scripts,
                                           std::shared_ptr<ChildProcesses> tools, Dispatcher& dispatcher,
                                           OpenLink openLink)
    : scripts_(std::move(scripts)), tools_(std::move(tools)), dispatcher_(dispatcher),
      openLink_(std::move(openLink)) {}

void ScriptDesktopActions::perform(QuickAction action, Done done) {
    std::optional<FailureText> failure;
    switch (action) {
    case QuickAction::emptyTrash:
        failure = runScript(emptyTrashSource);
        break;
    case QuickAction::restartFileManager:
        startTool(killall, "Finder");
        break;
    case QuickAction::restartDock:
        startTool(killall, "Dock");
        break;
    case QuickAction::sleepDisplay:
        startTool(pmset, "displaysleepnow");
        break;
    case QuickAction::toggleDarkMode:
        failure = runScript(toggleDarkModeSource);
        break;
    case QuickAction::newFileManagerWindow:
        failure = runScript(newWindowSource);
        break;
    }
    done(std::move(failure));
}

void ScriptDesktopActions::openAutomationSettings() {
    openLink_(automationSettings);
}

std::optional<FailureText> ScriptDesktopActions::runScript(const std::string& source) {
    auto text = scriptErrorText(scripts_->run(source));
    return text ? std::optional<FailureText>(std::move(*text)) : std::nullopt;
}

void ScriptDesktopActions::startTool(std::string executable, std::string argument) {
    const ChildProcessRequest request{.executable = std::move(executable),
                                      .arguments = {std::move(argument)}};
    // Somebody has to await its end; nobody needs to hear of it.
    dispatcher_.global(QualityOfService::userInitiated, [tools = tools_, request] { tools->run(request); });
}

} // namespace tarvo
