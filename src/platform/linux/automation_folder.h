#pragma once

#include "platform/automations.h"
#include "platform/child_processes.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// The user's automations: the executables and desktop entries of one folder of the user's own.
class AutomationFolder : public Automations {
public:
    using ToolLookup = std::function<std::optional<std::string>(std::string_view tool)>;

    /// `folder` is made when it is missing. `lookup` finds the tools that desktop entries name. Automations
    /// run in the folder `home`.
    AutomationFolder(std::string folder, std::string home, std::string language,
                     std::shared_ptr<ChildProcesses> processes, ToolLookup lookup);

    SystemFamily family() const override { return SystemFamily::other; }
    /// By code point. Empty when the folder belongs to somebody else or others may write to it.
    std::vector<std::string> list() override;
    AutomationOutcome run(const std::string& name) override;

private:
    struct Automation {
        std::string name;
        std::vector<std::string> command; ///< the executable first
    };
    void makeFolder() const;
    std::vector<Automation> automations() const;
    std::optional<Automation> automationAt(const std::string& fileName) const;

    std::string folder_;
    std::string home_;
    std::string language_;
    std::shared_ptr<ChildProcesses> processes_;
    ToolLookup lookup_;
};

} // namespace tarvo::linux_platform
