#include "actions/shortcuts_automations.h"

#include "actions/apple_script.h"
#include "actions/shortcuts_integration.h"

#include <utility>

namespace tarvo {

ShortcutsAutomations::ShortcutsAutomations(std::shared_ptr<ChildProcesses> tools,
                                           std::shared_ptr<AppleScripts> scripts)
    : tools_(std::move(tools)), scripts_(std::move(scripts)) {}

std::vector<std::string> ShortcutsAutomations::list() {
    return parseShortcutNames(tools_->output("/usr/bin/shortcuts", {"list"}).value_or(""));
}

AutomationOutcome ShortcutsAutomations::run(const std::string& name) {
    const auto outcome = scripts_->run(runShortcutSource(name));
    if (!outcome.compiled) return {false, std::nullopt};
    if (!outcome.failed) return {};
    return {false, outcome.message ? std::optional<FailureText>(*outcome.message) : std::nullopt};
}

} // namespace tarvo
