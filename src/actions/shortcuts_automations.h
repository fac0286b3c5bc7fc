#pragma once

#include "platform/apple_scripts.h"
#include "platform/automations.h"
#include "platform/child_processes.h"

#include <memory>
#include <string>
#include <vector>

namespace tarvo {

/// The user's own shortcuts, listed by the system's tool and run by its scripting agent. Any thread; both
/// operations wait.
class ShortcutsAutomations : public Automations {
public:
    ShortcutsAutomations(std::shared_ptr<ChildProcesses> tools, std::shared_ptr<AppleScripts> scripts);

    SystemFamily family() const override { return SystemFamily::macOS; }
    std::vector<std::string> list() override;
    AutomationOutcome run(const std::string& name) override;

private:
    std::shared_ptr<ChildProcesses> tools_;
    std::shared_ptr<AppleScripts> scripts_;
};

} // namespace tarvo
