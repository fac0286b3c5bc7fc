#pragma once

#include "platform/apple_scripts.h"
#include "platform/child_processes.h"
#include "platform/desktop_actions.h"
#include "platform/dispatcher.h"

#include <functional>
#include <memory>
#include <string>

namespace tarvo {

/// The quick actions of a desktop that takes AppleScript, carried out by scripts and by the system's tools.
/// Main thread only; a script holds it until the script has ended, a tool is only started.
class ScriptDesktopActions : public DesktopActions {
public:
    using OpenLink = std::function<void(const std::string& link)>;

    /// The dispatcher outlives this.
    ScriptDesktopActions(std::shared_ptr<AppleScripts> scripts, std::shared_ptr<ChildProcesses> tools,
                         Dispatcher& dispatcher, OpenLink openLink);

    SystemFamily family() const override { return SystemFamily::macOS; }
    bool canDo(QuickAction) const override { return true; }
    void perform(QuickAction action, Done done) override;
    bool hasAutomationSettings() const override { return true; }
    void openAutomationSettings() override;

private:
    std::optional<FailureText> runScript(const std::string& source);
    void startTool(std::string executable, std::string argument);

    std::shared_ptr<AppleScripts> scripts_;
    std::shared_ptr<ChildProcesses> tools_;
    Dispatcher& dispatcher_;
    OpenLink openLink_;
};

} // namespace tarvo
